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
# rebuilt only when its completion mark is missing. A first Qt build takes 45 to
# 75 minutes on two cores (run it with "prepare" in the background and go on
# working); a later run takes minutes.
set -euo pipefail
cd "$(dirname "$0")/.."
repo=$PWD
mode="${1:-all}"
cache="${FS_WINDOWS_CACHE:-$HOME/.cache/flickerscribe-windows}"
export FS_WINDOWS_CACHE="$cache"
mkdir -p "$cache/logs"
# One run at a time: a second one waits for the cache the first is making.
exec 9>"$cache/.lock"
flock 9
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
          wine64 wine nsis zip unzip xvfb xauth x11-utils xdotool imagemagick librsvg2-bin
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
  local pkg=$1 version=${2:-} dir="$cache/src/$1"
  mkdir -p "$dir"
  if ! ls "$dir"/*.orig.tar.* >/dev/null 2>&1; then
    ensure_deb_src
    (cd "$dir" && { [ -n "$version" ] && apt-get source --download-only -qq "$pkg=$version" >&2; } ||
                  apt-get source --download-only -qq "$pkg" >&2) || true
  fi
  ls "$dir"/*.orig.tar.* >/dev/null 2>&1 || { echo "windows.sh: no source of $pkg" >&2; return 1; }
  echo "$dir"
}

# unpack_source PACKAGE: a Debian source package with Debian's patches applied,
# freshly unpacked under $cache/build; prints the folder.
unpack_source() {
  local srcdir dir="$cache/build/$1"
  srcdir="$(fetch_source "$1" "${2:-}")"
  rm -rf "$dir" && mkdir -p "$dir"
  (cd "$dir" && dpkg-source -q -x "$(ls "$srcdir"/*.dsc | head -n 1)" src >&2)
  echo "$dir/src"
}

# --- giflib for Windows ---------------------------------------------------------
# A static library (nothing to ship beside the programs but its licence), for the
# animated-picture export; CMake's FindGIF finds it through the toolchain file.
gif_prefix="$cache/giflib"
if [ ! -f "$gif_prefix/.complete" ]; then
  say "building giflib for Windows"
  src="$(unpack_source giflib)"
  rm -rf "$gif_prefix" && mkdir -p "$gif_prefix/include" "$gif_prefix/lib" "$gif_prefix/share/doc/giflib"
  objects=()
  for c in dgif_lib egif_lib gifalloc gif_err gif_font gif_hash openbsd-reallocarray quantize; do
    run giflib.log $mingw-gcc-posix -O2 -Wall -c "$src/$c.c" -o "$cache/build/giflib/$c.o"
    objects+=("$cache/build/giflib/$c.o")
  done
  run giflib-ar.log $mingw-ar rcs "$gif_prefix/lib/libgif.a" "${objects[@]}"
  cp "$src/gif_lib.h" "$gif_prefix/include/"
  cp "$src/COPYING" "$gif_prefix/share/doc/giflib/COPYING"
  rm -rf "$cache/build/giflib"
  touch "$gif_prefix/.complete"
fi

# --- GoogleTest for Windows -----------------------------------------------------
gtest_prefix="$cache/googletest"
if [ ! -f "$gtest_prefix/.complete" ]; then
  say "building GoogleTest for Windows"
  src="$(unpack_source googletest)"
  rm -rf "$gtest_prefix"
  run googletest-configure.log cmake -G Ninja -S "$src" -B "$cache/build/googletest/build" \
    -DCMAKE_TOOLCHAIN_FILE="$toolchain" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_INSTALL_PREFIX="$gtest_prefix" -DBUILD_SHARED_LIBS=OFF
  run googletest-build.log cmake --build "$cache/build/googletest/build" -j "$jobs"
  run googletest-install.log cmake --install "$cache/build/googletest/build"
  rm -rf "$cache/build/googletest"
  touch "$gtest_prefix/.complete"
fi

# --- Wine -----------------------------------------------------------------------
# A prefix of our own, reporting Windows 10 (Qt 6 wants it), without a desktop
# integration that would add menu entries to the host.
export WINEPREFIX="$cache/wine"
export WINEDEBUG=-all
# Wine takes the Unix side's text (arguments, file names) in the locale's encoding.
export LC_ALL=C.UTF-8
export WINEDLLOVERRIDES="winemenubuilder.exe=d;mscoree,mshtml="
if [ ! -f "$WINEPREFIX/.complete" ]; then
  say "making a Wine prefix"
  rm -rf "$WINEPREFIX"
  run wineboot.log wineboot -i
  run winecfg.log wine winecfg -v win10
  wineserver -w
  touch "$WINEPREFIX/.complete"
fi
mingw_runtime=("$(dirname "$($mingw-g++-posix -print-file-name=libstdc++-6.dll)")" "/usr/$mingw/lib")
# Linux paths for Wine's DLL search, semicolon-separated.
windows_dll_path() { local IFS=';'; echo "$*"; }

# giflib works: a two-frame picture written and read back under Wine.
if [ ! -f "$gif_prefix/.checked" ]; then
  check="$cache/build/gifcheck"
  mkdir -p "$check"
  cat >"$check/gifcheck.c" <<'C'
#include <gif_lib.h>
#include <stdio.h>
int main(int argc, char** argv) {
    int error = 0;
    GifFileType* out = EGifOpenFileName(argv[argc - 1], false, &error);
    if (!out) return 1;
    GifColorType colours[2] = {{0, 0, 0}, {255, 0, 0}};
    ColorMapObject* map = GifMakeMapObject(2, colours);
    EGifPutScreenDesc(out, 2, 2, 1, 0, map);
    for (int frame = 0; frame < 2; ++frame) {
        GifPixelType pixels[4] = {frame, 1 - frame, 1 - frame, frame};
        EGifPutImageDesc(out, 0, 0, 2, 2, false, NULL);
        for (int row = 0; row < 2; ++row) EGifPutLine(out, pixels + 2 * row, 2);
    }
    GifFreeMapObject(map);
    if (EGifCloseFile(out, &error) != GIF_OK) return 2;
    GifFileType* in = DGifOpenFileName(argv[argc - 1], &error);
    if (!in || DGifSlurp(in) != GIF_OK) return 3;
    const int ok = in->ImageCount == 2 && in->SWidth == 2 && in->SavedImages[1].RasterBits[0] == 1;
    DGifCloseFile(in, &error);
    printf("giflib %d.%d.%d: %s\n", GIFLIB_MAJOR, GIFLIB_MINOR, GIFLIB_RELEASE, ok ? "ok" : "wrong");
    return ok ? 0 : 4;
}
C
  run gifcheck-build.log $mingw-gcc-posix -O2 -I"$gif_prefix/include" "$check/gifcheck.c" \
    "$gif_prefix/lib/libgif.a" -o "$check/gifcheck.exe"
  (cd "$check" && run gifcheck-run.log env WINEPATH="$(windows_dll_path "${mingw_runtime[@]}")" \
     wine ./gifcheck.exe check.gif)
  say "$(tail -n 1 "$cache/logs/gifcheck-run.log")"
  rm -rf "$check"
  touch "$gif_prefix/.checked"
fi

# --- 2. Qt for Windows ----------------------------------------------------------
# At the host Qt's version, so that the host's moc, rcc and uic serve. The +dfsg
# source leaves out the Windows tablet headers (wintab), so tablet events are off;
# OpenGL stays at its default (dynamic), which the Windows platform plugin needs.
# Qt SVG is built too when Debian's archive has its source tarball (the mirror
# here serves qt6-svg's .dsc but not its .orig.tar.xz); without it the program's
# icons are drawn to PNG at build time (src/ui/CMakeLists.txt).
qt_version="$(dpkg-query -W -f='${source:Version}' libqt6core6)"
qt_upstream="${qt_version%%+*}"
qt_prefix="$cache/qt-$qt_upstream"
qt_features=(-DFEATURE_sql=OFF -DFEATURE_network=OFF -DFEATURE_dbus=OFF
             -DFEATURE_printsupport=OFF -DFEATURE_concurrent=OFF -DFEATURE_xml=OFF
             -DFEATURE_tabletevent=OFF)
host_qt=(-DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake)

# build_qt_module SOURCE-PACKAGE NAME VERSION CONFIGURE...: unpacks, configures, builds
# and installs one Qt module into the cache. A build broken off (a machine
# switched off) goes on where it stopped.
build_qt_module() {
  local pkg=$1 name=$2 version=$3; shift 3
  local dir="$cache/build/$name"
  if [ ! -f "$dir/build/build.ninja" ]; then
    local srcdir tarball src
    srcdir="$(fetch_source "$pkg" "$version")"
    tarball="$(ls "$srcdir"/*.orig.tar.xz | head -n 1)"
    rm -rf "$dir" && mkdir -p "$dir"
    say "unpacking $(basename "$tarball")"
    tar -xf "$tarball" -C "$dir"
    src="$(ls -d "$dir"/"$name"-everywhere-src-*)"
    say "configuring $name for Windows"
    run "$name-configure.log" "$@" -G Ninja -S "$src" -B "$dir/build" \
      -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$qt_prefix" \
      -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF "${host_qt[@]}"
  fi
  say "building $name (log: $cache/logs/$name-build.log)"
  run "$name-build.log" cmake --build "$dir/build" -j "$jobs"
  run "$name-install.log" cmake --install "$dir/build"
  # The licence texts (Qt's and its bundled libraries') go with the DLLs
  # into the release.
  mkdir -p "$qt_prefix/licences/$name"
  cp "$dir"/"$name"-everywhere-src-*/LICENSES/* "$qt_prefix/licences/$name/"
  rm -rf "$dir"
}

if [ ! -f "$qt_prefix/.complete" ]; then
  qt_started=$SECONDS
  [ -f "$qt_prefix/.qtbase-complete" ] ||
    build_qt_module qt6-base qtbase "$qt_version" cmake -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
      -DBUILD_SHARED_LIBS=ON "${qt_features[@]}"
  touch "$qt_prefix/.qtbase-complete"
  svg_version="$(dpkg-query -W -f='${source:Version}' libqt6svg6)"
  if (fetch_source qt6-svg "$svg_version" >/dev/null 2>&1); then
    build_qt_module qt6-svg qtsvg "$svg_version" "$qt_prefix/bin/qt-cmake"
  else
    say "no source of qt6-svg in Debian's archive here: Qt for Windows without SVG"
  fi
  echo "$qt_version $((SECONDS - qt_started))s" >"$qt_prefix/.complete"
  say "Qt $qt_upstream for Windows built in $(((SECONDS - qt_started) / 60)) minutes"
fi

if [ "$mode" = prepare ]; then
  say "prepared"
  exit 0
fi

status=0
build="$repo/build/windows"

# --- 3. Flickerscribe for Windows -----------------------------------------------
say "configuring and building Flickerscribe for Windows (log: $cache/logs/windows-build.log)"
run windows-configure.log cmake --preset windows
run windows-build.log cmake --build --preset windows

# --- 4. The tests under Wine ----------------------------------------------------
say "running the tests under Wine (log: $cache/logs/windows-tests.log)"
ctest --preset windows >"$cache/logs/windows-tests.log" 2>&1 || status=1
summary="$(grep -E 'tests passed, [0-9]+ tests failed out of [0-9]+' "$cache/logs/windows-tests.log" || true)"
total="$(sed -E 's/.* out of ([0-9]+).*/\1/' <<<"$summary")"
failed="$(sed -E 's/.*, ([0-9]+) tests failed.*/\1/' <<<"$summary")"
skipped="$(grep -c '(Skipped)' "$cache/logs/windows-tests.log" || true)"
if [ -z "$summary" ]; then
  tail -n 30 "$cache/logs/windows-tests.log" >&2
  total=0 failed=0 status=1
