# SPDX-License-Identifier: MIT
#
# Toolchain file of the preset `windows`: makes programs for Windows (x86-64) with MinGW-w64. They
# are linked statically and stripped, so that an .exe needs no other file. If Wine is installed,
# tests run under it.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# Debian has two of these compilers. The one with POSIX threads has the whole C++ library.
set(triplet x86_64-w64-mingw32)
find_program(A2L2JSON_MINGW_CXX NAMES ${triplet}-g++-posix ${triplet}-g++ REQUIRED)
mark_as_advanced(A2L2JSON_MINGW_CXX)
set(CMAKE_CXX_COMPILER "${A2L2JSON_MINGW_CXX}")
string(REPLACE "g++" "gcc" CMAKE_C_COMPILER "${A2L2JSON_MINGW_CXX}")
set(CMAKE_CXX_FLAGS_INIT "-Wno-restrict") # GCC 12 gives false alarms about std::string
foreach(kind EXE SHARED)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-static")
  set(CMAKE_${kind}_LINKER_FLAGS_RELEASE_INIT "-s")
endforeach()

set(CMAKE_FIND_ROOT_PATH "/usr/${triplet}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

find_program(A2L2JSON_WINE NAMES wine64 wine)
mark_as_advanced(A2L2JSON_WINE)
if(A2L2JSON_WINE)
  cmake_path(SET CMAKE_CROSSCOMPILING_EMULATOR NORMALIZE
             "${CMAKE_CURRENT_LIST_DIR}/../scripts/wine")
endif()
