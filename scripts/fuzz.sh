#!/bin/bash
# Loads graph files that were changed at random, under Wine, on a heap with guard pages
# (tests/fuzz/main.cpp). A million files by default; options go to the program:
#   scripts/fuzz.sh --files 5000000 --seed 42
# The files of one seed are always the same; the exit code is 0 if none did harm.
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
scripts/setup.sh
scripts/build.sh windows-x64 vantoplex-fuzz
exec scripts/run-wine.sh -t 14400 "$VANTOPLEX_BUILD/windows-x64/bin/vantoplex-fuzz.exe" \
  --files 1000000 --paint-every 200 "$@"
