#!/bin/bash
# coverage.sh [--report]   counts which lines and branches of src the tests run, natively and under Wine
# together, and lists in $VANTOPLEX_BUILD/coverage-report.txt what none of them does
# (tests/coverage/report.py). Builds trees of its own; some twenty minutes on two cores. With --report
# it only reads what the last run counted. The exit code is 0 if the goals are met.
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
export CCACHE_BASEDIR="$PWD" CCACHE_NOHASHDIR=1

build() { # TREE TARGET...
  local tree=$VANTOPLEX_BUILD/coverage-$1
  mkdir -p "$tree"
  cmake --preset "$1" -B "$tree" -DVANTOPLEX_COVERAGE=ON >"$tree/configure.log"
  cmake --build "$tree" -j"${VANTOPLEX_JOBS:-$(nproc)}" --target "${@:2}"
  find "$tree" -name '*.gcda' -delete
}

if [ "${1:-}" != --report ]; then
  scripts/setup.sh
  build native vantoplex-unit
  build windows-x64 Vantoplex vantoplex-viewer vantoplex-tests

  # A test that fails is the test command's business; here its lines count. A program adds its counts to
  # those of the programs before it, so no two run at once. The paths that it was built with have no drive.
  "$VANTOPLEX_BUILD/coverage-native/bin/vantoplex-unit" --gtest_brief=1 || true
  export GCOV_PREFIX=Z:
  shards=6
  for ((shard = 0; shard < shards; ++shard)); do
    GTEST_TOTAL_SHARDS=$shards GTEST_SHARD_INDEX=$shard scripts/run-wine.sh -t 1800 \
      "$VANTOPLEX_BUILD/coverage-windows-x64/bin/vantoplex-tests.exe" --gtest_brief=1 || true
  done
fi
python3 tests/coverage/report.py "$VANTOPLEX_BUILD"