fi
passed=$((total - failed - skipped))
sed -n '/The following tests/,$p' "$cache/logs/windows-tests.log" >&2
say "tests under Wine: $total run, $passed passed, $skipped skipped, $failed failed"

# --- 5. The zip and the setup program -------------------------------------------
say "packing the zip and the setup program"
rm -f "$build"/flickerscribe-*-win64*.{zip,exe}
(cd "$build" && run cpack.log cpack)
zip_file="$(ls "$build"/flickerscribe-*-win64.zip)"
setup_file="$(ls "$build"/flickerscribe-*-win64-setup.exe)"
megabytes() { awk -v b="$(stat -c %s "$1")" 'BEGIN { printf "%.0f", b / 1048576 }'; }

# --- 6. The unpacked programs under Wine ----------------------------------------
unpacked="$build/unpacked"
rm -rf "$unpacked" && mkdir -p "$unpacked"
unzip -q "$zip_file" -d "$unpacked"
app_dir="$(ls -d "$unpacked"/flickerscribe-*-win64)"
# Only what the zip holds: no DLL search path into the build or the cache.
unset WINEPATH QT_PLUGIN_PATH

# The main window on a virtual X display, with a look at the wizard and the
# script window: their toolbar buttons are clicked where they are drawn.
shots="$build/screenshots"
rm -rf "$shots" && mkdir -p "$shots"
display_number=$((90 + RANDOM % 100))
Xvfb ":$display_number" -screen 0 1280x900x24 -nolisten tcp >/dev/null 2>&1 &
xvfb_pid=$!
export DISPLAY=":$display_number"
sleep 2
(cd "$app_dir" && wine ./flickerscribe.exe >"$cache/logs/windows-program.log" 2>&1) &
program_pid=$!
window=""
for _ in $(seq 60); do
  window="$(xdotool search --onlyvisible --name '^Flickerscribe' 2>/dev/null | head -n 1 || true)"
  [ -n "$window" ] && break
  sleep 1
