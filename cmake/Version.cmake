# vantoplex-version   carries <build>/version: VersionNumbers.h with the project's version as the
#                     version records and the viewer write it.
set(version_folder ${CMAKE_BINARY_DIR}/version)
set(VANTOPLEX_RELEASE ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}.${PROJECT_VERSION_PATCH})
string(REPLACE . ", " VANTOPLEX_RECORD ${PROJECT_VERSION})
file(CONFIGURE OUTPUT ${version_folder}/VersionNumbers.h CONTENT
"#pragma once
#define VANTOPLEX_RELEASE \"@VANTOPLEX_RELEASE@\"
#define VANTOPLEX_RECORD \"@VANTOPLEX_RECORD@\"
#define VANTOPLEX_RECORD_NUMBERS @VANTOPLEX_RECORD@
" @ONLY)
add_library(vantoplex-version INTERFACE)
target_include_directories(vantoplex-version INTERFACE ${version_folder})
