#!/bin/sh
# Runs a Windows program of the build under Wine (the "windows" preset's
# emulator for tests and test discovery): the Qt and MinGW runtime DLLs come
# from where the build took them, in the Wine prefix scripts/windows.sh made.
cache="${FS_WINDOWS_CACHE:-$HOME/.cache/flickerscribe-windows}"
qt="$(ls -d "$cache"/qt-* 2>/dev/null | head -n 1)"
runtime="$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")"
export WINEPREFIX="${WINEPREFIX:-$cache/wine}"
export WINEDEBUG="${WINEDEBUG:--all}"
export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-winemenubuilder.exe=d;mscoree,mshtml=}"
export WINEPATH="$qt/bin;$runtime;/usr/x86_64-w64-mingw32/lib"
export QT_PLUGIN_PATH="Z:$qt/plugins"
exec wine "$@"
