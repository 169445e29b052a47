#!/bin/bash
# build.sh PRESET [TARGET...]   configures and builds one preset (windows-x64 or native) under
# $VANTOPLEX_BUILD, by default everything in it. CMake's own presets build into build/ alike.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build="${VANTOPLEX_BUILD:-$root/build}"
preset=$1
shift
tree=$build/$preset
export CCACHE_BASEDIR="$root" CCACHE_NOHASHDIR=1

if [ ! -f "$tree/build.ninja" ]; then
  mkdir -p "$build"
  (cd "$root" && cmake --preset "$preset" -B "$tree") >"$build/configure-$preset.log" 2>&1 ||
    { cat "$build/configure-$preset.log" >&2; exit 1; }
fi
arguments=()
for target in "$@"; do arguments+=(--target "$target"); done
cmake --build "$tree" -j"${VANTOPLEX_JOBS:-$(nproc)}" "${arguments[@]}"
