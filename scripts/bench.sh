#!/bin/bash
# Builds and runs vantoplex-bench.exe: medians, and ratios to the plain loops of the same run.
#   scripts/bench.sh [ARGUMENTS OF THE PROGRAM]
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
scripts/setup.sh
scripts/build.sh windows-x64 vantoplex-bench
exec scripts/run-wine.sh -t 1800 "$VANTOPLEX_BUILD/windows-x64/bin/vantoplex-bench.exe" "$@"
