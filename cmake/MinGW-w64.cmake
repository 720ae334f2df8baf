# Cross compiling for 64-bit Windows with Debian's MinGW-w64 (POSIX threads:
# std::thread and std::mutex need them). Used for Qt, giflib, GoogleTest and
# Flickerscribe itself by scripts/windows.sh and the "windows" preset.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(FS_MINGW x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${FS_MINGW}-gcc-posix)
set(CMAKE_CXX_COMPILER ${FS_MINGW}-g++-posix)
set(CMAKE_RC_COMPILER ${FS_MINGW}-windres)

# Libraries and headers for Windows come from the MinGW tree and from the
# prefixes the caller adds (the Qt, giflib and GoogleTest builds); host programs
# (moc, rcc, uic) come from the host's Qt through QT_HOST_PATH.
# scripts/windows.sh keeps those builds in one cache folder.
if(DEFINED ENV{FS_WINDOWS_CACHE})
  set(FS_WINDOWS_CACHE "$ENV{FS_WINDOWS_CACHE}")
else()
  set(FS_WINDOWS_CACHE "$ENV{HOME}/.cache/flickerscribe-windows")
endif()
file(GLOB FS_WINDOWS_PREFIXES LIST_DIRECTORIES true "${FS_WINDOWS_CACHE}/qt-*"
     "${FS_WINDOWS_CACHE}/giflib" "${FS_WINDOWS_CACHE}/googletest")
list(APPEND CMAKE_FIND_ROOT_PATH /usr/${FS_MINGW} ${FS_WINDOWS_PREFIXES})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
