#!/bin/bash
# Prints a graph through a real queue of CUPS (a server of our own, which writes into a file) and turns
# the pages into pictures, for a person to look at: build/printer/*.png. Portrait, landscape, 600 dots an
# inch, black and white, by the platform's dialog; a job that is cancelled, and a queue that is gone.
# Needs root and the packages cups, cups-client and ghostscript; says so and ends with 77 without them.
#   scripts/printer.sh --short    one page and a cancelled job, with what is built: a test
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
source scripts/wine-env.sh
for program in /usr/sbin/cupsd /usr/sbin/lpadmin /usr/bin/gs; do
  [ -x "$program" ] || { echo "skipped: $program is missing (apt-get install cups cups-client ghostscript)"; exit 77; }
done
[ "$(id -u)" -eq 0 ] || { echo "skipped: cupsd needs root"; exit 77; }
short=
if [ "${1:-}" = --short ]; then
  short=1
else
  scripts/build.sh windows-x64 vantoplex-printing Vantoplex >&2
fi
bin=$VANTOPLEX_BUILD/windows-x64/bin
pictures=$VANTOPLEX_BUILD/printer
mkdir -p "$pictures"
work=$(mktemp -d)
chmod 755 "$work"
mkdir "$work"/{server,spool,cache,state,out}
chown lp:lp "$work"/{server,spool,cache,state,out}

cat >"$work/cupsd.conf" <<CONF
Listen $work/socket
DefaultAuthType None
Browsing Off
<Location />
  Allow all
</Location>
<Policy default>
  <Limit All>
    Allow all
  </Limit>
</Policy>
CONF
cat >"$work/files.conf" <<CONF
FileDevice Yes
ServerRoot $work/server
RequestRoot $work/spool
CacheDir $work/cache
StateDir $work/state
ErrorLog $work/error.log
AccessLog $work/access.log
PageLog $work/page.log
User lp
Group lp
CONF
/usr/sbin/cupsd -f -c "$work/cupsd.conf" -s "$work/files.conf" &
server=$!
trap 'kill $server 2>/dev/null || true; wait $server 2>/dev/null || true; rm -rf "$work"' EXIT
export CUPS_SERVER=$work/socket
for _ in $(seq 50); do lpstat -r 2>/dev/null | grep -q 'is running' && break; sleep 0.2; done

add_queue() { # NAME DRIVER-OPTION...
  /usr/sbin/lpadmin -p "$1" -E -v "file://$work/out/page.ps" "${@:2}" 2>/dev/null
}
add_queue colour -m drv:///sample.drv/generic.ppd
/usr/sbin/lpadmin -d colour
sed 's/^\*ColorDevice: True/*ColorDevice: False/; s/^\*DefaultColorSpace: .*/*DefaultColorSpace: Gray/' \
  "$work/server/ppd/colour.ppd" >"$work/fine.ppd"
cat >>"$work/fine.ppd" <<'PPD'
*OpenUI *Resolution/Resolution: PickOne
*OrderDependency: 10 AnySetup *Resolution
*DefaultResolution: 600dpi
*Resolution 600dpi/600 DPI: "<</HWResolution[600 600]>>setpagedevice"
*CloseUI: *Resolution
PPD
add_queue fine -P "$work/fine.ppd"

code=0
print() { # NAME EXPECTED-CODE OPTION...
  local name=$1 expected=$2 result=0 page=$work/out/page.ps
  rm -f "$page"
  scripts/run-wine.sh -t 120 "$bin/vantoplex-printing.exe" "$(wine_path "$bin/Vantoplex.dll")" "${@:3}" || result=$?
  if [ "$result" -ne "$expected" ]; then
    echo "$name: ended with $result instead of $expected" >&2
    code=1
  fi
  [ "$expected" -eq 0 ] && [ "$name" != cancelled ] || return 0
  for _ in $(seq 50); do [ -z "$(lpstat -o 2>/dev/null)" ] && [ -s "$page" ] && break; sleep 0.2; done
  gs -q -dNOPAUSE -dBATCH -sDEVICE=png16m -r70 -sOutputFile="$pictures/$name.png" "$page" || code=1
}
print portrait 0
print cancelled 0 --cancel
[ -z "$short" ] || exit $code
print landscape 0 --landscape
print fine 0 --printer fine --dpi 600 --mono
print dialog 0 --dialog
print gone 1 --printer nobody # no job, and the graph lives on
ls "$pictures"
exit $code
