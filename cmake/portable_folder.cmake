# `cmake --install DIR --prefix P` lays out a portable folder: the programs with the empty league
# folders and Settings of data/ beside them. git holds no empty folder, so each has a place holder,
# and a league folder must hold nothing but teams, so it stays behind. A world that is already there
# stays as it is.
install(TARGETS frostmark-console RUNTIME DESTINATION .)
install(DIRECTORY data/ DESTINATION . PATTERN .keep EXCLUDE)
install(FILES LICENSE DESTINATION .)

# The folder knows no place of its own, so it goes into the menu only when its user asks for it.
set(frostmark_id packaging/io.frostmark.frostmark)
set(frostmark_icon packaging/icons/io.frostmark.frostmark)
if(FROSTMARK_DESKTOP)
  install(TARGETS frostmark RUNTIME DESTINATION .)
  install(PROGRAMS packaging/add-to-menu DESTINATION .)
  install(FILES ${frostmark_id}.desktop ${frostmark_id}.metainfo.xml
    ${frostmark_icon}.svg ${frostmark_icon}-48.png ${frostmark_icon}-128.png
    ${frostmark_icon}-256.png
    DESTINATION menu)
  # The fonts are built in, and their licence asks to come along.
  file(GLOB font_licences RELATIVE ${CMAKE_CURRENT_SOURCE_DIR}/desktop/fonts CONFIGURE_DEPENDS
    desktop/fonts/*/OFL.txt)
  foreach(licence ${font_licences})
    get_filename_component(font ${licence} DIRECTORY)
    install(FILES desktop/fonts/${licence} DESTINATION licences RENAME ${font}-OFL.txt)
  endforeach()
endif()

# For the archive: `cmake --install DIR --prefix P --component libraries` adds what makes the folder
# run where no Qt is installed. The programs look for libraries beside themselves first. It has to be
# the old kind of path, since the new kind is not asked for what a library needs in turn.
set(programs frostmark-console)
if(FROSTMARK_DESKTOP)
  list(APPEND programs frostmark)
endif()
set(program_files)
foreach(program ${programs})
  set_target_properties(${program} PROPERTIES INSTALL_RPATH "$ORIGIN/lib")
  target_link_options(${program} PRIVATE -Wl,--disable-new-dtags)
  list(APPEND program_files $<TARGET_FILE:${program}>)
endforeach()
set(qt_plugins "")
if(FROSTMARK_DESKTOP)
  set(qt_plugins "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS}")
endif()
install(CODE "set(programs \"${program_files}\")
set(qt_plugins \"${qt_plugins}\")" COMPONENT libraries EXCLUDE_FROM_ALL)
install(SCRIPT cmake/bundle_libraries.cmake COMPONENT libraries EXCLUDE_FROM_ALL)
