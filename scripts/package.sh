#!/bin/bash
# Builds the product and makes its packages in $VANTOPLEX_BUILD/package: a zip, an installer
# (NSIS), the debug symbols apart, and their checksums (packaging/package.py).
set -euo pipefail
cd "$(dirname "$0")/.."
export VANTOPLEX_BUILD="${VANTOPLEX_BUILD:-$PWD/build}"
scripts/setup.sh
scripts/build.sh windows-x64 Vantoplex vantoplex-viewer
exec python3 packaging/package.py "$VANTOPLEX_BUILD/windows-x64" "$VANTOPLEX_BUILD/package"
