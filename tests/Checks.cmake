# What `ctest` runs for the Windows build. The programs run under Wine by scripts/run-wine.sh;
# every run takes a prefix and a display of its own, so several may run at once.
# GoogleTest takes a path for absolute only with a drive; Z: is the root.
set(run_wine ${CMAKE_COMMAND} -E env VANTOPLEX_BUILD=${CMAKE_BINARY_DIR}/..
  ${PROJECT_SOURCE_DIR}/scripts/run-wine.sh)
set(results ${CMAKE_BINARY_DIR}/results)
file(MAKE_DIRECTORY ${results})

# A process per test would spend its time in starting Wine; one for all would use one core and
# lose every result in a crash.
set(VANTOPLEX_SHARDS 6 CACHE STRING "Number of processes that the tests are spread over")
math(EXPR last "${VANTOPLEX_SHARDS} - 1")
foreach(shard RANGE ${last})
  add_test(NAME windows-${shard} COMMAND ${run_wine} -t 580 $<TARGET_FILE:vantoplex-tests>
    --gtest_brief=1 --gtest_output=xml:Z:${results}/windows-${shard}.xml)
  set_tests_properties(windows-${shard} PROPERTIES
    TIMEOUT 600
    ENVIRONMENT "GTEST_TOTAL_SHARDS=${VANTOPLEX_SHARDS};GTEST_SHARD_INDEX=${shard}")
endforeach()

find_package(Python3 REQUIRED COMPONENTS Interpreter)
add_test(NAME include-arrows
  COMMAND Python3::Interpreter ${CMAKE_CURRENT_SOURCE_DIR}/support/check_includes.py ${PROJECT_SOURCE_DIR})
add_test(NAME style
  COMMAND Python3::Interpreter ${CMAKE_CURRENT_SOURCE_DIR}/support/check_style.py ${PROJECT_SOURCE_DIR})
add_test(NAME format COMMAND ${PROJECT_SOURCE_DIR}/scripts/format.sh check)
set_tests_properties(format PROPERTIES TIMEOUT 300)
if(TARGET Vantoplex)
  add_test(NAME dll-exports-and-imports
    COMMAND Python3::Interpreter ${CMAKE_CURRENT_SOURCE_DIR}/support/check_dll.py
            ${CMAKE_OBJDUMP} $<TARGET_FILE:Vantoplex>)
endif()

# No header depends on what its neighbour happened to include first.
set(header_options -std=c++20)
get_target_property(options vantoplex-flags INTERFACE_COMPILE_OPTIONS)
list(APPEND header_options ${options})
get_target_property(options vantoplex-flags INTERFACE_COMPILE_DEFINITIONS)
list(TRANSFORM options PREPEND -D)
list(APPEND header_options ${options})
foreach(folder src hosts kit/include)
  list(APPEND header_options -I${PROJECT_SOURCE_DIR}/${folder})
endforeach()
add_test(NAME headers-compile-alone
  COMMAND Python3::Interpreter ${CMAKE_CURRENT_SOURCE_DIR}/support/headers_alone.py ${CMAKE_BINARY_DIR}/headers
          ${PROJECT_SOURCE_DIR} ${CMAKE_CXX_COMPILER} ${header_options} -I${CMAKE_BINARY_DIR}/include)
# On one core from the beginning on, beside the programs, which wait for Wine half of their time.
set_tests_properties(headers-compile-alone PROPERTIES TIMEOUT 900 COST 1000)

# The programs of README.md and docs/first-program.md, as they are printed there.
foreach(page README docs/first-program)
  get_filename_component(page_name ${page} NAME)
  set(page_program ${CMAKE_BINARY_DIR}/pages/${page_name}.cpp)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${page}.md)
  file(READ ${PROJECT_SOURCE_DIR}/${page}.md text)
  string(REGEX MATCH "```cpp\n([^`]*)```" ignored "${text}")
  if(NOT CMAKE_MATCH_1)
    message(FATAL_ERROR "${page}.md shows no program")
  endif()
  file(CONFIGURE OUTPUT ${page_program} CONTENT "${CMAKE_MATCH_1}" @ONLY)
endforeach()
add_library(vantoplex-readme OBJECT EXCLUDE_FROM_ALL ${CMAKE_BINARY_DIR}/pages/README.cpp)
target_link_libraries(vantoplex-readme PRIVATE vantoplex-flags vantoplex-typelib)
add_executable(vantoplex-first-program WIN32 EXCLUDE_FROM_ALL ${CMAKE_BINARY_DIR}/pages/first-program.cpp)
target_link_libraries(vantoplex-first-program PRIVATE vantoplex-flags vantoplex-typelib ole32 oleaut32 uuid)
target_link_options(vantoplex-first-program PRIVATE -municode)
foreach(program readme first-program)
  add_test(NAME ${program}-compiles
    COMMAND ${CMAKE_COMMAND} --build ${CMAKE_BINARY_DIR} --target vantoplex-${program})
  set_tests_properties(${program}-compiles PROPERTIES TIMEOUT 300 RUN_SERIAL ON)
