#!/bin/bash
# Compares two builds of the DLL as a host sees them: drives both through one fixed script of
# messages and calls (tests/net) and prints the first differences. Exit code 1 if there are any.
#
#   scripts/net.sh OLD.dll [NEW.dll]       NEW is the DLL of this tree, built first, by default
#   scripts/net.sh --base COMMIT [NEW.dll] OLD is built from that commit, in a worktree under build/
#   scripts/net.sh --frames N ...          compares the frames of N random graphs too; --seed S
#                                          before it takes others (default 1)
#   scripts/net.sh --masked [NEW.dll]      compares with tests/net/recorded-*.txt, as a test does
#   scripts/net.sh --record [NEW.dll]      writes these files anew, after a change that is meant
#
# The outputs stay in build/net: old-values.txt and new-values.txt, old-saved.txt and so on. Of a
# frame that differs, vantoplex-net.exe DLL --frames 1 --first GRAPH --pictures FOLDER writes the
# pictures (head of tests/net/main.cpp).
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
source scripts/wine-env.sh
folder=$VANTOPLEX_BUILD/net
program=$VANTOPLEX_BUILD/windows-x64/bin/vantoplex-net.exe
recorded=(values saved frames)
mkdir -p "$folder"

usage() { sed -n '2,15p' "$0" >&2; exit 2; }

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
  scripts/run-wine.sh -t 3600 "$program" "$(wine_path "$dll")" --out "$(wine_path "$folder/$name")" "$@"
}

# compare OLD NEW NAME OPTIONS...
compare() {
  local old=$1 new=$2 name=$3
  shift 3
  echo "== $name"
  drive "$old" "old-$name.txt" "$@" >/dev/null
  drive "$new" "new-$name.txt" "$@" --against "$(wine_path "$folder/old-$name.txt")" || code=1
}

mode=compare old='' frames=0 seed=1 code=0
while [ $# -gt 0 ]; do
  case $1 in
    --base) [ $# -ge 2 ] || usage; build_base "$2"; old=$base; shift 2 ;;
    --frames) frames=${2:?}; shift 2 ;;
    --seed) seed=${2:?}; shift 2 ;;
    --masked | --record) mode=${1#--}; shift ;;
    -*) usage ;;
    *) break ;;
  esac
done
if [ $mode = compare ] && [ -z "$old" ]; then old=${1:-}; shift || usage; fi
new=${1:-}
scripts/build.sh windows-x64 vantoplex-net >&2
[ -n "$new" ] || { scripts/build.sh windows-x64 Vantoplex >&2; new=$VANTOPLEX_BUILD/windows-x64/bin/Vantoplex.dll; }

case $mode in
  record)
    for name in "${recorded[@]}"; do
      drive "$new" "recorded-$name.txt" --recorded "$name"
      cp "$folder/recorded-$name.txt" tests/net/
    done
    ;;
  masked)
    for name in "${recorded[@]}"; do
      drive "$new" "recorded-$name.txt" --recorded "$name" \
        --against "$(wine_path "tests/net/recorded-$name.txt")" || code=1
    done
    ;;
  compare)
    compare "$old" "$new" values
    compare "$old" "$new" saved --saved
    [ "$frames" -eq 0 ] || compare "$old" "$new" frames --frames "$frames" --seed "$seed"
    ;;
esac
exit $code
