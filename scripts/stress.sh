#!/bin/bash
# Lets random hosts drive the DLL (tests/stress/main.cpp): 500 seeds of 1,000 steps by default, each
# seed in a process of its own. Options go to the program; --seeds 1000000 runs for days.
#   scripts/stress.sh --first 42 --seeds 1 --steps 5000
# The first seed that faults, ends or hangs is shrunk to its shortest failing steps; places in the
# DLL are named. --failures 1000 goes on instead, with the last lines of each that failed. The exit
# code is 0 if all came to their end.
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
source scripts/wine-env.sh
scripts/build.sh windows-x64 vantoplex-stress Vantoplex >&2
bin=$VANTOPLEX_BUILD/windows-x64/bin
code=0
output=$(mktemp)
trap 'rm -f "$output"' EXIT
scripts/run-wine.sh -t 864000 "$bin/vantoplex-stress.exe" "$(wine_path "$bin/Vantoplex.dll")" \
  --seeds 500 "$@" | tee "$output" || code=$?
base=$(x86_64-w64-mingw32-objdump -p "$bin/Vantoplex.dll" | awk '/^ImageBase/ { print $2 }')
grep -oE 'dll\+[0-9a-f]+' "$output" | while read -r place; do
  printf '%s ' "$place"
  x86_64-w64-mingw32-addr2line -Cfpe "$bin/Vantoplex.dll" \
    "$(printf '0x%x' $((0x$base + 0x${place#dll+} - 1)))"
done || true
exit $code
