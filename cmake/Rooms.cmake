# A room is a folder of src/ built as one static library. Only a room with
# TOOLKIT sees the toolkit's headers, so an include of them elsewhere does not
# compile. The warning set holds for all code of the project.

add_library(orvane_warnings INTERFACE)
target_compile_options(orvane_warnings INTERFACE -Wall -Wextra -Werror)

# orvane_room(name [TOOLKIT] [DEPENDS lower rooms...]): "config_values" is the
# room src/config/values.
function(orvane_room name)
  cmake_parse_arguments(ROOM "TOOLKIT" "" "DEPENDS" ${ARGN})
  string(REPLACE "_" "/" folder ${name})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${folder}/*.cpp)
  add_library(orvane_${name} STATIC ${sources})
  target_include_directories(orvane_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(orvane_${name} PRIVATE orvane_warnings PUBLIC Threads::Threads)
  foreach(lower ${ROOM_DEPENDS})
    target_link_libraries(orvane_${name} PUBLIC orvane_${lower})
  endforeach()
  if(ROOM_TOOLKIT)
    target_link_libraries(orvane_${name} PRIVATE PkgConfig::GTKMM)
    target_precompile_headers(orvane_${name} PRIVATE <gtkmm.h>)
  endif()
endfunction()
