# cmake -DBUILD_DIR=... -DPREFIX=... -DAPP_ID=... -P CheckInstall.cmake
# Installs the build under PREFIX and checks that each file is where a desktop
# looks for it, that the compressed files were made by gzip -9n, that the icons
# have their sizes, and that the menu entry, the icon and the software-centre
# entry name each other rightly.
file(REMOVE_RECURSE "${PREFIX}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${PREFIX}"
                RESULT_VARIABLE status OUTPUT_QUIET)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "cmake --install failed: ${status}")
endif()

set(faults "")
macro(fault text)
  string(APPEND faults "\n  ${text}")
endmacro()

set(share "${PREFIX}/share")
set(compressed share/man/man1/flickerscribe-cli.1.gz share/man/man1/flickerscribe.1.gz
               share/doc/flickerscribe/changelog.gz)
foreach(path bin/flickerscribe bin/flickerscribe-cli ${compressed} share/doc/flickerscribe/copyright
             share/applications/${APP_ID}.desktop share/metainfo/${APP_ID}.metainfo.xml
             share/icons/hicolor/scalable/apps/${APP_ID}.svg)
  if(NOT EXISTS "${PREFIX}/${path}")
    fault("missing ${path}")
  endif()
endforeach()

# A gzip header is 1f8b, method 08, flags, a 4-byte time and the extra flags:
# gzip -9n leaves the flags (no name) and the time at 0 and marks the most
# compression with 02.
foreach(path ${compressed})
  if(EXISTS "${PREFIX}/${path}")
    file(READ "${PREFIX}/${path}" header LIMIT 9 HEX)
    if(NOT header STREQUAL "1f8b08000000000002")
      fault("${path} is not made by gzip -9n (header ${header})")
    endif()
  endif()
endforeach()

# A PNG keeps its width and height as 32-bit big-endian numbers at byte 16.
foreach(size 16 22 24 32 48 64 128 256)
  set(png "${share}/icons/hicolor/${size}x${size}/apps/${APP_ID}.png")
  if(NOT EXISTS "${png}")
    fault("missing ${size}x${size} icon")
    continue()
  endif()
  file(READ "${png}" signature LIMIT 8 HEX)
  file(READ "${png}" dimensions OFFSET 16 LIMIT 8 HEX)
  string(SUBSTRING "${dimensions}" 0 8 width_hex)
  string(SUBSTRING "${dimensions}" 8 8 height_hex)
  math(EXPR width "0x${width_hex}")
  math(EXPR height "0x${height_hex}")
  if(NOT signature STREQUAL "89504e470d0a1a0a")
    fault("${size}x${size} icon is no PNG")
  elseif(NOT width EQUAL size OR NOT height EQUAL size)
    fault("${size}x${size} icon is ${width}x${height}")
  endif()
endforeach()

# The menu entry starts a program that was installed, under the icon's name.
if(EXISTS "${share}/applications/${APP_ID}.desktop")
  file(STRINGS "${share}/applications/${APP_ID}.desktop" exec REGEX "^Exec=")
  file(STRINGS "${share}/applications/${APP_ID}.desktop" icon REGEX "^Icon=")
  string(REGEX REPLACE "^Exec=([^ ]+).*" "\\1" program "${exec}")
  if(NOT EXISTS "${PREFIX}/bin/${program}")
    fault("the menu entry starts ${program}, which isn't installed")
  endif()
  if(NOT icon STREQUAL "Icon=${APP_ID}")
    fault("the menu entry's ${icon} names no installed icon")
  endif()
endif()

# The software-centre entry points at the menu entry and the icon by name.
if(EXISTS "${share}/metainfo/${APP_ID}.metainfo.xml")
  file(READ "${share}/metainfo/${APP_ID}.metainfo.xml" metainfo)
  foreach(tag "<id>${APP_ID}</id>" "<launchable type=\"desktop-id\">${APP_ID}.desktop</launchable>"
              "<icon type=\"stock\">${APP_ID}</icon>")
    string(FIND "${metainfo}" "${tag}" at)
    if(at EQUAL -1)
      fault("the metainfo lacks ${tag}")
    endif()
  endforeach()
endif()

if(faults)
  message(FATAL_ERROR "The installation under ${PREFIX} is wrong:${faults}")
endif()
message(STATUS "Installation under ${PREFIX} is complete")
