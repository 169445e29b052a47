#!/bin/bash
# languages.sh [LANGUAGE...]   builds and runs the samples of hosts/samples, as far as this platform can:
#   c, rust, pascal   built, run under Wine, their picture looked at
#   jscript           run by Wine's script host
#   csharp, python    compiled and parsed, not run: there is no .NET and no Python for Windows here
# By default all. What a language needs beyond scripts/setup.sh is installed by apt (root, or sudo).
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
out=$VANTOPLEX_BUILD/languages
bin=$VANTOPLEX_BUILD/windows-x64/bin
slot=9 # a prefix of its own: the server is registered there
mkdir -p "$out"
[ -f "$bin/Vantoplex.dll" ] || scripts/build.sh windows-x64 Vantoplex

need() { # PACKAGES...
  local package missing=()
  for package; do dpkg -s "$package" >/dev/null 2>&1 || missing+=("$package"); done
  [ ${#missing[@]} -eq 0 ] && return 0
  local become=()
  [ "$(id -u)" -eq 0 ] || become=(sudo)
  "${become[@]}" apt-get update -q >/dev/null
  "${become[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}" >/dev/null
}

wine() { scripts/run-wine.sh -s $slot -t 120 "$@"; }

# Runs a sample and looks for its curves' colours in the BMP file that it writes.
run_sample() { # SAMPLE LANGUAGE COLOURS, each blue, green, red in hexadecimal digits
  local picture=$out/$1-$2.bmp
  rm -f "$picture"
  wine "$out/$1-$2.exe" "Z:${picture//\//\\}"
  python3 - "$picture" "${@:3}" <<'PYTHON'
import struct, sys
data = open(sys.argv[1], "rb").read()
width, height, _, bits = struct.unpack_from("<iiHH", data, 18)
step = bits // 8
pixels = data[54:54 + width * abs(height) * step]
for colour in sys.argv[2:]:
    count = sum(pixels[i:i + 3] == bytes.fromhex(colour) for i in range(0, len(pixels), step))
    if count < 300:
        sys.exit(f"{sys.argv[1]} shows no curve of {colour}: {count} pixels")
PYTHON
}

run_samples() { # LANGUAGE
  run_sample sine "$1" 000080
  run_sample weather "$1" 2030c0 b05020
  echo "$1: built, run, drew their curves"
}

sample_c() {
  local name
  for name in sine weather; do
    x86_64-w64-mingw32-gcc-posix -std=c11 -Wall -Wextra -Werror -municode -mwindows -I kit/languages "hosts/samples/$name.c" \
      -o "$out/$name-c.exe" -lole32 -loleaut32
  done
  run_samples c
}

sample_rust() {
  need rustc libstd-rust-dev-windows
  local name
  for name in sine weather; do
    /usr/bin/rustc -D warnings --target x86_64-pc-windows-gnu -C linker=x86_64-w64-mingw32-gcc-posix \
      "hosts/samples/$name.rs" -o "$out/$name-rust.exe"
  done
  run_samples rust
}

# The distribution has units for Linux alone; those for Windows are compiled from its sources in seconds.
sample_pascal() {
  need fp-compiler fpc-source
  local source units=$out/pascal-units
  source=$(echo /usr/share/fpcsrc/*/)
  local rtl=${source}rtl packages=${source}packages
  local options=(-n -Twin64 -Xs -v0e "-FU$units" "-Fi$rtl/inc" "-Fi$rtl/x86_64" "-Fi$rtl/win" "-Fi$rtl/win64"
    "-Fi$rtl/objpas" "-Fi$rtl/objpas/sysutils" "-Fi$rtl/objpas/classes" "-Fi$rtl/win/wininc" "-Fi$packages/rtl-objpas/src/inc")
  local folder sources=()
  for folder in win64 inc x86_64 win objpas objpas/sysutils objpas/classes objpas/types charmaps common; do
    sources+=("-Fu$rtl/$folder")
  done
  rm -rf "$units"
  mkdir -p "$units"
  {
    ppcx64 "${options[@]}" "${sources[@]}" -Us -Sg "$rtl/win64/system.pp"
    ppcx64 "${options[@]}" "${sources[@]}" "$rtl/inc/uuchar.pp"
    ppcx64 "${options[@]}" "${sources[@]}" "$rtl/objpas/objpas.pp"
    ppcx64 "${options[@]}" "${sources[@]}" "$rtl/win64/buildrtl.pp"
    options+=("-Fu$units" "-Fu$packages/winunits-base/src")
    for folder in inc win common; do options+=("-Fu$packages/rtl-objpas/src/$folder"); done
    options+=("-Fukit/languages")
    ppcx64 "${options[@]}" "-o$out/sine-pascal.exe" hosts/samples/Sine.pas
    ppcx64 "${options[@]}" "-o$out/weather-pascal.exe" hosts/samples/Weather.pas
  } >"$out/pascal.log" 2>&1 || { tail -5 "$out/pascal.log" >&2; return 1; }
  run_samples pascal
}

sample_csharp() {
  need mono-mcs libmono-system-windows-forms4.0-cil
  mcs -warnaserror -platform:x64 -out:"$out/sine-csharp.exe" hosts/samples/Sine.cs kit/languages/Vantoplex.cs
  mcs -warnaserror -platform:x64 -r:System.Windows.Forms -r:System.Drawing -out:"$out/weather-csharp.exe" \
    hosts/samples/Weather.cs kit/languages/Vantoplex.cs
  echo "csharp: compiled, not run"
}

sample_python() {
  python3 -c 'import ast, sys; [ast.parse(open(name).read(), name) for name in sys.argv[1:]]' \
    hosts/samples/*.py kit/languages/*.py
  PYTHONPATH=kit/languages PYTHONDONTWRITEBYTECODE=1 python3 -c 'import vantoplex, vantoplex_constants
assert vantoplex.ISGraph.METHODS["SetData"][0] == 7 and vantoplex_constants.VpxCommand.VPX_COMMAND_CURSOR == 40011'
  echo "python: parsed, not run"
}

sample_jscript() {
  local said
  wine cscript //nologo "Z:${PWD//\//\\}\\hosts\\samples\\classes.js" >"$out/jscript.txt"
  said=$(tr -d '\r' <"$out/jscript.txt")
  [[ $said == *"Vantoplex.SGraph object"*called ]] || { echo "jscript said: $said" >&2; return 1; }
  echo "jscript: run"
}

languages=("$@")
[ $# -gt 0 ] || languages=(c rust pascal csharp python jscript)
wine regsvr32 /s "$bin/Vantoplex.dll"
trap 'wine regsvr32 /s /u "$bin/Vantoplex.dll"' EXIT
for language in "${languages[@]}"; do
  declare -F "sample_$language" >/dev/null || { echo "languages: there is no sample in $language" >&2; exit 2; }
  "sample_$language"
done
