#!/usr/bin/env bash
# Makes the Windows release on Debian 12: Qt for Windows built from Debian's own
# source, Flickerscribe and its tests cross compiled with MinGW-w64, the tests
# run under Wine, a portable zip and an NSIS setup program, and a look at both
# programs running under Wine.
#
# Usage: scripts/windows.sh           the whole release
#        scripts/windows.sh prepare   only the packages and the cached builds
#                                     (Qt, giflib, GoogleTest)
#
# The builds of Qt, giflib and GoogleTest for Windows are kept in
# $FS_WINDOWS_CACHE (default ~/.cache/flickerscribe-windows) and reused; each is
# rebuilt only when its completion mark is missing. A first Qt build takes about
# 45 minutes on two cores.
set -euo pipefail
cd "$(dirname "$0")/.."
repo=$PWD
mode="${1:-all}"
cache="${FS_WINDOWS_CACHE:-$HOME/.cache/flickerscribe-windows}"
export FS_WINDOWS_CACHE="$cache"
mkdir -p "$cache/logs"
toolchain="$repo/cmake/MinGW-w64.cmake"
mingw=x86_64-w64-mingw32
jobs="$(nproc)"
started=$SECONDS

say() { printf '== %s (%ds)\n' "$*" $((SECONDS - started)) >&2; }
fail() { echo "windows.sh: $*" >&2; exit 1; }
# run LOG command...: runs quietly into a log, shows its tail when it fails.
run() {
  local log="$cache/logs/$1"; shift
  if ! nice -n 10 "$@" >"$log" 2>&1; then
    tail -n 40 "$log" >&2
    fail "failed: $* (log: $log)"
  fi
}

# --- 1. Packages --------------------------------------------------------------
packages=(cmake ninja-build g++ pkg-config dpkg-dev xz-utils
          qt6-base-dev qt6-base-dev-tools qt6-svg-dev qt6-qpa-plugins
          libgtest-dev libgmock-dev
          g++-mingw-w64-x86-64-posix gcc-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64
          wine64 wine nsis zip unzip xvfb xauth x11-utils xdotool imagemagick
          fonts-dejavu-core)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
sudo_cmd=""
[ "$(id -u)" -ne 0 ] && sudo_cmd="sudo"
if [ ${#missing[@]} -gt 0 ]; then
  say "installing ${missing[*]}"
  $sudo_cmd apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo_cmd apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi

# Source packages come from Debian's own archive: add a deb-src entry beside the
# deb entry when there is none.
ensure_deb_src() {
  if grep -rqsE '^(deb-src|Types:.*deb-src)' /etc/apt/sources.list /etc/apt/sources.list.d/; then
    return
  fi
  say "adding a deb-src entry for Debian's archive"
  if [ -f /etc/apt/sources.list.d/debian.sources ]; then
    sed 's/^Types: deb$/Types: deb-src/' /etc/apt/sources.list.d/debian.sources |
      $sudo_cmd tee /etc/apt/sources.list.d/flickerscribe-deb-src.sources >/dev/null
  else
    grep -hE '^deb ' /etc/apt/sources.list | sed 's/^deb /deb-src /' |
      $sudo_cmd tee /etc/apt/sources.list.d/flickerscribe-deb-src.list >/dev/null
  fi
  $sudo_cmd apt-get update -qq
}

# fetch_source PACKAGE VERSION: downloads a Debian source package into
# $cache/src (once) and prints the folder it is in.
fetch_source() {
  local pkg=$1 version=$2 dir="$cache/src/$1"
  mkdir -p "$dir"
  if ! ls "$dir"/*.dsc >/dev/null 2>&1; then
    ensure_deb_src
    (cd "$dir" && apt-get source --download-only -qq "$pkg=$version" >&2 ||
                  apt-get source --download-only -qq "$pkg" >&2)
  fi
  echo "$dir"
}

# --- 2. Qt for Windows ----------------------------------------------------------
# At the host Qt's version, so that the host's moc, rcc and uic serve. The +dfsg
# source leaves out the Windows tablet headers (wintab), so tablet events are off;
# OpenGL stays at its default (dynamic), which the Windows platform plugin needs.
qt_version="$(dpkg-query -W -f='${source:Version}' libqt6core6)"
qt_upstream="${qt_version%%+*}"
qt_prefix="$cache/qt-$qt_upstream"
qt_features=(-DFEATURE_sql=OFF -DFEATURE_network=OFF -DFEATURE_dbus=OFF
             -DFEATURE_printsupport=OFF -DFEATURE_concurrent=OFF -DFEATURE_xml=OFF
             -DFEATURE_tabletevent=OFF)
host_qt=(-DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake)

build_qt_module() {   # build_qt_module SOURCE-PACKAGE TARBALL-PREFIX CONFIGURE...
  local pkg=$1 name=$2; shift 2
  local srcdir dir="$cache/build/$name"
  srcdir="$(fetch_source "$pkg" "$qt_version")"
  local tarball
  tarball="$(ls "$srcdir"/*.orig.tar.xz | head -n 1)"
  rm -rf "$dir" && mkdir -p "$dir"
  say "unpacking $(basename "$tarball")"
  tar -xf "$tarball" -C "$dir"
  local src
  src="$(ls -d "$dir"/"$name"-everywhere-src-*)"
  say "configuring $name for Windows"
  run "$name-configure.log" "$@" -G Ninja -S "$src" -B "$dir/build" \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$qt_prefix" \
    -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF "${host_qt[@]}"
  say "building $name (log: $cache/logs/$name-build.log)"
  run "$name-build.log" cmake --build "$dir/build" -j "$jobs"
  run "$name-install.log" cmake --install "$dir/build"
  rm -rf "$dir"
}

if [ ! -f "$qt_prefix/.complete" ]; then
  qt_started=$SECONDS
  rm -rf "$qt_prefix"
  build_qt_module qt6-base qtbase cmake -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
    -DBUILD_SHARED_LIBS=ON "${qt_features[@]}"
  build_qt_module qt6-svg qtsvg "$qt_prefix/bin/qt-cmake"
  echo "$qt_version $((SECONDS - qt_started))s" >"$qt_prefix/.complete"
  say "Qt $qt_upstream for Windows built in $(((SECONDS - qt_started) / 60)) minutes"
fi

if [ "$mode" = prepare ]; then
  say "prepared"
  exit 0
fi
