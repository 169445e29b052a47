#!/bin/bash
# places.sh CASE...|all [OPTIONS]   the Windows tests where and as the test command doesn't run them
#   order      in random order; the seed is printed, and taken from an option --order
#   alone      a process for each test (an hour; --every 20 for a sample)
#   repeat     ten times in a row
#   slow       on a display that stands still nine tenths of the time
#   path       in a folder, a profile and a temporary folder with blanks and Chinese letters
#   berlin     German texts, decimal commas, a time zone with daylight saving
#   new-york   Chinese texts, a time zone with daylight saving on the other side of the ocean
# Several may be had at once: path+new-york+order. The build is the test command's; options go to
# tests/support/suite.py. Each run ends with a line that sums it up; the exit code is 0 only if nothing
# failed.
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
source scripts/wine-env.sh
folder=$VANTOPLEX_BUILD/windows-x64/bin
places=$VANTOPLEX_BUILD/places
options=()
prefixes= # of its own where Wine keeps the names of profile and locale in them

locale_of() { # LOCALE TIME ZONE
  scripts/setup.sh --all
  export LOCPATH=$places/locales VANTOPLEX_LOCALE=$1.UTF-8 VANTOPLEX_TIME_ZONE=$2
  mkdir -p "$LOCPATH"
  [ -d "$LOCPATH/$1.UTF-8" ] || localedef -i "$1" -f UTF-8 "$LOCPATH/$1.UTF-8"
  prefixes=${prefixes:-$places/$1}
}

# With a locale in which these letters have an 8-bit form: GoogleTest's own files need one.
own_path() {
  export USER='王 小明' WINEUSERNAME='王 小明'
  prefixes="$places/A place 图表 with blanks"
  [ -n "${VANTOPLEX_LOCALE:-}" ] || locale_of zh_CN UTC
  mkdir -p "$prefixes"
  cp -u "$folder"/*.exe "$folder"/*.dll "$prefixes"
  folder=$prefixes
}

# The display stands still for 45 of 50 milliseconds.
brake() { # PROCESS
  while kill -STOP "$1"; do
    sleep 0.045
    kill -CONT "$1"
    sleep 0.005
  done 2>/dev/null
}

own_display() {
  wine_start_display
  export VANTOPLEX_DISPLAY=$DISPLAY
  trap 'kill ${braking:-} 2>/dev/null; kill -CONT "$wine_display_pid"; wine_stop_display' EXIT
}

prepare() { # CASE
  case $1 in
    order) options+=(--order "$((RANDOM % 10000))") ;;
    alone) own_display; options+=(--alone) ;;
    repeat) options+=(--repeat 10) ;;
    slow) own_display; brake "$wine_display_pid" & braking=$! ;;
    path) own_path ;;
    berlin) locale_of de_DE Europe/Berlin ;;
    new-york) locale_of zh_CN America/New_York ;;
    *) echo "places: no such case: $1" >&2; exit 2 ;;
  esac
}

run_cases() ( # CASE[+CASE...] OPTIONS
  for one in ${1//+/ }; do prepare "$one"; done
  if [ -n "$prefixes" ]; then mkdir -p "$prefixes"; export VANTOPLEX_BUILD=$prefixes; fi
  python3 tests/support/suite.py "$folder" --log "$places/$1.log" "${options[@]}" "${@:2}"
)

[ $# -gt 0 ] || { sed -n '2,12p' "$0" >&2; exit 2; }
runs=("$1")
[ "$1" != all ] || runs=(order alone repeat slow path berlin new-york)
shift
scripts/setup.sh
mkdir -p "$places"
scripts/build.sh windows-x64 Vantoplex vantoplex-viewer vantoplex-tests >"$places/build.log" ||
  { tail -30 "$places/build.log"; exit 1; }
code=0
for run in "${runs[@]}"; do
  echo "== $run"
  run_cases "$run" "$@" || code=1
done
exit $code
