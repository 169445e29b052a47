# Debian ships GoogleTest as sources, so it is built with the compiler of the preset.
set(GTEST_SOURCE /usr/src/googletest/googletest CACHE PATH "GoogleTest sources")
add_library(gtest-built STATIC ${GTEST_SOURCE}/src/gtest-all.cc)
target_include_directories(gtest-built SYSTEM PUBLIC ${GTEST_SOURCE}/include PRIVATE ${GTEST_SOURCE})
if(NOT WIN32)
  target_compile_options(gtest-built PRIVATE -fsanitize=address,undefined)
endif()
