#!/bin/bash
# instrumented.sh MODE [OPTIONS]   the tests on builds that look closer than the test command's
#   undefined  the Windows tests; rooms and DLL report each step without a defined result and each
#              conversion of a number that the integer can't hold
#   guards     the Windows tests; operator new of tests and DLL on a heap with guard pages
#   native     the unit tests under clang's address, undefined-behaviour and integer checks
#   analyzer   clang's static analyzer over src and hosts
# Each mode has its own tree in $VANTOPLEX_BUILD, as deep as the others' so that the compiler's cache
# serves the tests' own sources. Options go to tests/support/suite.py, in mode native to the program. The
# last line sums up; the exit code is 0 only if nothing was found.
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
mode=${1:-}
[ $# -eq 0 ] || shift
tree=$VANTOPLEX_BUILD/$mode
[ "$mode" != native ] || tree=$tree-clang

configure() { # PRESET OPTIONS...
  scripts/setup.sh "${setup[@]}"
  mkdir -p "$VANTOPLEX_BUILD"
  cmake --preset "$1" -B "$tree" "${@:2}" >"$tree.log" 2>&1 || { cat "$tree.log"; exit 1; }
}

build() { # TARGETS
  scripts/build.sh "${tree##*/}" "$@" >"$tree.log" 2>&1 || { tail -30 "$tree.log"; exit 1; }
}

windows() { # OPTIONS OF suite.py
  build Vantoplex vantoplex-viewer vantoplex-tests
  python3 tests/support/suite.py "$tree/bin" --log "$tree.log" "$@"
}

setup=()
case $mode in
  undefined)
    # vptr needs the compiler's own library. What the checks add makes the compiler warn of nothing real.
    configure windows-x64 "-DVANTOPLEX_ROOM_SOURCES=$PWD/tests/support/UndefinedReports.cpp" \
      "-DVANTOPLEX_ROOM_OPTIONS=-fsanitize=undefined,float-cast-overflow,bounds-strict;-fno-sanitize=vptr;-Wno-error"
    windows --null-in tests/support/null-pointers-meant.txt "$@"
    ;;
  guards)
    configure windows-x64 -DVANTOPLEX_GUARDED_HEAP=ON
    windows --leave-out tests/support/guards-left-out.txt "$@"
    ;;
  native)
    setup=(--all)
    # Another compiler warns of other things; here its checks are wanted. The list has a name of its own
    # for each contents, since neither the build nor the compiler's cache reads it.
    list=tests/support/integer-checks.txt
    mkdir -p "$VANTOPLEX_BUILD"
    copy=$VANTOPLEX_BUILD/integer-checks-$(cksum <"$list" | cut -d' ' -f1).txt
    cp "$list" "$copy"
    configure native "-DCMAKE_CXX_COMPILER=$(command -v clang++-14)" -DCMAKE_CXX_FLAGS=-w \
      "-DVANTOPLEX_CHECKS=-fsanitize=integer,nullability,local-bounds;-fsanitize-ignorelist=$copy"
    build vantoplex-unit
    code=0
    "$tree/bin/vantoplex-unit" --gtest_brief=1 "$@" >"$tree.log" 2>&1 || code=$?
    grep -A9 'FAILED\|ERROR: AddressSanitizer' "$tree.log" || true
    sed -n 's/: runtime error: /: /p' "$tree.log" | sort -u | tee "$tree.places"
    echo "$(sed -n 's/^\[  PASSED  \] //p' "$tree.log" | head -1) exit code $code, $(wc -l <"$tree.places") places"
    [ $code -eq 0 ] && [ ! -s "$tree.places" ]
    ;;
  analyzer)
    scripts/setup.sh --all
    code=0
    scripts/format.sh tidy --full "$@" >"$tree.log" 2>&1 || code=$?
    cat "$tree.log"
    echo "$(grep -c 'warning:\|error:' "$tree.log" || true) findings of the analyzer"
    exit $code
    ;;
  *)
    sed -n '2,10p' "$0" >&2
    exit 2
    ;;
esac