endforeach()

# The example that analyses a curve.
add_executable(vantoplex-analysis-host WIN32 EXCLUDE_FROM_ALL ${PROJECT_SOURCE_DIR}/docs/examples/analysis-host.cpp)
target_link_libraries(vantoplex-analysis-host PRIVATE vantoplex-flags vantoplex-typelib ole32 oleaut32 uuid)
target_link_options(vantoplex-analysis-host PRIVATE -municode)
add_test(NAME analysis-example-compiles
  COMMAND ${CMAKE_COMMAND} --build ${CMAKE_BINARY_DIR} --target vantoplex-analysis-host)
set_tests_properties(analysis-example-compiles PROPERTIES TIMEOUT 300 RUN_SERIAL ON)

# Reference, constants and other languages' files are made from the interface definition: nothing
# may be undocumented or stale. Their C and C++ compile as the oldest standard that they are for.
add_test(NAME kit-is-whole COMMAND Python3::Interpreter ${PROJECT_SOURCE_DIR}/kit/make.py check)
set(kit_includes -I${PROJECT_SOURCE_DIR}/kit/include -I${PROJECT_SOURCE_DIR}/kit/languages -I${CMAKE_BINARY_DIR}/include)
foreach(standard 17 20)
  add_test(NAME kit-compiles-as-cpp${standard} COMMAND ${CMAKE_CXX_COMPILER} -std=c++${standard} -Wall -Wextra -Werror
    ${kit_includes} -fsyntax-only -include vantoplex.hpp -x c++ /dev/null)
endforeach()
# The other compiler, where it is installed, alone and with Visual C++'s extensions.
find_program(CLANG NAMES clang++-14 clang++)
if(CLANG)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=include/c++ OUTPUT_VARIABLE of_mingw
                  OUTPUT_STRIP_TRAILING_WHITESPACE)
  foreach(mode "" -fms-extensions)
    foreach(standard 17 20)
      add_test(NAME kit-compiles-with-clang${mode}${standard} COMMAND ${CLANG} --target=x86_64-w64-mingw32 ${mode}
        -std=c++${standard} -Wall -Wextra -Werror -nostdinc++ -isystem ${of_mingw} -isystem ${of_mingw}/x86_64-w64-mingw32
        ${kit_includes} -fsyntax-only -include vantoplex.hpp -x c++ /dev/null)
    endforeach()
  endforeach()
endif()
add_test(NAME kit-compiles-as-c COMMAND ${CMAKE_C_COMPILER} -std=c11 -Wall -Wextra -Werror -pedantic
  ${kit_includes} -fsyntax-only -x c ${PROJECT_SOURCE_DIR}/kit/languages/vantoplex_c.h)

# The package as a stranger uses it (tests/package).
add_executable(vantoplex-package-host package/host.cpp)
target_link_libraries(vantoplex-package-host PRIVATE vantoplex-flags vantoplex-typelib ole32 oleaut32 uuid gdi32 user32 advapi32)
foreach(case reproducible installs refusals)
  add_test(NAME package-${case} COMMAND ${CMAKE_COMMAND} -E env VANTOPLEX_BUILD=${CMAKE_BINARY_DIR}/..
    ${CMAKE_CURRENT_SOURCE_DIR}/package/package-test.sh ${CMAKE_BINARY_DIR} $<TARGET_FILE:vantoplex-package-host> ${case})
  set_tests_properties(package-${case} PROPERTIES TIMEOUT 300)
endforeach()

# Every recipe draws the picture of its page.
add_test(NAME recipes-draw-their-pictures COMMAND ${CMAKE_COMMAND} -E env VANTOPLEX_BUILD=${CMAKE_BINARY_DIR}/..
  ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/recipes/check_recipes.py ${PROJECT_SOURCE_DIR}
  $<TARGET_FILE:vantoplex-recipes> ${CMAKE_BINARY_DIR}/recipes)
set_tests_properties(recipes-draw-their-pictures PROPERTIES TIMEOUT 300)

# The samples that need nothing but what is here; scripts/languages.sh runs those of more languages.
add_test(NAME samples-run COMMAND ${CMAKE_COMMAND} -E env VANTOPLEX_BUILD=${CMAKE_BINARY_DIR}/..
  ${PROJECT_SOURCE_DIR}/scripts/languages.sh c python jscript)
set_tests_properties(samples-run PROPERTIES TIMEOUT 300)
