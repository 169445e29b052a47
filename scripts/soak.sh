#!/bin/bash
# Eight hours of ticks, cursor moves, zooms, live data and pie changes as fast as they are handled
# (tests/soak/main.cpp), and a table of what the process holds and how long a frame takes. Options go to
# the program: scripts/soak.sh --hours 24. The exit code is 1 if something has grown.
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
source scripts/wine-env.sh
scripts/build.sh windows-x64 vantoplex-soak Vantoplex >&2
bin=$VANTOPLEX_BUILD/windows-x64/bin
scripts/run-wine.sh -t 86400 "$bin/vantoplex-soak.exe" "$(wine_path "$bin/Vantoplex.dll")" "$@"
