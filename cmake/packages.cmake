# `cpack` in the build folder makes the archive, `cpack -G DEB` the Debian package. With
# SOURCE_DATE_EPOCH set, the same sources make the same files, byte for byte.
set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_NAME frostmark)
set(CPACK_PACKAGE_VENDOR "The Frostmark developers")
set(CPACK_PACKAGE_CONTACT "The Frostmark developers <frostmark@frostmark.example>")
set(CPACK_PACKAGE_FILE_NAME
  "frostmark-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_SOURCE_DIR}/cmake/packages_by_kind.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/cmake/same_times.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/cmake/same_order.cmake)
set(CPACK_FROSTMARK_BUILD ${CMAKE_CURRENT_BINARY_DIR})

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# A plugin, which no program is linked with.
set(CPACK_DEBIAN_PACKAGE_DEPENDS libqt6svg6)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS qt6-wayland)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "hockey franchise simulator for one player")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Create a team, start it at the foot of a ladder of six leagues, and lead it up
season by season: watch its games on the rink or let weeks run by, choose who
plays and who trains, and replace a player in each year's draft.
.
The whole world is plain text, a folder for each player of the machine. It can
be played in windows or as text in a terminal.")
include(CPack)
