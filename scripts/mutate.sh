#!/bin/bash
# mutate.sh [OPTIONS]   changes the arithmetic one place at a time and sees whether the unit tests notice
# (tests/mutants/mutate.py). All changes take hours; a sample of 300 some twenty minutes:
#   scripts/mutate.sh --sample 300 --seed 7
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
scripts/setup.sh
scripts/build.sh native vantoplex-unit
exec python3 tests/mutants/mutate.py "$VANTOPLEX_BUILD/native" "$@"
