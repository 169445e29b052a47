# vantoplex-headers compiles every header under src/ and hosts/ by itself for Windows, so that
# no file depends on what its neighbour happened to include first. Only what changed is compiled.
function(vantoplex_check_headers)
  find_package(Python3 REQUIRED COMPONENTS Interpreter)
  set(alone ${PROJECT_SOURCE_DIR}/tests/support/header_alone.py)
  set(folder ${CMAKE_BINARY_DIR}/headers)
  set(includes ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/hosts ${PROJECT_SOURCE_DIR}/kit/include
    ${CMAKE_BINARY_DIR}/include)
  list(TRANSFORM includes PREPEND -I)
  get_target_property(options vantoplex-flags INTERFACE_COMPILE_OPTIONS)
  get_target_property(definitions vantoplex-flags INTERFACE_COMPILE_DEFINITIONS)
  list(TRANSFORM definitions PREPEND -D)
  set(compiler ${CMAKE_CXX_COMPILER} -std=c++20 ${options} ${definitions} ${includes})
  set(precompiled ${folder}/system.ok)
  add_custom_command(
    OUTPUT ${precompiled}
    COMMAND Python3::Interpreter ${alone} precompile ${folder} ${compiler}
    COMMAND ${CMAKE_COMMAND} -E touch ${precompiled}
    DEPENDS ${alone}
    COMMENT "Precompiling the system's headers"
    VERBATIM)
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}
    ${PROJECT_SOURCE_DIR}/src/*.h ${PROJECT_SOURCE_DIR}/hosts/*.h)
  set(stamps "")
  foreach(header IN LISTS headers)
    set(stamp ${folder}/${header}.ok)
    add_custom_command(
      OUTPUT ${stamp}
      COMMAND Python3::Interpreter ${alone} compile ${folder} ${stamp}.cpp ${PROJECT_SOURCE_DIR} ${header}
              ${compiler} -MD -MF ${stamp}.d -MT ${stamp}
      COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
      DEPFILE ${stamp}.d
      DEPENDS ${PROJECT_SOURCE_DIR}/${header} ${precompiled} vantoplex-typelib-files
      COMMENT "Compiling ${header} alone"
      VERBATIM)
    list(APPEND stamps ${stamp})
  endforeach()
  add_custom_target(vantoplex-headers DEPENDS ${stamps})
endfunction()
