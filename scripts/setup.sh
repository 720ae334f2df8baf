#!/usr/bin/env bash
# Installs what the build needs (Debian 12), then configures and builds.
# Usage: scripts/setup.sh [preset]    (default preset: "default")
set -euo pipefail
cd "$(dirname "$0")/.."
preset="${1:-default}"

packages=(cmake ninja-build g++ pkg-config
          qt6-base-dev qt6-svg-dev libqt6svg6 qt6-qpa-plugins qt6-l10n-tools qt6-tools-dev libgif-dev
          libgtest-dev libgmock-dev libbenchmark-dev
          xvfb xauth x11-utils imagemagick fonts-dejavu-core fonts-liberation
          g++-mingw-w64-x86-64 desktop-file-utils appstream groff-base lintian
          clang-14 libclang-rt-14-dev)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  sudo_cmd=""
  [ "$(id -u)" -ne 0 ] && sudo_cmd="sudo"
  $sudo_cmd apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo_cmd apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi

cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset"
