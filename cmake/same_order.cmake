# Run by cpack after the archive is made: packs it again in the order of names, as nobody's files and
# without the time of packing, none of which cpack offers.
if(CPACK_GENERATOR STREQUAL TGZ)
  get_filename_component(folder "${CPACK_PACKAGE_FILE_NAME}" NAME)
  foreach(archive ${CPACK_PACKAGE_FILES})
    execute_process(
      COMMAND tar --create --sort=name --owner=0 --group=0 --numeric-owner --format=gnu
        --directory "${CPACK_TOPLEVEL_DIRECTORY}" "${folder}"
      COMMAND gzip -n
      OUTPUT_FILE "${archive}" COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
endif()
