# Debian ships GoogleTest as sources, so it is built with the compiler of the preset.
set(GTEST_SOURCE /usr/src/googletest/googletest CACHE PATH "GoogleTest sources")
add_library(gtest-built STATIC ${GTEST_SOURCE}/src/gtest-all.cc)
target_include_directories(gtest-built SYSTEM PUBLIC ${GTEST_SOURCE}/include PRIVATE ${GTEST_SOURCE})
# Compiled once for each run of the test command on a new machine: optimised or with the sanitizers it
# takes as long as all the tests of a room.
target_compile_options(gtest-built PRIVATE -O0 -g0 -U_FORTIFY_SOURCE)
