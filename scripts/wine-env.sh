# To be sourced. Wine for the tests and the demo: a prefix of our own, made when it is missing.
#
#   VANTOPLEX_BUILD    folder of everything that is built; default <repository>/build
#   VANTOPLEX_LOCALE, VANTOPLEX_TIME_ZONE   what programs find; default C.UTF-8 and UTC
#   wine_prefix N      path of prefix number N: $VANTOPLEX_BUILD/wine, .../wine-2, ...
#   wine_make_prefix P makes the prefix P unless it is there (about 10 s; a copy of the first: 1 s)
#   wine_use_prefix P  points Wine at it
#   wine_start_server  starts its server and services, away from our own pipes
#   wine_stop_server   ends all that runs in it
#   wine_start_display a display of our own (Xvfb) in DISPLAY; ends with the calling shell
#   wine_path FILE     the Windows form of a Unix path
#
# Use scripts/run-wine.sh for the common case.

vantoplex_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$vantoplex_root/build}"

# The distribution's `wine` is a script that asks for a 32-bit Wine at every start.
wine_program=/usr/lib/wine/wine64
[ -x "$wine_program" ] || wine_program=$(command -v wine64 || command -v wine)
wine_server_program=/usr/lib/wine/wineserver64
[ -x "$wine_server_program" ] || wine_server_program=$(command -v wineserver)

export WINEARCH=win64
export WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=d"
export WINEDEBUG="${WINEDEBUG:--all,err+seh}"
export LC_ALL="${VANTOPLEX_LOCALE:-C.UTF-8}" TZ="${VANTOPLEX_TIME_ZONE:-UTC}"

wine_prefix() {
  if [ "$1" -eq 1 ]; then echo "$VANTOPLEX_BUILD/wine"; else echo "$VANTOPLEX_BUILD/wine-$1"; fi
}

wine_path() {
  local path
  path=$(realpath -m -- "$1")
  printf 'Z:%s\n' "${path//\//\\}"
}

wine_use_prefix() { export WINEPREFIX="$1"; }

# Started apart from anything that is piped: its services inherit the handles of whoever starts
# them, and the reader of an inherited pipe would never see its end.
wine_start_server() {
  "$wine_server_program" -p"${VANTOPLEX_WINE_LINGER:-5}" >/dev/null 2>&1 </dev/null || true
  timeout -k 5 60 "$wine_program" cmd /c exit >/dev/null 2>&1 </dev/null || true
}

wine_stop_server() {
  "$wine_server_program" -k >/dev/null 2>&1 </dev/null || true
  timeout 20 "$wine_server_program" -w >/dev/null 2>&1 </dev/null || true
}

# Xvfb picks a free number itself and prints it, so parallel starts can't collide.
wine_start_display() {
  local number
  coproc wine_xvfb { exec setpriv --pdeathsig TERM Xvfb -displayfd 1 -screen 0 1600x1200x24 \
    -nolisten tcp -noreset 2>/dev/null; }
  wine_display_pid=$wine_xvfb_PID
  read -r -t 30 number <&"${wine_xvfb[0]}" || { echo "wine: no display could be started" >&2; return 1; }
  export DISPLAY=":$number"
  unset XAUTHORITY
}

wine_stop_display() {
  [ -n "${wine_display_pid:-}" ] || return 0
  kill "$wine_display_pid" 2>/dev/null || true
  wait "$wine_display_pid" 2>/dev/null || true
  wine_display_pid=
}

# Files of the prefix that equal Wine's own are replaced by links: 690 MB become 40.
wine_shrink_prefix() {
  local libraries=/usr/lib/x86_64-linux-gnu/wine file source folder
  find "$1/drive_c" -type f -size +4k | while read -r file; do
    for folder in x86_64-windows i386-windows; do
      source=$libraries/$folder/${file##*/}
      if [ -f "$source" ] && cmp -s "$file" "$source"; then ln -sf "$source" "$file"; break; fi
    done
  done
}

wine_write_settings() {
  cat >"$1" <<'REG'
REGEDIT4

; Without a window manager every managed top-level window would stall for two seconds.
[HKEY_CURRENT_USER\Software\Wine\X11 Driver]
"Managed"="N"

; A crash ends the process instead of waiting for a person.
[HKEY_CURRENT_USER\Software\Wine\WineDbg]
"ShowCrashDialog"=dword:00000000

[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]
"Arial"="Liberation Sans"
"Times New Roman"="Liberation Serif"
"Courier New"="Liberation Mono"
"MS Sans Serif"="Tahoma"
"MS Shell Dlg"="Tahoma"
"MS Shell Dlg 2"="Tahoma"
"System"="Tahoma"
"SimSun"="WenQuanYi Micro Hei"

; Chinese glyphs for the texts of the dialogs.
[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows NT\CurrentVersion\FontLink\SystemLink]
"Tahoma"=hex(7):77,71,79,2d,6d,69,63,72,6f,68,65,69,2e,74,74,63,2c,57,65,6e,51,75,61,6e,59,69,20,4d,69,63,72,6f,20,48,65,69,00,00
"Liberation Sans"=hex(7):77,71,79,2d,6d,69,63,72,6f,68,65,69,2e,74,74,63,2c,57,65,6e,51,75,61,6e,59,69,20,4d,69,63,72,6f,20,48,65,69,00,00
REG
}

wine_build_prefix() (
  rm -rf "$1.new"
  mkdir -p "$1.new"
  wine_use_prefix "$1.new"
  wine_start_display
  trap 'wine_stop_server; wine_stop_display' EXIT
  timeout -k 5 180 "$wine_program" wineboot -i >/dev/null 2>&1 </dev/null
  cp /usr/share/wine/fonts/tahoma.ttf /usr/share/wine/fonts/marlett.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
  wine_write_settings "$WINEPREFIX/drive_c/settings.reg"
  timeout -k 5 60 "$wine_program" regedit /S 'C:\settings.reg' >/dev/null 2>&1 </dev/null
  wine_stop_server # the font settings are read at the start of the server
  wine_shrink_prefix "$WINEPREFIX"
)

wine_make_prefix() {
  [ -f "$1/.ready" ] && return 0
  local first
  first=$(wine_prefix 1)
  mkdir -p "$VANTOPLEX_BUILD"
  (
    flock 8
    [ -f "$1/.ready" ] && exit 0
    if [ ! -d "$first.master" ]; then
      wine_build_prefix "$first.master" 8>&-
      [ -f "$first.master.new/user.reg" ] || { echo "wine: the prefix could not be made" >&2; exit 1; }
      mv "$first.master.new" "$first.master"
    fi
    rm -rf "$1"
    cp -a --reflink=auto "$first.master" "$1"
    touch "$1/.ready"
  ) 8>"$VANTOPLEX_BUILD/wine-making.lock"
}
