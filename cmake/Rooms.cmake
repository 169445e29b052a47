# A room is one folder of src/. Its CMakeLists.txt calls
#   vantoplex_room(NAME [ARITHMETIC file.cpp ...])
# All .cpp files of the folder and of its tools/ belong to the room; those named after ARITHMETIC
# include no platform header and are built natively as well.
#
# Windows: object library room-NAME of every file.
# Native:  object library room-NAME of the ARITHMETIC files alone.

# For builds that look closer (scripts/instrumented.sh): the tests themselves are compiled as ever, so
# that the compiler's cache serves them.
set(VANTOPLEX_ROOM_OPTIONS "" CACHE STRING "Further compiler options of every room")
set(VANTOPLEX_ROOM_SOURCES "" CACHE STRING "Further sources of whatever links rooms")

if(WIN32)
  # Functions right behind one another: a twentieth of the DLL is what would lie between them.
  set(VANTOPLEX_CLOSE -falign-functions=1 -fno-align-jumps -fno-align-labels)

  # Holds nothing: its precompiled headers are those of every room.
  file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/rooms-shared.cpp CONTENT "// Precompiles headers, and is empty itself.\n")
  add_library(rooms-shared OBJECT ${CMAKE_BINARY_DIR}/rooms-shared.cpp)
  target_link_libraries(rooms-shared PUBLIC vantoplex-flags)
  target_compile_options(rooms-shared PRIVATE ${VANTOPLEX_CLOSE} ${VANTOPLEX_SHIPPED} ${VANTOPLEX_ROOM_OPTIONS} ${VANTOPLEX_COUNTING})
  vantoplex_precompile(rooms-shared ${PROJECT_SOURCE_DIR}/src/base/Precompiled.h)
endif()

function(vantoplex_room name)
  cmake_parse_arguments(room "" "" "ARITHMETIC" ${ARGN})
  if(WIN32)
    file(GLOB files CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp
         ${CMAKE_CURRENT_SOURCE_DIR}/tools/*.cpp)
  else()
    set(files ${room_ARITHMETIC})
  endif()
  if(NOT files)
    add_library(room-${name} INTERFACE)
    return()
  endif()
  add_library(room-${name} OBJECT ${files})
  target_link_libraries(room-${name} PUBLIC vantoplex-flags)
  if(name STREQUAL "base")
    target_sources(room-${name} PRIVATE ${VANTOPLEX_ROOM_SOURCES})
  endif()
  if(WIN32)
    target_compile_options(room-${name} PRIVATE ${VANTOPLEX_CLOSE} ${VANTOPLEX_SHIPPED} ${VANTOPLEX_ROOM_OPTIONS})
    target_precompile_headers(room-${name} REUSE_FROM rooms-shared)
  endif()
  vantoplex_count_lines(room-${name})
  if(WIN32 AND TARGET vantoplex-typelib)
    target_link_libraries(room-${name} PUBLIC vantoplex-typelib)
  endif()
endfunction()
