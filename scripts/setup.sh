#!/bin/bash
# Installs by apt whatever a Debian 12 machine lacks to build, test and run Vantoplex.
# Needs root or sudo only when something is missing; says nothing and ends at once otherwise.
#   scripts/setup.sh          what building, testing and the demo need
#   scripts/setup.sh --all    what scripts/format.sh tidy and scripts/places.sh need, too
set -euo pipefail

packages=(
  ca-certificates cmake ninja-build g++ binutils python3
  gcc-mingw-w64-x86-64-posix g++-mingw-w64-x86-64-posix mingw-w64-tools
  wine wine64 xvfb util-linux
  fonts-liberation fonts-wqy-microhei fonts-wine
  googletest ccache clang-format-14 lld nsis
)
if [ "${1:-}" = --all ]; then
  packages+=(clang-tidy-14 clang-14 locales)
fi

missing=()
for package in "${packages[@]}"; do
  status=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
  [ "$status" = "install ok installed" ] || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

become=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || { echo "setup: as root, please install: ${missing[*]}" >&2; exit 1; }
  become=(sudo)
fi
echo "setup: installing ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${become[@]}" apt-get update -q
"${become[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
