# Read by cpack for each kind of package: which components go into it.
set(project "${CPACK_FROSTMARK_BUILD};frostmark")
if(CPACK_GENERATOR STREQUAL DEB)
  set(CPACK_INSTALL_CMAKE_PROJECTS "${project};system;/")
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
  set(CPACK_INSTALL_CMAKE_PROJECTS "${project};Unspecified;/;${project};libraries;/")
endif()
