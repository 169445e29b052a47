# With VANTOPLEX_COVERAGE (scripts/coverage.sh) rooms count which of their lines run. What uses them
# is compiled as ever, so that the compiler's cache serves it.
option(VANTOPLEX_COVERAGE "Rooms count which of their lines run" OFF)
set(VANTOPLEX_COUNTING "")
if(VANTOPLEX_COVERAGE)
  # Unoptimised: a branch of the source is then one of the program.
  set(VANTOPLEX_COUNTING --coverage -O0 -U_FORTIFY_SOURCE)
endif()

# Whoever links ROOM writes its counts. Checks of sanitizers would be branches too; only a source's
# own options come behind those of the target.
function(vantoplex_count_lines room)
  if(VANTOPLEX_COVERAGE)
    target_compile_options(${room} PRIVATE ${VANTOPLEX_COUNTING})
    get_target_property(files ${room} SOURCES)
    set_source_files_properties(${files} PROPERTIES COMPILE_OPTIONS -fno-sanitize=all)
    if(NOT WIN32 AND WideScan.cpp IN_LIST files) # there is nothing in it without optimisation
      set_source_files_properties(WideScan.cpp PROPERTIES COMPILE_OPTIONS "-fno-sanitize=all;-O1")
    endif()
    target_link_options(${room} INTERFACE --coverage)
  endif()
endfunction()

# The DLL tears nothing down when its process ends: for its counts it gets an entry point of their own.
function(vantoplex_write_counts_of dll)
  if(VANTOPLEX_COVERAGE)
    target_sources(${dll} PRIVATE ${PROJECT_SOURCE_DIR}/tests/coverage/CountedEntry.cpp)
    target_link_options(${dll} PRIVATE -Wl,--entry=CountedEntry)
  endif()
endfunction()
