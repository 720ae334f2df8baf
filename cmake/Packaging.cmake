# The Debian package: `cpack` in a release build directory makes
# flickerscribe_<version>_<arch>.deb from the install rules.
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
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${CPACK_PACKAGE_CONTACT}")
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://www.qzt-clan.example/flickerscribe")
# The Qt 6 runtime of Debian 12. dpkg-shlibdeps adds what the programs link
# (libqt6core6, libqt6gui6, libqt6widgets6, libc6, libstdc++6) with their
# versions; the SVG icon engine and the platform plugins are loaded at run
# time, so they are named here.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6 (>= 6.2), qt6-qpa-plugins")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

include(CPack)
