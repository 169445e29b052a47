#!/bin/bash
# Lets the platform refuse the DLL one request after the other (tests/failing/main.cpp): memory, GDI
# objects, GDI+ calls, windows, timers, files, what the module needs of the system. Options go to
# the program.
#   scripts/failing.sh --scenario pie --kind gdiplus
# Places in the DLL are named under each finding. The exit code is 0 if there is none.
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
source scripts/wine-env.sh
scripts/build.sh windows-x64 vantoplex-failing Vantoplex >&2
bin=$VANTOPLEX_BUILD/windows-x64/bin
base=$(x86_64-w64-mingw32-objdump -p "$bin/Vantoplex.dll" | awk '/^ImageBase/ { print $2 }')

name_places() {
  local line place word
  while IFS= read -r line; do
    line=${line%$'\r'}
    case $line in
      *dll+*)
        printf '%s\n' "${line%% dll+*}"
        for word in $line; do
          case $word in dll+*) place=${word#dll+} ;; *) continue ;; esac
          printf '    '
          x86_64-w64-mingw32-addr2line -Cfpe "$bin/Vantoplex.dll" \
            "$(printf '0x%x' $((0x$base + 0x$place - 1)))"
        done
        ;;
      *) printf '%s\n' "$line" ;;
    esac
  done
}

scripts/run-wine.sh -t 86400 "$bin/vantoplex-failing.exe" "$(wine_path "$bin/Vantoplex.dll")" "$@" | name_places
