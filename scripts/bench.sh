#!/bin/bash
# Times the product under Wine beside plain loops and calls, in one process, and prints the
# lowest tenth and the median of each (docs/performance.md explains the rows). Options go to the
# program (bench/main.cpp):
#   scripts/bench.sh --most 1000000 --runs 11
#   scripts/bench.sh --only pie
#   scripts/bench.sh --check      exit code 1 if a ratio is missed that is to be kept
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
scripts/setup.sh
scripts/build.sh windows-x64 vantoplex-bench Vantoplex
exec scripts/run-wine.sh -t 1800 "$VANTOPLEX_BUILD/windows-x64/bin/vantoplex-bench.exe" "$@"
