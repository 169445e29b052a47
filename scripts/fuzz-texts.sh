#!/bin/bash
# Lets libFuzzer write number formats, date formats and registrar scripts for the parsers, natively
# with address and undefined-behaviour checks: twenty minutes each, or as many seconds as named.
#   scripts/fuzz-texts.sh 60
# What led into new code is kept in build/fuzz-texts/<parser>/ and tried first by the next run; an
# input that fails stays beside it. tests/fuzz/texts/corpus/ has the shortest inputs that reach all
# that was reached before, one a line in base64. --keep writes them anew after the runs. Needs clang
# (apt-get install clang).
set -euo pipefail
cd "$(dirname "$0")/.."
build=${VANTOPLEX_BUILD:-$PWD/build}/fuzz-texts
keep=
[ "${1:-}" != --keep ] || { keep=1; shift; }
seconds=${1:-1200}
source=tests/fuzz/texts
command -v clang++ >/dev/null || { echo "fuzz-texts.sh needs clang++: apt-get install clang" >&2; exit 2; }

unpack() { # FILE FOLDER
  python3 - "$@" <<'PYTHON'
import base64, hashlib, pathlib, sys
for line in pathlib.Path(sys.argv[1]).read_text().split():
    data = base64.b64decode(line)
    (pathlib.Path(sys.argv[2]) / hashlib.sha1(data).hexdigest()).write_bytes(data)
PYTHON
}

pack() { # FOLDER FILE
  python3 - "$@" <<'PYTHON'
import base64, pathlib, sys
inputs = sorted((path.read_bytes() for path in pathlib.Path(sys.argv[1]).iterdir()), key=lambda one: (len(one), one))
pathlib.Path(sys.argv[2]).write_text("".join(base64.b64encode(one).decode() + "\n" for one in inputs if one))
PYTHON
}

fuzz() {
  local name=$1
  shift
  mkdir -p "$build/$name"
  clang++ -std=c++20 -O1 -g -fsanitize=fuzzer,address,undefined,integer \
    -fno-sanitize=unsigned-integer-overflow,unsigned-shift-base,implicit-conversion \
    -fno-sanitize-recover=all -I src -I "$source" "$source/${name}Fuzz.cpp" "$@" -o "$build/$name-fuzz"
  unpack "$source/corpus/$name.txt" "$build/$name"
  echo "$name, $(wc -l <"$source/corpus/$name.txt") inputs of before, then $seconds seconds"
  "$build/$name-fuzz" -max_total_time="$seconds" -max_len=2048 -timeout=5 -rss_limit_mb=1024 \
    -dict="$source/$name.dict" -artifact_prefix="$build/$name-" -print_final_stats=1 \
    "$build/$name" 2>"$build/$name.log" || { tail -30 "$build/$name.log"; exit 1; }
  if [ -n "$keep" ]; then
    rm -rf "$build/$name-kept" && mkdir "$build/$name-kept"
    "$build/$name-fuzz" -merge=1 -max_len=96 "$build/$name-kept" "$build/$name" 2>/dev/null
    pack "$build/$name-kept" "$source/corpus/$name.txt"
  fi
  grep -E 'number_of_executed_units|new_units_added|peak_rss' "$build/$name.log"
}

fuzz NumberFormat src/base/NumberFormat.cpp
fuzz DateFormat src/objects/DateFormat.cpp
fuzz RegistrarScript src/framework/component/RegistrarScript.cpp src/framework/component/RegistrarWords.cpp
