#!/bin/bash
# format.sh [check]              names files that clang-format would change (exit code 1)
# format.sh fix [FILE...]        rewrites them, or the files named
# format.sh tidy [--full] [FILE...]  clang-tidy over the files named, by default all of src and hosts;
#                                --full adds the static analyzer (minutes)
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"

if [ "${1:-}" = tidy-one ]; then # FILE [CHECKS] -- COMPILER OPTIONS: silent unless something is wrong
  shift
  output=$(clang-tidy-14 --quiet "$@" 2>/dev/null) && exit 0
  [ -n "$output" ] && echo "$output" || echo "$1: clang-tidy failed"
  exit 1
fi
mode=${1:-check}
[ $# -gt 0 ] && shift
extra=()
# Windows delete themselves, which is no leak; and counts in doubles are part of the arithmetic.
[ "${1:-}" = --full ] && {
  extra=(--checks=clang-analyzer-*,-clang-analyzer-cplusplus.NewDeleteLeaks,-clang-analyzer-security.FloatLoopCounter)
  shift
}

if [ "$mode" = tidy ]; then scripts/setup.sh --all; else scripts/setup.sh; fi

sources() {
  git ls-files --cached --others --exclude-standard -- src hosts tests bench | grep -E '\.(cpp|h)$' |
    while read -r file; do [ -f "$file" ] && echo "$file"; done
}
if [ $# -gt 0 ]; then files=("$@"); else mapfile -t files < <(sources); fi

case $mode in
  check)
    bad=$(printf '%s\0' "${files[@]}" | xargs -0 -P "$(nproc)" -n 20 clang-format-14 --dry-run 2>&1 |
      sed -n 's/:[0-9]*:[0-9]*: warning: .*clang-format-violations.*//p' | sort -u)
    [ -z "$bad" ] || { echo "$bad"; echo "to format: scripts/format.sh fix" >&2; exit 1; }
    ;;
  fix)
    printf '%s\0' "${files[@]}" | xargs -0 -P "$(nproc)" -n 20 clang-format-14 -i
    ;;
  tidy)
    # clang reads the cross compiler's headers; without -nostdinc++ it would take the host's.
    version=$(x86_64-w64-mingw32-g++-posix -dumpversion)
    library=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=include/c++/cstdio)")
    [ -d "$library" ] || library=/usr/lib/gcc/x86_64-w64-mingw32/$version/include/c++
    options=(--target=x86_64-w64-mingw32 -std=c++20 -nostdinc++
      -isystem "$library" -isystem "$library/x86_64-w64-mingw32" -isystem "$library/backward"
      -isystem /usr/x86_64-w64-mingw32/include -isystem /usr/src/googletest/googletest/include
      -Isrc -Ihosts -Itests -Ikit/include "-I$VANTOPLEX_BUILD/windows-x64/include" "-I$VANTOPLEX_BUILD/windows-x64/version"
      -DUNICODE -D_UNICODE -DNOMINMAX -DSTRICT -DWIN32_LEAN_AND_MEAN
      -DWINVER=0x0601 -D_WIN32_WINNT=0x0601 -D_WIN32_IE=0x0800
      -Wno-unknown-warning-option -Wno-ignored-attributes -Wno-pragma-pack)
    [ -f "$VANTOPLEX_BUILD/windows-x64/include/vantoplex.h" ] ||
      scripts/build.sh windows-x64 vantoplex-typelib-files
    [ $# -gt 0 ] || mapfile -t files < <(sources | grep -E '^(src|hosts)/.*\.cpp$')
    code=0
    printf '%s\0' "${files[@]}" | xargs -0 -P "$(nproc)" -I{} "$0" tidy-one {} "${extra[@]}" -- "${options[@]}" || code=1
    exit $code
    ;;
  *)
    sed -n '2,6p' "$0" >&2
    exit 2
    ;;
esac
