# The Debian package: `cpack` in a release build directory makes
# flickerscribe_<version>_<arch>.deb from the install rules. A Windows build
# makes the zip and the setup program instead (WindowsPackage.cmake).
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME flickerscribe)
set(CPACK_PACKAGE_VENDOR "Flickerscribe developers")
set(CPACK_PACKAGE_CONTACT "Flickerscribe developers <quillon@qzt-clan.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "animated, colour-coded player names for Brennock")
set(CPACK_PACKAGE_DESCRIPTION
    "Flickerscribe makes the name animations of Brennock: a list of frames, each a
name with caret colour codes and a time, edited in a coloured preview pane or
made by a wizard with wave and bounce effects, played back, kept in a project
file and written out as the game's .cfg script. flickerscribe-cli does the
same work from a terminal.")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${CPACK_PACKAGE_CONTACT}")
# A tool for the players of a game, not a game: Debian keeps games in
# /usr/games and files such tools under utils.
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://www.qzt-clan.example/flickerscribe")
# The Qt 6 runtime of Debian 12. dpkg-shlibdeps adds what the programs link
# (libqt6core6, libqt6gui6, libqt6widgets6, libc6, libstdc++6) with their
# versions; the SVG icon engine and the platform plugins are loaded at run
# time, so they are named here.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6 (>= 6.2), qt6-qpa-plugins")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

# The licence and the release notes go with every Linux installation, where
# Debian looks for them: share/doc/flickerscribe/copyright, the licence in
# Debian's machine-readable form, and changelog.gz, CHANGELOG.md as a Debian
# changelog.
if(UNIX AND NOT APPLE)
  set(doc ${PROJECT_BINARY_DIR}/doc)

  # copyright: the holder and the text come from LICENSE, so the two never
  # differ. A license text in that form is indented by one blank and an empty
  # line becomes " .".
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/LICENSE)
  file(READ ${PROJECT_SOURCE_DIR}/LICENSE licence)
  if(NOT licence MATCHES "\nCopyright \\(c\\) ([^\n]+)\n\n(Permission is hereby granted.*[^\n])\n*$")
    message(FATAL_ERROR "LICENSE is not the MIT licence with one copyright line")
  endif()
  set(fs_copyright "${CMAKE_MATCH_1}")
  string(REPLACE "\n\n" "\n.\n" fs_licence_text "${CMAKE_MATCH_2}")
  string(REPLACE "\n" "\n " fs_licence_text " ${fs_licence_text}")
  configure_file(${PROJECT_SOURCE_DIR}/data/copyright.in ${doc}/copyright @ONLY)

  find_program(FS_GZIP gzip REQUIRED)
  add_custom_command(OUTPUT ${doc}/changelog.gz
    COMMAND ${CMAKE_COMMAND} -DINPUT=${PROJECT_SOURCE_DIR}/CHANGELOG.md -DOUTPUT=${doc}/changelog
            -DPACKAGE=${CPACK_PACKAGE_NAME} -DVERSION=${PROJECT_VERSION}
            "-DMAINTAINER=${CPACK_DEBIAN_PACKAGE_MAINTAINER}"
            -P ${PROJECT_SOURCE_DIR}/data/DebianChangelog.cmake
    COMMAND ${FS_GZIP} -9nf ${doc}/changelog
    DEPENDS ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_SOURCE_DIR}/data/DebianChangelog.cmake
    COMMENT "Writing the changelog of the package"
    VERBATIM)
  add_custom_target(fs_changelog ALL DEPENDS ${doc}/changelog.gz)

  install(FILES ${doc}/copyright ${doc}/changelog.gz DESTINATION ${CMAKE_INSTALL_DOCDIR})
endif()

if(WIN32)
  include(${PROJECT_SOURCE_DIR}/cmake/WindowsPackage.cmake)
endif()
include(CPack)
