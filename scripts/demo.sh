#!/bin/bash
# Builds the viewer and draws the pictures of docs/gallery.md into $VANTOPLEX_BUILD/demo, also on a
# bare Debian 12 machine (root, or sudo). Where a display exists, the window opens too; --no-window
# keeps it shut.
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
echo "demo: looks for missing packages"
scripts/setup.sh
echo "demo: builds the DLL and the viewer in $VANTOPLEX_BUILD (some 250 files; minutes at first, seconds later)"
scripts/build.sh windows-x64 Vantoplex vantoplex-viewer

viewer=$VANTOPLEX_BUILD/windows-x64/bin/vantoplex-viewer.exe
demo=$(realpath -m "$VANTOPLEX_BUILD/demo")
data=$PWD/docs/data
run=$PWD/scripts/run-wine.sh
mkdir -p "$demo"
echo "demo: makes a Wine prefix if there is none, then draws $demo/*.png"
rm -f "$demo"/*.png

need() { # PICTURES...
  local picture
  for picture; do
    [ -s "$demo/$picture" ] || { echo "demo: $demo/$picture was not drawn" >&2; exit 1; }
  done
}

draw() { # PICTURE CSV OPTIONS...
  local picture=$1 csv=$2
  shift 2
  "$run" -t 120 "$viewer" "$data/$csv" --png "$demo/$picture" "$@" >/dev/null
  need "$picture"
  echo "$demo/$picture"
}

electricity() { # PICTURE OPTIONS...
  local picture=$1
  shift
  draw "$picture" iowa-electricity.csv --x year "$@"
}

# The XY graph.
draw co2.png co2-concentration.csv --x Date --y CO2 --y "adjusted CO2" --size 1000x600
draw weather.png seattle-weather.csv --x date --y temp_max --y2 precipitation --size 1000x600
electricity electricity.png --y net_generation --group source --size 1000x600

# The XY graph under a person's hands.
(cd "$demo" && "$run" -t 120 "$viewer" "$data/co2-concentration.csv" --x Date --y CO2 \
  --size 1000x640 --script "$data/../session.txt" >/dev/null)
need session-{1-band,2-zoomed-twice,3-back,4-panned,5-cursor,6-measures,7-label-edited,8-point-dragged,9-analysis}.png
ls "$demo"/session-*.png

# Its dialogs.
(cd "$demo" && "$run" -t 120 "$viewer" "$data/co2-concentration.csv" --x Date --y CO2 \
  --size 1000x640 --script "$data/../dialogs.txt" >/dev/null)
need dialog-{1-chart,2-axis,3-curve,4-colours,5-trend,6-average,7-label,8-done}.png
ls "$demo"/dialog-*.png

# The business chart, still and at a chosen moment of its animations.
business=(--group source --title "Iowa electricity" --size 1000x500)
year=(--subtitle "thousand MWh a year")
share=(--subtitle "shares of 2017" --pick 2017)
electricity bar.png "${business[@]}" "${year[@]}" --chart bar
electricity bar-growing.png "${business[@]}" "${year[@]}" --chart bar --animation grow --tick 60
electricity bar-groups.png "${business[@]}" "${year[@]}" --chart bar --animation grow-groups --tick 480 --gradient
electricity bar-fading.png "${business[@]}" "${year[@]}" --chart bar --animation fade-series --tick 130
electricity line.png "${business[@]}" "${year[@]}" --chart line
electricity line-drawing.png "${business[@]}" "${year[@]}" --chart line --animation draw --tick 48
electricity line-series.png "${business[@]}" "${year[@]}" --chart line --animation draw-series --tick 65 --gradient
electricity pie.png "${business[@]}" "${share[@]}" --chart pie
electricity pie-sweeping.png "${business[@]}" "${share[@]}" --chart pie --animation sweep --tick 70
electricity pie-fading.png "${business[@]}" "${share[@]}" --chart pie --animation fade --tick 80

# The 3D pie.
pie=(--chart pie3d --size 1000x500)
in2017=(--group source --pick 2017 --title "Iowa electricity 2017, thousand MWh")
electricity pie3d.png "${pie[@]}" "${in2017[@]}" --tilt 55 --depth 70 --start 20 --gradient
electricity pie3d-sorted.png "${pie[@]}" "${in2017[@]}" --tilt 75 --sort ascending --start 200
electricity pie3d-flat.png "${pie[@]}" "${in2017[@]}" --style flat --sort descending
electricity pie3d-doughnut.png "${pie[@]}" "${in2017[@]}" --style doughnut --gradient
electricity pie3d-years.png "${pie[@]}" --y net_generation --title "Iowa electricity by year" --tilt 40 --sort descending

if [ -n "${DISPLAY:-}" ] && [ "${1:-}" != --no-window ]; then
  echo "Close the window to end."
  VANTOPLEX_DISPLAY=own "$run" -t 86400 "$viewer" "$data/seattle-weather.csv" --y temp_max --y2 precipitation
fi
