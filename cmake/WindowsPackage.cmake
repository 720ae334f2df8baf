# The Windows release: the programs with everything they load beside them, as
# a portable zip and as an NSIS setup program (`cpack` in build/windows).
# Included by Packaging.cmake for Windows builds.

# One folder (the "windows" preset installs the programs at its top, not in
# bin/): the programs, the DLLs next to them, Qt's plugins in the folders where
# Qt looks for them beside the program.
set(licences licences)

# Qt: the libraries the programs link, the Windows platform and style, the
# offscreen platform (flickerscribe-cli draws its pictures there), and, where
# Qt has its SVG module, the SVG icon engine and image plugin.
if(FS_BUILD_UI)
  get_target_property(fs_qtcore_dll Qt6::Core IMPORTED_LOCATION_RELEASE)
  get_filename_component(fs_qt_bin "${fs_qtcore_dll}" DIRECTORY)
  get_filename_component(fs_qt_prefix "${fs_qt_bin}" DIRECTORY)
  set(modules Core Gui Widgets)
  set(plugins platforms/qwindows platforms/qoffscreen styles/qwindowsvistastyle)
  if(TARGET Qt6::Svg)
    list(APPEND modules Svg)
    list(APPEND plugins iconengines/qsvgicon imageformats/qsvg)
  endif()
  foreach(module ${modules})
    install(FILES ${fs_qt_bin}/Qt6${module}.dll DESTINATION .)
  endforeach()
  foreach(plugin ${plugins})
    get_filename_component(folder ${plugin} DIRECTORY)
    install(FILES ${fs_qt_prefix}/plugins/${plugin}.dll DESTINATION ${folder})
  endforeach()
endif()

# The MinGW runtime the compiler links: the C++ library, GCC's support
# library and the POSIX threads library, wherever this compiler keeps them.
foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
                  OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(NOT IS_ABSOLUTE "${path}" OR NOT EXISTS "${path}")
    message(FATAL_ERROR "The MinGW runtime ${dll} was not found")
  endif()
  install(FILES ${path} DESTINATION .)
endforeach()

# Licences: ours beside the programs, the others' in licences/. Qt is used
# under the LGPL 3; the GCC runtime is GPL 3 with the runtime library
# exception, the MinGW-w64 runtime under its own permissive terms (Debian's
# copyright files hold both); giflib under its MIT licence.
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION . RENAME LICENSE.txt)
if(FS_BUILD_UI)
  install(FILES ${fs_qt_prefix}/licences/qtbase/LGPL-3.0-only.txt DESTINATION ${licences} RENAME Qt-LGPL-3.txt)
  install(DIRECTORY ${fs_qt_prefix}/licences/ DESTINATION ${licences}/Qt)  # with its bundled libraries' terms
endif()
install(FILES /usr/share/doc/gcc-mingw-w64-base/copyright DESTINATION ${licences}
        RENAME GCC-runtime.txt)
install(FILES /usr/share/doc/mingw-w64-common/copyright DESTINATION ${licences} RENAME MinGW-w64-runtime.txt)
find_path(fs_gif_include gif_lib.h)
if(fs_gif_include)
  get_filename_component(fs_gif_prefix "${fs_gif_include}" DIRECTORY)
  if(EXISTS ${fs_gif_prefix}/share/doc/giflib/COPYING)
    install(FILES ${fs_gif_prefix}/share/doc/giflib/COPYING DESTINATION ${licences} RENAME giflib.txt)
  endif()
endif()

# The zip and the setup program.
set(CPACK_GENERATOR ZIP NSIS)
set(CPACK_PACKAGE_FILE_NAME flickerscribe-${PROJECT_VERSION}-win64)
set(CPACK_PACKAGE_INSTALL_DIRECTORY Flickerscribe)
set(CPACK_PACKAGE_INSTALL_REGISTRY_KEY Flickerscribe)
set(CPACK_STRIP_FILES OFF)  # the host's strip can't read Windows programs; the release build has no symbols
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/cmake/WindowsCPackConfig.cmake)
set(CPACK_NSIS_DISPLAY_NAME Flickerscribe)
set(CPACK_NSIS_PACKAGE_NAME Flickerscribe)
set(CPACK_NSIS_INSTALLED_ICON_NAME flickerscribe.exe)
set(CPACK_NSIS_ENABLE_UNINSTALL_BEFORE_INSTALL ON)
set(CPACK_NSIS_EXECUTABLES_DIRECTORY .)
# The Start menu entry.
set(CPACK_PACKAGE_EXECUTABLES flickerscribe Flickerscribe)
# Opening .fsq files with the program is a question at the end of the setup,
# answered No unless the user says Yes (and No in a silent setup); the
# uninstaller takes the association back only when it is still ours.
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_NSIS_EXTRA_INSTALL_COMMANDS [=[
  MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "Open .fsq project files with Flickerscribe?" /SD IDNO IDYES fsq_yes
  Goto fsq_done
  fsq_yes:
    WriteRegStr SHCTX "Software\Classes\.fsq" "" "Flickerscribe.Animation"
    WriteRegStr SHCTX "Software\Classes\Flickerscribe.Animation" "" "Flickerscribe animation"
    WriteRegStr SHCTX "Software\Classes\Flickerscribe.Animation\DefaultIcon" "" "$INSTDIR\flickerscribe.exe,0"
    WriteRegStr SHCTX "Software\Classes\Flickerscribe.Animation\shell\open\command" "" '"$INSTDIR\flickerscribe.exe" "%1"'
  fsq_done:
]=])
set(CPACK_NSIS_EXTRA_UNINSTALL_COMMANDS [=[
  ReadRegStr $0 SHCTX "Software\Classes\.fsq" ""
  StrCmp $0 "Flickerscribe.Animation" 0 +2
    DeleteRegKey SHCTX "Software\Classes\.fsq"
  DeleteRegKey SHCTX "Software\Classes\Flickerscribe.Animation"
]=])
