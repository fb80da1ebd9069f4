# The package for Debian: what it needs, and the documents that a package has besides what is installed anyway.
set(debian ${CMAKE_CURRENT_SOURCE_DIR}/resources/debian)
set(QUILLON_CONTACT "The Quillon authors <${QUILLON_SUPPORT_ADDRESS}>")

# The package's version is the changelog's; it has to be this program's.
file(STRINGS ${debian}/changelog.in newest LIMIT_COUNT 1)
string(REGEX MATCH "^quillon \\((.*)-(.*)\\) " matched "${newest}")
if(NOT CMAKE_MATCH_1 STREQUAL PROJECT_VERSION)
  message(FATAL_ERROR "resources/debian/changelog.in begins with version \"${CMAKE_MATCH_1}\", not ${PROJECT_VERSION}")
endif()
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_2})

# debian/copyright holds the licence's text, indented, a dot for each empty line (Debian's copyright-format 1.0).
file(READ LICENSE license)
string(REGEX MATCH "Copyright \\(c\\) ([0-9, -]+) The Quillon authors\n\n(.*)\n$" matched "${license}")
set(QUILLON_YEARS ${CMAKE_MATCH_1})
string(REPLACE "\n" "\n " QUILLON_LICENSE " ${CMAKE_MATCH_2}")
string(REPLACE "\n \n" "\n .\n" QUILLON_LICENSE "${QUILLON_LICENSE}")

set(documents ${CMAKE_CURRENT_BINARY_DIR}/debian)
configure_file(${debian}/copyright.in ${documents}/copyright @ONLY)
configure_file(${debian}/changelog.in ${documents}/changelog.Debian @ONLY)
add_custom_command(OUTPUT ${documents}/changelog.Debian.gz
  COMMAND gzip -9nkf ${documents}/changelog.Debian DEPENDS ${documents}/changelog.Debian VERBATIM)
add_custom_target(debian_changelog ALL DEPENDS ${documents}/changelog.Debian.gz)
install(FILES ${documents}/copyright ${documents}/changelog.Debian.gz
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/quillon)

file(READ ${debian}/description CPACK_DEBIAN_PACKAGE_DESCRIPTION)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "menu-bar scheduler for Time Machine backups over restic")
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quillon)
set(CPACK_PACKAGE_CONTACT ${QUILLON_CONTACT})
set(CPACK_PACKAGE_HOMEPAGE_URL ${QUILLON_WEB_SITE}/)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Libraries by what the programs link; programs by what they call: restic(1), xdg-open(1), and lsblk(8) of util-linux,
# which is essential and so must not be named. Certificates are what HTTPS is checked against; Qt loads what reads
# SQLite's files at run time.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "ca-certificates, libqt6sql6-sqlite, restic (>= 0.14), xdg-utils")
# Texts of Qt's own buttons, native Wayland windows, the session bus that trays need, and the green mark in the menu bar
# and the menu; ssh, by which restic reaches servers.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "default-dbus-session-bus | dbus-session-bus, fonts-noto-color-emoji, \
openssh-client, qt6-translations-l10n, qt6-wayland")
# GNOME has no tray without it.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "gnome-shell-extension-appindicator")
include(CPack)
