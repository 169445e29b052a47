#!/bin/bash
# run-wine.sh [-s N] [-t SECONDS] PROGRAM ARGS...
# Runs a Windows program under Wine on a display of its own; its exit code is ours.
#
#   -t SECONDS   ends the program after that time (default 600, exit code 124)
#   -s N         uses prefix number N alone, waiting for it. By default the first prefix that
#                nobody uses is taken, so that parallel runs share neither registry nor input focus.
#
#   VANTOPLEX_BUILD     where the prefixes live (wine-env.sh)
#   VANTOPLEX_DISPLAY   ":77": use this display, which you started (Xvfb :77 -screen 0 1600x1200x24 &),
#                       and leave Wine's server running for a minute. Quick runs save two seconds each.
#                       "own": use DISPLAY as it is, for a person who wants to see the window.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/wine-env.sh"

seconds=600 slot=
while getopts "s:t:" option; do
  case $option in
    s) slot=$OPTARG ;;
    t) seconds=$OPTARG ;;
    *) exit 2 ;;
  esac
done
shift $((OPTIND - 1))
[ $# -gt 0 ] || { sed -n '2,3p' "$0" >&2; exit 2; }

mkdir -p "$VANTOPLEX_BUILD"
if [ -n "$slot" ]; then
  prefix=$(wine_prefix "$slot")
  exec 9>"$prefix.lock"
  flock 9
else
  slot=1
  while prefix=$(wine_prefix "$slot"); do
    exec 9>"$prefix.lock"
    flock -n 9 && break
    slot=$((slot + 1))
    [ "$slot" -gt 16 ] && { echo "run-wine: sixteen programs run already" >&2; exit 1; }
  done
fi
wine_make_prefix "$prefix" 9>&-
wine_use_prefix "$prefix"

case "${VANTOPLEX_DISPLAY:-}" in
  "") wine_start_display 9>&- && trap 'wine_stop_server; wine_stop_display' EXIT ;;
  own) trap wine_stop_server EXIT ;;
  *) export DISPLAY="$VANTOPLEX_DISPLAY" VANTOPLEX_WINE_LINGER="${VANTOPLEX_WINE_LINGER:-60}" ;;
esac
wine_start_server 9>&-

code=0
timeout -k 10 "$seconds" "$wine_program" "$@" 9>&- </dev/null || code=$?
exit "$code"
