# Every target of our own takes these; third-party sources do not.
add_library(vantoplex-flags INTERFACE)
target_include_directories(vantoplex-flags INTERFACE ${PROJECT_SOURCE_DIR}/src)

# Results of floating-point arithmetic are part of the contract: no fused operations.
# g++ drops the loop exit of a function that lacks its return, hence return-type by name.
target_compile_options(vantoplex-flags INTERFACE
  -Wall -Wextra -Wshadow=local -Wnon-virtual-dtor -Werror -Werror=return-type
  -ffp-contract=off -fno-fast-math)

if(WIN32)
  # For what is shipped: its debug information names no folder of the machine that built it.
  set(VANTOPLEX_SHIPPED "-fdebug-prefix-map=${PROJECT_SOURCE_DIR}=." "-fdebug-prefix-map=${CMAKE_BINARY_DIR}=build")
  # Not among the options below: targets that are never shipped put -O0 and -g0 in their place, and
  # the last counts. DWARF 4 is what Wine's debugger can name functions from.
  set(CMAKE_CXX_FLAGS_RELEASE "-O2 -gdwarf-4 -DNDEBUG -D_FORTIFY_SOURCE=2")
  target_compile_definitions(vantoplex-flags INTERFACE
    UNICODE _UNICODE NOMINMAX STRICT WIN32_LEAN_AND_MEAN
    WINVER=0x0601 _WIN32_WINNT=0x0601 _WIN32_IE=0x0800)
  target_compile_options(vantoplex-flags INTERFACE
    -fstack-protector-strong -msse2 -mfpmath=sse)
  target_link_options(vantoplex-flags INTERFACE
    -static -fstack-protector-strong -Wl,--nxcompat,--dynamicbase,--high-entropy-va)
else()
  set(CMAKE_CXX_FLAGS_DEBUG "-O1 -g1")
  set(VANTOPLEX_CHECKS -fno-sanitize-recover=all CACHE STRING "Further options of the native sanitizers")
  target_compile_options(vantoplex-flags INTERFACE -fno-omit-frame-pointer
    -fsanitize=address,undefined ${VANTOPLEX_CHECKS})
  target_link_options(vantoplex-flags INTERFACE -fsanitize=address,undefined)
endif()
