#!/bin/bash
# Times whole frames of the XY graph under Wine and prints medians and their ratios to plain
# loops over the same points (bench/main.cpp tells of the columns). Options go to the program:
#   scripts/bench.sh --most 1000000 --runs 11
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
scripts/setup.sh
scripts/build.sh windows-x64 vantoplex-bench
exec scripts/run-wine.sh -t 1800 "$VANTOPLEX_BUILD/windows-x64/bin/vantoplex-bench.exe" "$@"
