#!/bin/bash
# Loads graph files that were changed at random, under Wine, on a heap with guard pages, and paints
# every tenth (tests/fuzz/main.cpp). Three million files by default; options go to the program:
#   scripts/fuzz.sh --files 5000000 --seed 42
# The files of one seed are always the same; the exit code is 0 if none did harm.
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
scripts/setup.sh
scripts/build.sh windows-x64 vantoplex-fuzz
exec scripts/run-wine.sh -t 86400 "$VANTOPLEX_BUILD/windows-x64/bin/vantoplex-fuzz.exe" \
  --files 3000000 --paint-every 10 "$@"
