# vantoplex-headers compiles every header under src/ and hosts/ by itself for Windows, so that
# no file depends on what its neighbour happened to include first. Only what changed is compiled.
function(vantoplex_check_headers)
  set(includes ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/hosts ${PROJECT_SOURCE_DIR}/kit/include
    ${CMAKE_BINARY_DIR}/include)
  list(TRANSFORM includes PREPEND -I)
  get_target_property(options vantoplex-flags INTERFACE_COMPILE_OPTIONS)
  list(REMOVE_ITEM options -O2 -gdwarf-4 -D_FORTIFY_SOURCE=2)
  get_target_property(definitions vantoplex-flags INTERFACE_COMPILE_DEFINITIONS)
  list(TRANSFORM definitions PREPEND -D)
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}
    ${PROJECT_SOURCE_DIR}/src/*.h ${PROJECT_SOURCE_DIR}/hosts/*.h)
  set(stamps "")
  foreach(header IN LISTS headers)
    set(stamp ${CMAKE_BINARY_DIR}/headers/${header}.ok)
    get_filename_component(folder ${stamp} DIRECTORY)
    file(MAKE_DIRECTORY ${folder})
    # A source that includes the header twice: it must also guard itself.
    file(CONFIGURE OUTPUT ${stamp}.cpp CONTENT
      "#include \"${PROJECT_SOURCE_DIR}/${header}\"\n#include \"${PROJECT_SOURCE_DIR}/${header}\"\n" @ONLY)
    add_custom_command(
      OUTPUT ${stamp}
      COMMAND ${CMAKE_CXX_COMPILER} -std=c++20 ${options} ${definitions} ${includes}
              -fsyntax-only -MD -MF ${stamp}.d -MT ${stamp} ${stamp}.cpp
      COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
      DEPFILE ${stamp}.d
      DEPENDS ${PROJECT_SOURCE_DIR}/${header} vantoplex-typelib-files
      COMMENT "Compiling ${header} alone"
      VERBATIM)
    list(APPEND stamps ${stamp})
  endforeach()
  add_custom_target(vantoplex-headers DEPENDS ${stamps})
endfunction()
