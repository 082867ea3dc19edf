# `cmake --install DIR --prefix P` lays out a portable folder: the programs with the empty league
# folders and Settings beside them. git holds no empty folder, and a league folder must hold nothing
# but teams, so they are made here. A world that is already there stays as it is.
install(TARGETS frostmark-console RUNTIME DESTINATION .)
if(FROSTMARK_DESKTOP)
  install(TARGETS frostmark RUNTIME DESTINATION .)
endif()
foreach(rank F E D C B A)
  install(DIRECTORY DESTINATION "Teams/Rank ${rank}")
endforeach()
install(DIRECTORY DESTINATION Settings)
