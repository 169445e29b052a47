#!/bin/bash
# Compares two builds of the DLL as a host sees them: drives both through one fixed script of
# messages and calls (tests/net) and prints the first differences. Exit code 1 if there are any.
#
#   scripts/net.sh OLD.dll [NEW.dll]       NEW is the DLL of this tree, built first, by default
#   scripts/net.sh --base COMMIT [NEW.dll] OLD is built from that commit, in a worktree under build/
#   scripts/net.sh --masked [NEW.dll]      compares with the recorded run of the tests
#   scripts/net.sh --record [NEW.dll]      writes that run anew, after a change that is meant
#
# The outputs stay in build/net (old-values.txt, new-values.txt, old-saved.txt, new-saved.txt).
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
source scripts/wine-env.sh
folder=$VANTOPLEX_BUILD/net
program=$VANTOPLEX_BUILD/windows-x64/bin/vantoplex-net.exe
recorded=tests/net/recorded.txt
mkdir -p "$folder"

usage() { sed -n '2,12p' "$0" >&2; exit 2; }

build_base() {
  local commit tree
  commit=$(git rev-parse --short "$1^{commit}")
  base=$folder/base-$commit.dll
  [ -f "$base" ] && return
  tree=$folder/base-$commit
  git worktree add --force --detach "$tree" "$commit" >&2
  VANTOPLEX_BUILD=$tree/build "$tree/scripts/build.sh" windows-x64 Vantoplex >&2
  cp "$tree/build/windows-x64/bin/Vantoplex.dll" "$base"
  git worktree remove --force "$tree"
}

# drive DLL NAME OPTIONS...
drive() {
  local dll=$1 name=$2
  shift 2
  scripts/run-wine.sh -t 300 "$program" "$(wine_path "$dll")" --out "$(wine_path "$folder/$name")" "$@"
}

mode=compare old=
case "${1:-}" in
  --base) [ $# -ge 2 ] || usage; build_base "$2"; old=$base; shift 2 ;;
  --masked | --record) mode=${1#--}; shift ;;
  "" | -*) usage ;;
  *) old=$1; shift ;;
esac
new=${1:-}
scripts/build.sh windows-x64 vantoplex-net >&2
[ -n "$new" ] || { scripts/build.sh windows-x64 Vantoplex >&2; new=$VANTOPLEX_BUILD/windows-x64/bin/Vantoplex.dll; }

case $mode in
  record) drive "$new" recorded.txt --masked && tr -d '\r' <"$folder/recorded.txt" >"$recorded" ;;
  masked) drive "$new" new.txt --masked --against "$(wine_path "$recorded")" ;;
  compare)
    code=0
    for pass in values saved; do
      options=()
      [ $pass = saved ] && options=(--saved)
      drive "$old" old-$pass.txt "${options[@]}" >/dev/null
      echo "== $pass"
      drive "$new" new-$pass.txt "${options[@]}" --against "$(wine_path "$folder/old-$pass.txt")" || code=1
    done
    exit $code
    ;;
esac
