#!/bin/bash
# package-test.sh BUILD HOST.exe CASE
# Packages what is built in BUILD and uses it as a stranger would, in a Wine prefix of its own.
#   reproducible   two runs of the packaging, and of the type library's making, give the same bytes
#   installs       a chart by the zip's manifests alone; and by ProgID after a silent installation for
#                  the machine and for one user, with the keys that the DLL registers itself; and
#                  afterwards neither file nor key is left
#   refusals       what is missing is named in one sentence
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
build=$1 host=$2 case=$3
source "$root/scripts/wine-env.sh"
work=$build/package-test/$case
rm -rf "$work"
mkdir -p "$work"
trap 'rm -rf "$work"' EXIT

fail() { echo "package: $*" >&2; exit 1; }

package() { python3 "$root/packaging/package.py" "$build" "$1" >/dev/null; }

start_wine() {
  local first
  first=$(wine_prefix 1)
  wine_make_prefix "$first"
  cp -a --reflink=auto "$first.master" "$work/prefix"
  wine_use_prefix "$work/prefix"
  trap 'wine_stop_server; wine_stop_display; rm -rf "$work"' EXIT
  wine_start_display
  VANTOPLEX_WINE_LINGER=60 wine_start_server
}

run() { timeout -k 5 120 "$wine_program" "$@" >/dev/null 2>&1 </dev/null; }

# The exit code of the host: 0 for a chart, 2 for no class.
host_code() { # PROGRAM OPTION
  local code=0
  run "$@" || code=$?
  echo $code
}

files() { (cd "$work/prefix/drive_c" && find . -not -path './users/*/Temp/*' -not -path './windows/temp/*' | sort); }

# The server writes the registry down when it ends.
write_registry() {
  wine_stop_server
  VANTOPLEX_WINE_LINGER=60 wine_start_server
}

