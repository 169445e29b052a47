#!/bin/bash
# Builds everything and runs all tests, also on a bare Debian 12 machine (root, or sudo).
# The last line is "N passed, N failed"; the exit code is 0 only if nothing failed.
#   scripts/test.sh              all
#   scripts/test.sh native       the unit tests alone, with sanitizers (no Wine)
#   scripts/test.sh windows-x64  the Windows build alone, under Wine
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
presets=("${@:-native}")
[ $# -eq 0 ] && presets=(native windows-x64)

scripts/setup.sh

builds=()
code=0
for preset in "${presets[@]}"; do
  tree=$VANTOPLEX_BUILD/$preset
  echo "== $preset: build"
  scripts/build.sh "$preset"
  # Prefixes are made before the clock of any test runs.
  [ "$preset" = windows-x64 ] && for slot in 1 2 3; do scripts/run-wine.sh -s $slot cmd /c exit; done
  echo "== $preset: test"
  rm -f "$tree/results/"*.xml
  ctest --test-dir "$tree" --output-on-failure --no-tests=error -j3 --output-junit ctest.xml || code=$?
  builds+=("$tree")
done
python3 tests/support/count_tests.py "${builds[@]}" || code=1
exit "$code"
