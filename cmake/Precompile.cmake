# vantoplex_precompile(TARGET HEADER)
#
# HEADER, which includes headers of the system alone, is precompiled for TARGET, and for whoever
# reuses it. g++ never writes the same file twice, so the compiler cache compares a sum beside it
# instead: that of the header and the compiler's version. Then one tree's cache serves another.
function(vantoplex_precompile target header)
  target_precompile_headers(${target} PRIVATE ${header})
  file(SHA256 ${header} sum)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
  get_target_property(folder ${target} BINARY_DIR)
  file(WRITE ${folder}/CMakeFiles/${target}.dir/cmake_pch.hxx.gch.sum
       "${sum} ${CMAKE_CXX_COMPILER_VERSION} ${CMAKE_CXX_COMPILER_TARGET}\n")
endfunction()