done
if [ -n "$window" ]; then
  sleep 3  # the first paint
  import -window root "$shots/main-window.png"
  geometry="$(xdotool getwindowgeometry "$window" | sed -n 's/.*Position: \([0-9]*\),\([0-9]*\).*/\1 \2/p')"
  read -r wx wy <<<"$geometry"
  # shot_dialog NAME X Y: clicks the toolbar at X,Y of the main window (where
  # the button is drawn in the main window's screenshot), shoots, and presses
  # Escape.
  shot_dialog() {
    xdotool mousemove $((wx + $2)) $((wy + $3))
    sleep 1  # the button takes a click once the pointer is over it
    # Without a window manager the first click may only give the main window
    # the focus back; a second one lands on the opened window's picture or text.
    xdotool click 1
    sleep 1
    xdotool click 1
    sleep 4
    import -window root "$shots/$1.png"
    xdotool key Escape
    sleep 1
  }
  shot_dialog wizard "${FS_WIZARD_X:-306}" "${FS_TOOLBAR_Y:-45}"
  xdotool key Return  # Escape asks whether to leave the wizard; Yes has the focus
  sleep 2
  shot_dialog script-window "${FS_GENERATE_X:-404}" "${FS_TOOLBAR_Y:-45}"
  say "screenshots: $(cd "$shots" && echo *.png)"
