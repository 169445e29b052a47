#!/bin/bash
# Lets libFuzzer write number formats, date formats and registrar scripts for the parsers, natively
# with address and undefined-behaviour checks: twenty minutes each, or as many seconds as named.
#   scripts/fuzz-texts.sh 60
# What led into new code is kept in build/fuzz-texts/<parser>/ and tried first by the next run; an
# input that fails stays beside it. Needs clang (apt-get install clang).
set -euo pipefail
cd "$(dirname "$0")/.."
build=${VANTOPLEX_BUILD:-$PWD/build}/fuzz-texts
seconds=${1:-1200}
source=tests/fuzz/texts
command -v clang++ >/dev/null || { echo "fuzz-texts.sh needs clang++: apt-get install clang" >&2; exit 2; }

fuzz() {
  local name=$1
  shift
  mkdir -p "$build/$name"
  clang++ -std=c++20 -O1 -g -fsanitize=fuzzer,address,undefined,integer \
    -fno-sanitize=unsigned-integer-overflow,unsigned-shift-base,implicit-conversion \
    -fno-sanitize-recover=all -I src -I "$source" "$source/${name}Fuzz.cpp" "$@" -o "$build/$name-fuzz"
  echo "$name, $seconds seconds"
  "$build/$name-fuzz" -max_total_time="$seconds" -max_len=2048 -timeout=5 -rss_limit_mb=1024 \
    -dict="$source/$name.dict" -artifact_prefix="$build/$name-" -print_final_stats=1 \
    "$build/$name" 2>"$build/$name.log" || { tail -30 "$build/$name.log"; exit 1; }
  grep -E 'number_of_executed_units|new_units_added|peak_rss' "$build/$name.log"
}

fuzz NumberFormat src/base/NumberFormat.cpp
fuzz DateFormat src/objects/DateFormat.cpp
fuzz RegistrarScript src/framework/component/RegistrarScript.cpp src/framework/component/RegistrarWords.cpp
