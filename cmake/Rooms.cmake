# A room is a folder of sources that becomes one library. Its headers are seen through a folder of links
# (build/rooms/<room>/<room> -> the sources), so a target can include only the rooms that it is linked to:
# an include that climbs a floor does not compile. All builds share the links, so that a compiler cache serves
# them all.
set(ZEPHON_ROOMS ${CMAKE_SOURCE_DIR}/build/rooms)

function(zephon_library name folder prefix)
  file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp)
  file(GLOB headers CONFIGURE_DEPENDS ${folder}/*.h)
  set(seen ${ZEPHON_ROOMS}/${name})
  file(MAKE_DIRECTORY ${seen})
  file(CREATE_LINK ${folder} ${seen}/${prefix} SYMBOLIC)
  list(TRANSFORM ARGN PREPEND zephon_room_)
  if(sources)
    add_library(zephon_room_${name} STATIC ${sources} ${headers})
    target_include_directories(zephon_room_${name} PUBLIC ${seen})
    target_link_libraries(zephon_room_${name} PUBLIC ${ARGN})
  else()
    add_library(zephon_room_${name} INTERFACE)
    target_include_directories(zephon_room_${name} INTERFACE ${seen})
    target_link_libraries(zephon_room_${name} INTERFACE ${ARGN})
  endif()
endfunction()

function(zephon_room name)
  zephon_library(${name} ${CMAKE_SOURCE_DIR}/src/${name} ${name} ${ARGN})
endfunction()

# A program whose sources lie in one folder, linked to the room of the folder above it.
function(zephon_program name folder)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE zephon_room_simulator)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
endfunction()

# Headers that nearly each source of a target includes, compiled once. With a compiler cache it would only spoil
# the hits, so it is left out there; the sources include what they use in any case.
function(zephon_precompile target)
  if(CMAKE_CXX_COMPILER_LAUNCHER)
    return()
  endif()
  list(GET ARGN 0 first)
  if(first STREQUAL REUSE_FROM)
    target_precompile_headers(${target} ${ARGN})
  else()
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()