else
  echo "windows.sh: the main window did not show under Wine" >&2
  status=1
fi
kill "$program_pid" 2>/dev/null || true
wineserver -k 2>/dev/null || true
kill "$xvfb_pid" 2>/dev/null || true
unset DISPLAY

# The command-line companion: the README's example, byte for byte as on Linux,
# and a name outside ASCII given as UTF-8.
say "building the Linux command-line companion for the comparison"
run linux-configure.log cmake -G Ninja -S "$repo" -B "$build/linux-cli" -DCMAKE_BUILD_TYPE=Release \
  -DFS_BUILD_UI=OFF -DFS_BUILD_TESTS=OFF -DFS_BUILD_BENCH=OFF
run linux-build.log cmake --build "$build/linux-cli" --target flickerscribe-cli
linux_cli="$build/linux-cli/src/cli/flickerscribe-cli"
compare="$build/cli-compare"
rm -rf "$compare" && mkdir -p "$compare/linux" "$compare/windows"
example=(effects --name Quillon --tag '^4[QZT]' --effect "Wave 2" --effect Bounce --param1 1 --output q.fsq)
(cd "$compare/linux" && "$linux_cli" "${example[@]}" && "$linux_cli" generate q.fsq >q.cfg &&
   "$linux_cli" effects --name 'Zoë ½' --effect "Wave 2" >zoe.fsq && "$linux_cli" render --runs '^1Zoë' >render.txt)
(cd "$compare/windows" && wine "$app_dir/flickerscribe-cli.exe" "${example[@]}" &&
   wine "$app_dir/flickerscribe-cli.exe" generate q.fsq >q.cfg &&
   wine "$app_dir/flickerscribe-cli.exe" effects --name 'Zoë ½' --effect "Wave 2" >zoe.fsq &&
   wine "$app_dir/flickerscribe-cli.exe" render --runs '^1Zoë' >render.txt) || status=1
for f in q.fsq q.cfg zoe.fsq render.txt; do
  if cmp -s "$compare/linux/$f" "$compare/windows/$f"; then
    say "CLI under Wine: $f equals the Linux one ($(stat -c %s "$compare/linux/$f") bytes)"
  else
    echo "windows.sh: CLI under Wine: $f differs from the Linux one (see $compare)" >&2
    status=1
  fi
done

say "done in $(((SECONDS - started) / 60)) min $(((SECONDS - started) % 60)) s"
echo "windows: $passed tests passed, $failed failed; zip $(megabytes "$zip_file") MB; setup $(megabytes "$setup_file") MB"
exit "$status"
