# Every header brings what it needs: a source for each that includes it alone, and twice.
find_package(GTest REQUIRED)
file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}
  records/*.h ui/*.h world/*.h shell/*.h match/*.h season/*.h development/*.h draft/*.h program/*.h
  console/*.h desktop/*.h tests/*.h bench/*.h tools/*.h)
if(NOT FROSTMARK_DESKTOP)
  list(FILTER headers EXCLUDE REGEX "^(desktop|tests/(desktop|windows)|bench|tools/screenshots)/")
endif()

set(sources)
foreach(header ${headers})
  set(source ${CMAKE_CURRENT_BINARY_DIR}/header_checks/${header}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT
    "#include \"${header}\"\n#include \"${header}\"  // its guard holds\n" @ONLY)
  list(APPEND sources ${source})
endforeach()
add_library(header_checks OBJECT ${sources})
target_link_libraries(header_checks PRIVATE frostmark_core GTest::gtest)
if(FROSTMARK_DESKTOP)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
  target_link_libraries(header_checks PRIVATE frostmark_desktop Qt6::Test)
endif()
