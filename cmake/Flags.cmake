# SPDX-License-Identifier: MIT
#
# How the code of this project is compiled. There are three INTERFACE targets:
#
#   a2l2json_flags       language level, warnings and instrumentation; every own target links it
#   a2l2json_sanitizers  the instrumentation alone, for code that is not ours
#   a2l2json_fuzzer      the libFuzzer main; empty unless A2L2JSON_FUZZ is on

include_guard(GLOBAL)

option(A2L2JSON_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(A2L2JSON_FUZZ "Build for libFuzzer (Clang only); implies the sanitizers" OFF)
option(A2L2JSON_COVERAGE "Build with coverage counters" OFF)

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(A2L2JSON_FUZZ AND NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  message(FATAL_ERROR "A2L2JSON_FUZZ needs Clang; configure with `cmake --preset fuzz`.")
endif()

# ---------------------------------------------------------------------------------------------
# Instrumentation

add_library(a2l2json_sanitizers INTERFACE)
if(A2L2JSON_SANITIZE OR A2L2JSON_FUZZ)
  set(instrument -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_options(a2l2json_sanitizers INTERFACE ${instrument})
  target_link_options(a2l2json_sanitizers INTERFACE ${instrument})
endif()

add_library(a2l2json_fuzzer INTERFACE)
if(A2L2JSON_FUZZ)
  target_compile_options(a2l2json_sanitizers INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(a2l2json_fuzzer INTERFACE -fsanitize=fuzzer)
  # Buffers so small that inputs of a few bytes reach their edges.
  target_compile_definitions(a2l2json_sanitizers INTERFACE A2L2JSON_SMALL_BUFFERS)
endif()

# ---------------------------------------------------------------------------------------------
# Own code

add_library(a2l2json_flags INTERFACE)
target_compile_features(a2l2json_flags INTERFACE cxx_std_20)
target_link_libraries(a2l2json_flags INTERFACE a2l2json_sanitizers)

if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang" AND NOT CMAKE_CXX_SIMULATE_ID STREQUAL "MSVC")
  target_compile_options(a2l2json_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
  target_compile_definitions(a2l2json_flags INTERFACE $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)
endif()

if(A2L2JSON_COVERAGE)
  # Atomic: some tests have threads.
  target_compile_options(a2l2json_flags INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(a2l2json_flags INTERFACE --coverage)
endif()

# ---------------------------------------------------------------------------------------------
# Release is -O3, as CMake has it for these compilers. The program is also optimised as a whole when
# it is linked (CMake's "interprocedural optimisation"). That takes a minute for a program as large
# as the tests and is of no use there. So tests and generators are linked without it, and their own
# code is compiled with -O1. The library that they test is compiled like that of the program.

if(CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT DEFINED CMAKE_INTERPROCEDURAL_OPTIMIZATION_RELEASE)
  include(CheckIPOSupported)
  check_ipo_supported(RESULT ipo_supported OUTPUT ipo_output LANGUAGES CXX)
  if(ipo_supported)
    set(CMAKE_INTERPROCEDURAL_OPTIMIZATION_RELEASE ON)
  else()
    message(STATUS "No interprocedural optimisation with this compiler")
  endif()
endif()

# GCC can compile by records of how often each branch was taken when the programs ran over a typical
# file: it then knows what to inline and where to put it. scripts/profile makes the records, which
# serve any build folder of the same source folder. A function that has changed since, or of which
# there are none, is compiled without them.
option(A2L2JSON_RECORD_PROFILE "Build programs that make such records when they run" OFF)
set(A2L2JSON_PROFILE
    ""
    CACHE PATH "Compile by the records in this folder, if there are any")

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT CMAKE_CROSSCOMPILING)
  set(records)
  if(A2L2JSON_PROFILE)
    cmake_path(ABSOLUTE_PATH A2L2JSON_PROFILE BASE_DIRECTORY "${PROJECT_SOURCE_DIR}" NORMALIZE)
    file(GLOB records "${A2L2JSON_PROFILE}/*.gcda")
  endif()
  set(profile)
  if(A2L2JSON_RECORD_PROFILE)
    set(profile -fprofile-generate=${PROJECT_BINARY_DIR}/records)
  elseif(records)
    # Without the correction, records of older sources would end the build.
    set(profile -fprofile-use=${A2L2JSON_PROFILE} -fprofile-partial-training -fprofile-correction
                -Wno-missing-profile -Wno-coverage-mismatch)
  endif()
  if(profile)
    list(APPEND profile -fprofile-prefix-path=${PROJECT_BINARY_DIR})
    add_compile_options(${profile})
    add_link_options(${profile})
  endif()
endif()

# GCC can write objects that serve both kinds of linking; those of Clang 14 serve only one.
set(A2L2JSON_TWO_KINDS_OF_OBJECTS OFF)
if(CMAKE_BUILD_TYPE STREQUAL "Release"
   AND CMAKE_INTERPROCEDURAL_OPTIMIZATION_RELEASE
   AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  set(A2L2JSON_TWO_KINDS_OF_OBJECTS ON)
  add_compile_options(-ffat-lto-objects)
endif()

# a2l2json_build_quickly(<target>...): for programs that run only a few times
function(a2l2json_build_quickly)
  if(NOT A2L2JSON_TWO_KINDS_OF_OBJECTS)
    return()
  endif()
  set_target_properties(${ARGV} PROPERTIES INTERPROCEDURAL_OPTIMIZATION_RELEASE OFF)
  foreach(target ${ARGV})
    target_compile_options(${target} PRIVATE -O1)
    target_link_options(${target} PRIVATE -fno-lto)
  endforeach()
endfunction()