# What of the product the registry holds: its name, its classes, interfaces and library.
ids=$(grep -oiE '\b[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}\b' "$root/src/resources/Vantoplex.idl" | sort -u)
keys_in_files() { grep -iF -e "$ids" -e 'vantoplex.' -e 'Uninstall\\Vantoplex' "$work/prefix"/*.reg || true; }

wait_for_end_of() { # FILE, which a program of its own deletes after the uninstaller has ended
  local tries
  for tries in $(seq 100); do
    [ -e "$1" ] || return 0
    sleep 0.1
  done
}

# Keys as one root holds them, without what this platform adds for 32-bit programs.
classes_in() {
  grep -oE '^\[Software\\\\Classes\\\\.*\]' "$1" | grep -iF -e "$ids" -e '\\Vantoplex.' |
    grep -v -e Wow6432Node -e 'ProxyStubClsid\]' | tr A-Z a-z | sort
}

check_installation() { # OPTION ROOT_OF_FILES REGISTRY_FILE
  local option=$1 folder=$work/prefix/drive_c/$2 hive=$3
  run "$(echo "$work"/out/*-setup.exe)" /S "$option" || fail "the installer ended with $?"
  [ -f "$folder/bin/Vantoplex.dll" ] || fail "no DLL in $folder"
  (cd "$folder" && sha256sum --quiet -c SHA256SUMS) || fail "an installed file is not the packed one"
  [ "$(host_code "$host" "$option")" = 0 ] || fail "no chart by ProgID"
  files | grep 'Start Menu.*Vantoplex viewer.lnk' >/dev/null || fail "no entry in the start menu"
  write_registry
  [ -z "$(keys_in_files | grep -v "/$hive:")" ] || fail "keys outside of $hive: $(keys_in_files | grep -v "/$hive:" | head -3)"
  diff "$work/by-dll" <(classes_in "$work/prefix/$hive") || fail "other keys than the DLL registers itself"

  echo kept >"$folder/docs/own.txt"
  run "$folder/uninstall.exe" /S "$option" || fail "the uninstaller ended with $?"
  wait_for_end_of "$folder/uninstall.exe"
  [ "$(cd "$folder" && find . -type f)" = ./docs/own.txt ] || fail "files are left, or a stranger's was deleted"
  rm -r "$folder"
  check_clean
}

check_clean() {
  [ "$(host_code "$host")" = 2 ] || fail "a class is left"
  write_registry
  [ -z "$(keys_in_files)" ] || fail "keys are left: $(keys_in_files | head -3)"
  [ "$(files)" = "$before" ] || fail "files are left: $(diff <(echo "$before") <(files) || true)"
}

register_by_dll() {
  local dll="$work/unpacked/bin/Vantoplex.dll"
  run regsvr32 /s "$dll" || fail "regsvr32 ended with $?"
  write_registry
  classes_in "$work/prefix/system.reg" >"$work/by-dll"
  [ "$(wc -l <"$work/by-dll")" -gt 100 ] || fail "the DLL registered little: $(cat "$work/by-dll")"
  run regsvr32 /s /u "$dll" || fail "regsvr32 /u ended with $?"
  check_clean
}

check_installs() {
  package "$work/out"
  unpack
  start_wine
  mkdir -p "$work/prefix/drive_c/users/$(id -un)/AppData/Local/Programs" # the system's own, made on demand
  before=$(files)
  write_registry
  [ -z "$(keys_in_files)" ] || fail "the prefix isn't fresh"
  check_unregistered
  register_by_dll
  check_installation /AllUsers "Program Files/Vantoplex" system.reg
  check_installation /CurrentUser "users/$(id -un)/AppData/Local/Programs/Vantoplex" user.reg
}

check_reproducible() {
  package "$work/one"
  sleep 1.1
  package "$work/two"
  cmp "$work/one/SHA256SUMS" "$work/two/SHA256SUMS"
  (cd "$work/two" && sha256sum --quiet -c SHA256SUMS)
  local idl=$root/src/resources
  for time in one two; do
    x86_64-w64-mingw32-widl --win64 --nostdinc -I "$idl/idl" -L "$build/typelib" -t -o "$work/$time.tlb" "$idl/Vantoplex.idl"
    python3 "$root/kit/make.py" typelib "$work/$time.tlb"
    sleep 1.1
  done
  cmp "$work/one.tlb" "$work/two.tlb"
  cmp "$work/one.tlb" "$build/typelib/Vantoplex.tlb"
  # The programs themselves hold no time of their linking.
  for program in Vantoplex.dll vantoplex-viewer.exe; do
    [[ $(x86_64-w64-mingw32-objdump -p "$build/bin/$program") == *"Time/Date"$'\t\t'"Thu Jan  1 00:00:00 1970"* ]] || fail "$program holds a time"
  done
}

unpack() {
  (cd "$work" && python3 -m zipfile -e "$work"/out/*-windows-x64.zip "$work/zip" && mv zip/* unpacked)
  (cd "$work/unpacked" && sha256sum --quiet -c SHA256SUMS) || fail "a file of the zip is damaged"
}

check_unregistered() {
  local bin=$work/unpacked/bin
  cp "$host" "$bin/program.exe"
  [ "$(host_code "$bin/program.exe")" = 2 ] || fail "a class without a manifest"
  cp "$host" "$bin/other.exe" # the loader keeps what it knows of a program
  cp "$bin/client.manifest" "$bin/other.exe.manifest"
  [ "$(host_code "$bin/other.exe")" = 0 ] || fail "no chart by the manifests"
}

check_refusals() {
  local said
  said=$(python3 "$root/packaging/package.py" "$work" "$work/out" 2>&1) && fail "a folder without a build was packaged"
  [[ $said == *"run scripts/build.sh windows-x64"* ]] || fail "said: $said"
  mkdir -p "$work/empty/version"
  cp "$build/version/VersionNumbers.h" "$work/empty/version"
  said=$(python3 "$root/packaging/package.py" "$work/empty" "$work/out" 2>&1) && fail "a build without a DLL was packaged"
  [[ $said == *"Vantoplex.dll is missing: build it first."* ]] || fail "said: $said"
}

case $case in
  reproducible | installs | refusals) "check_$case" ;;
  *) sed -n '2,8p' "$0" >&2; exit 2 ;;
esac
echo "package $case: as it should be"
