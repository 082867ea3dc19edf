# `cmake --install DIR --prefix P` lays out a portable folder: the programs with the empty league
# folders and Settings beside them. git holds no empty folder, and a league folder must hold nothing
# but teams, so they are made here. A world that is already there stays as it is.
install(TARGETS frostmark-console RUNTIME DESTINATION .)
foreach(rank F E D C B A)
  install(DIRECTORY DESTINATION "Teams/Rank ${rank}")
endforeach()
install(DIRECTORY DESTINATION Settings)
install(FILES LICENSE DESTINATION .)

# The folder knows no place of its own, so it goes into the menu only when its user asks for it.
if(FROSTMARK_DESKTOP)
  install(TARGETS frostmark RUNTIME DESTINATION .)
  install(PROGRAMS packaging/add-to-menu DESTINATION .)
  set(id packaging/io.frostmark.frostmark)
  set(icon packaging/icons/io.frostmark.frostmark)
  install(FILES ${id}.desktop ${id}.metainfo.xml
    ${icon}.svg ${icon}-48.png ${icon}-128.png ${icon}-256.png
    DESTINATION menu)
  # The fonts are built in, and their licence asks to come along.
  file(GLOB font_licences RELATIVE ${CMAKE_CURRENT_SOURCE_DIR}/desktop/fonts CONFIGURE_DEPENDS
    desktop/fonts/*/OFL.txt)
  foreach(licence ${font_licences})
    get_filename_component(font ${licence} DIRECTORY)
    install(FILES desktop/fonts/${licence} DESTINATION licences RENAME ${font}-OFL.txt)
  endforeach()
endif()

# `cpack` in the build folder makes an archive of the portable folder.
set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_NAME frostmark)
set(CPACK_PACKAGE_VENDOR "The Frostmark developers")
set(CPACK_PACKAGE_FILE_NAME
  "frostmark-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}")
set(CPACK_STRIP_FILES ON)
include(CPack)
