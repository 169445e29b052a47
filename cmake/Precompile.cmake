# vantoplex_precompile(TARGET HEADER [OWN...])
#
# HEADER is precompiled for TARGET, and for whoever reuses it. It includes headers of the system and,
# of ours, none but OWN. g++ never writes the same file twice, so the compiler cache compares a sum
# beside it instead: that of all these and the compiler's version. Then one tree's cache serves another.
function(vantoplex_precompile target header)
  target_precompile_headers(${target} PRIVATE ${header})
  set(sum "")
  foreach(file IN ITEMS ${header} ${ARGN})
    file(SHA256 ${file} one)
    string(SHA256 sum "${sum}${one}")
  endforeach()
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header} ${ARGN})
  get_target_property(folder ${target} BINARY_DIR)
  file(WRITE ${folder}/CMakeFiles/${target}.dir/cmake_pch.hxx.gch.sum
       "${sum} ${CMAKE_CXX_COMPILER_VERSION} ${CMAKE_CXX_COMPILER_TARGET}\n")
endfunction()
