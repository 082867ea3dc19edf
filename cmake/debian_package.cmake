# What the Debian package installs: the component "system", below /usr. The launchers give each player
# a folder of their own, see packaging/debian/launcher.
set(system COMPONENT system EXCLUDE_FROM_ALL)
set(made ${CMAKE_CURRENT_BINARY_DIR}/debian)

foreach(program frostmark frostmark-console)
  install(TARGETS ${program} RUNTIME DESTINATION libexec/frostmark ${system})
  # The libraries are the system's.
  install(CODE "file(RPATH_REMOVE
    FILE \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/libexec/frostmark/${program}\")" ${system})
  install(PROGRAMS packaging/debian/launcher DESTINATION games RENAME ${program} ${system})
endforeach()

# /usr/games is not on every session's path.
file(READ ${frostmark_id}.desktop entry)
string(REPLACE "Exec=frostmark\n" "Exec=/usr/games/frostmark\n" entry "${entry}")
file(CONFIGURE OUTPUT ${made}/io.frostmark.frostmark.desktop CONTENT "${entry}" @ONLY)
install(FILES ${made}/io.frostmark.frostmark.desktop DESTINATION share/applications ${system})
install(FILES ${frostmark_id}.metainfo.xml DESTINATION share/metainfo ${system})
install(FILES ${frostmark_icon}.svg DESTINATION share/icons/hicolor/scalable/apps ${system})
foreach(size 48 128 256)
  install(FILES ${frostmark_icon}-${size}.png RENAME io.frostmark.frostmark.png
    DESTINATION share/icons/hicolor/${size}x${size}/apps ${system})
endforeach()
install(FILES packaging/debian/copyright DESTINATION share/doc/frostmark ${system})
if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/packaging/bash-completion/frostmark-console)
  install(FILES packaging/bash-completion/frostmark-console
    DESTINATION share/bash-completion/completions ${system})
endif()

# Pages and changelog are packed without a name or a time in them.
install(CODE "
function(pack file folder)
  file(MAKE_DIRECTORY \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/\${folder}\")
  get_filename_component(name \"\${file}\" NAME)
  execute_process(COMMAND gzip -9n INPUT_FILE \"\${file}\" COMMAND_ERROR_IS_FATAL ANY
    OUTPUT_FILE \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/\${folder}/\${name}.gz\")
endfunction()
foreach(program frostmark frostmark-console)
  pack(${CMAKE_CURRENT_SOURCE_DIR}/packaging/man/\${program}.6 share/man/man6)
endforeach()
execute_process(COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/tools/changelog debian
  OUTPUT_FILE ${made}/changelog COMMAND_ERROR_IS_FATAL ANY)
pack(${made}/changelog share/doc/frostmark)" ${system})
