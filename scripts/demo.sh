#!/bin/bash
# Builds the viewer and draws the sample data into $VANTOPLEX_BUILD/demo, also on a bare Debian 12
# machine (root, or sudo). Where a display exists, the window opens too; --no-window keeps it shut.
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
scripts/setup.sh
scripts/build.sh windows-x64 Vantoplex vantoplex-viewer

viewer=$VANTOPLEX_BUILD/windows-x64/bin/vantoplex-viewer.exe
demo=$VANTOPLEX_BUILD/demo
mkdir -p "$demo"

draw() { # PICTURE CSV OPTIONS...
  local picture=$demo/$1 data=docs/data/$2
  shift 2
  rm -f "$picture"
  scripts/run-wine.sh -t 120 "$viewer" "$data" --png "$picture" --size 1000x600 "$@"
  [ -s "$picture" ] || { echo "demo: $picture was not drawn" >&2; exit 1; }
}

draw co2.png co2-concentration.csv --x Date --y CO2 --y "adjusted CO2"
draw weather.png seattle-weather.csv --x date --y temp_max --y2 precipitation
draw electricity.png iowa-electricity.csv --x year --y net_generation --group source
echo "Pictures: $demo/co2.png, $demo/weather.png, $demo/electricity.png"

if [ -n "${DISPLAY:-}" ] && [ "${1:-}" != --no-window ]; then
  echo "Close the window to end."
  VANTOPLEX_DISPLAY=own scripts/run-wine.sh -t 86400 "$viewer" docs/data/seattle-weather.csv --y temp_max --y2 precipitation
fi
