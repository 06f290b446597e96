# SPDX-License-Identifier: MIT
#
# This file has everything that the build takes from outside:
#
#   json11::json11        the document as a json11       if it is installed; always with
#                         value, tests                   A2L2JSON_JSON11, and for tests,
#                                                        benchmarks and fuzz targets
#   CLI11::CLI11          arguments of a2lmend           if it is installed; always for tests
#   Iconv::Iconv          encodings for a2lmend          if the system has it
#   GTest::gtest_main     unit tests                     with A2L2JSON_BUILD_TESTS
#   benchmark::benchmark  benchmarks                     with A2L2JSON_BUILD_BENCH
#   {fmt}                 text of the generator there    with A2L2JSON_BUILD_BENCH
#
# The converter and the library need only the C++ standard library.
#
# `make deps` installs all of them once; configuring needs no network after that.

include_guard(GLOBAL)
include("${CMAKE_CURRENT_LIST_DIR}/InstalledJson11.cmake")

# Installed libraries are compiled for the system that builds, and with its standard library. For
# another one, the sources of GoogleTest and json11 will do; Debian has these as well.
option(A2L2JSON_LIBRARIES_FROM_SOURCE
       "Compile GoogleTest and json11 from sources, for another system or standard library" OFF)

# ---------------------------------------------------------------------------------------------
# CLI11, and iconv, which is part of the C library or a library of its own

# CLI11::CLI11 from the headers of the system that builds. They are reached through a link, because
# the folder that they are in has the headers of the C library as well.
function(a2l2json_take_cli11_headers)
  find_path(A2L2JSON_CLI11_HEADERS CLI/CLI.hpp PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH)
  mark_as_advanced(A2L2JSON_CLI11_HEADERS)
  if(NOT A2L2JSON_CLI11_HEADERS)
    return()
  endif()
  set(folder "${PROJECT_BINARY_DIR}/libraries/cli11")
  file(MAKE_DIRECTORY "${folder}")
  file(CREATE_LINK "${A2L2JSON_CLI11_HEADERS}/CLI" "${folder}/CLI" SYMBOLIC)
  add_library(CLI11::CLI11 INTERFACE IMPORTED GLOBAL)
  target_include_directories(CLI11::CLI11 SYSTEM INTERFACE "${folder}")
endfunction()

a2l2json_take_cli11_headers()
if(NOT TARGET CLI11::CLI11)
  find_package(CLI11 2 CONFIG QUIET)
endif()
if(NOT TARGET CLI11::CLI11 AND A2L2JSON_BUILD_TESTS)
  message(FATAL_ERROR "CLI11 was not found; run `make deps`, or install its development package "
                      "(libcli11-dev on Debian), or configure with -DA2L2JSON_BUILD_TESTS=OFF.")
endif()
if(NOT TARGET CLI11::CLI11)
  message(STATUS "CLI11: not installed; a2lmend is not built")
endif()
find_package(Iconv QUIET)

# ---------------------------------------------------------------------------------------------
# GoogleTest, Google Benchmark and {fmt}

# GTest::gtest and GTest::gtest_main from the sources on the system that builds.
function(a2l2json_take_googletest)
  find_path(A2L2JSON_GTEST_SOURCES src/gtest-all.cc PATHS /usr/src/googletest/googletest
            NO_CMAKE_FIND_ROOT_PATH)
  mark_as_advanced(A2L2JSON_GTEST_SOURCES)
  if(NOT A2L2JSON_GTEST_SOURCES)
    return()
  endif()
  set(CMAKE_COMPILE_WARNING_AS_ERROR OFF)
  add_library(gtest STATIC "${A2L2JSON_GTEST_SOURCES}/src/gtest-all.cc")
  target_include_directories(
    gtest SYSTEM
    PUBLIC "${A2L2JSON_GTEST_SOURCES}/include"
    PRIVATE "${A2L2JSON_GTEST_SOURCES}")
  target_compile_features(gtest PUBLIC cxx_std_14)
  add_library(gtest_main STATIC "${A2L2JSON_GTEST_SOURCES}/src/gtest_main.cc")
  target_link_libraries(gtest_main PUBLIC gtest)
  add_library(GTest::gtest ALIAS gtest)
  add_library(GTest::gtest_main ALIAS gtest_main)
endfunction()

if(A2L2JSON_BUILD_TESTS)
  if(A2L2JSON_LIBRARIES_FROM_SOURCE)
    a2l2json_take_googletest()
  else()
    find_package(GTest CONFIG QUIET)
  endif()
  if(NOT TARGET GTest::gtest_main)
    message(FATAL_ERROR "GoogleTest was not found; run `make deps`, or install its development "
                        "package (libgtest-dev on Debian), or configure with "
                        "-DA2L2JSON_BUILD_TESTS=OFF.")
  endif()
endif()

if(A2L2JSON_BUILD_BENCH)
  find_package(fmt 9 CONFIG QUIET)
  if(NOT TARGET fmt::fmt)
    message(FATAL_ERROR "{fmt} 9 or newer was not found; run `make deps`, or install the "
                        "development package of {fmt} (libfmt-dev on Debian), or configure with "
                        "-DA2L2JSON_BUILD_BENCH=OFF.")
  endif()
  find_package(benchmark CONFIG QUIET)
  if(NOT TARGET benchmark::benchmark)
    message(FATAL_ERROR "Google Benchmark was not found; run `make deps`, or install its "
                        "development package (libbenchmark-dev on Debian), or configure with "
                        "-DA2L2JSON_BUILD_BENCH=OFF.")
  endif()
endif()

# ---------------------------------------------------------------------------------------------
# json11
#
# Looked for in this order:
#   1. an installed CMake package      3. .deps/json11, filled by an earlier run of step 4 or 5
#   2. an installed pkg-config module  4. cmake/fetch_json11.sh, if apt-get exists
#                                      5. upstream's repository, if git can reach it
#
# Sources from 3, 4 or 5 are compiled only if their SHA-256 is listed here. cmake/fetch_json11.sh
# reads these two lists as well, so keep the plain set(...) form.

set(A2L2JSON_JSON11_CPP_SHA256
    c96b3a0d7c1beec6062d232c6779a8cc2ef4e425aa82beddc69d34582a6ce940 # as carried by nextpnr 0.4
    f09628cb9b615995ca80001268031868d34031e2ad82b07567ff58575985b54f # as carried by yosys 0.23
)
set(A2L2JSON_JSON11_HPP_SHA256
    d3483048e71d6889b6e5b849bc1dd8dff18955ba667bb1254ee32d857603b4e8 # the same in both
)

set(A2L2JSON_JSON11_EXTRA_SHA256
    ""
    CACHE STRING "Further SHA-256 sums of json11.cpp and json11.hpp that this build accepts")
option(A2L2JSON_FETCH_JSON11 "Let CMake fetch json11 when it is neither installed nor in .deps" ON)
mark_as_advanced(A2L2JSON_JSON11_EXTRA_SHA256 A2L2JSON_FETCH_JSON11)

set(A2L2JSON_JSON11_HINT
    "run `make deps`, or install json11 (header, library and its pkg-config file)")

# Stops unless the checksum of the file is one of those given.
function(a2l2json_check_sha256 file)
  file(SHA256 "${file}" actual)
  set(accepted ${ARGN} ${A2L2JSON_JSON11_EXTRA_SHA256})
  if(NOT actual IN_LIST accepted)
    message(
      FATAL_ERROR
        "${file} has the SHA-256 ${actual}, which is not one that cmake/Dependencies.cmake "
        "accepts. Remove its folder and run `make deps` again; or, if you have read the file and "
        "trust it, configure with -DA2L2JSON_JSON11_EXTRA_SHA256=<sum>[;<sum>].")
  endif()
endfunction()

# Builds json11::json11 from the two files in `folder`, without this project's warnings.
function(a2l2json_add_json11 folder)
  a2l2json_check_sha256("${folder}/json11.cpp" ${A2L2JSON_JSON11_CPP_SHA256})
  a2l2json_check_sha256("${folder}/json11.hpp" ${A2L2JSON_JSON11_HPP_SHA256})
  add_library(json11 STATIC "${folder}/json11.cpp")
  add_library(json11::json11 ALIAS json11)
  target_include_directories(json11 SYSTEM PUBLIC "${folder}")
  target_compile_features(json11 PUBLIC cxx_std_11)
  target_link_libraries(json11 PRIVATE a2l2json_sanitizers)
  set_target_properties(json11 PROPERTIES CXX_CLANG_TIDY "" CXX_CPPCHECK "")
  if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(json11 PRIVATE -w)
  endif()
endfunction()

# Step 5. Leaves the sources in `folder`, or stops with the hint.
function(a2l2json_clone_json11 folder)
  set(repository "https://github.com/dropbox/json11.git")
  set(tag "v1.0.0")
  find_program(A2L2JSON_GIT git)
  mark_as_advanced(A2L2JSON_GIT)
  set(reached 1)
  if(A2L2JSON_GIT)
    execute_process(
      COMMAND ${CMAKE_COMMAND} -E env GIT_TERMINAL_PROMPT=0 "${A2L2JSON_GIT}" ls-remote
              --exit-code "${repository}" "refs/tags/${tag}"
      TIMEOUT 30
      RESULT_VARIABLE reached
      OUTPUT_QUIET ERROR_QUIET)
  endif()
  if(NOT reached EQUAL 0)
    message(FATAL_ERROR "json11 was not found; ${A2L2JSON_JSON11_HINT}.")
  endif()
  include(FetchContent)
  # The folder in SOURCE_SUBDIR does not exist, on purpose: only the files are wanted.
  FetchContent_Declare(
    json11_sources
    GIT_REPOSITORY "${repository}"
    GIT_TAG "${tag}"
    GIT_SHALLOW TRUE
    SOURCE_DIR "${folder}"
    SOURCE_SUBDIR no-build-files-wanted)
  FetchContent_MakeAvailable(json11_sources)
endfunction()

# Defines json11::json11, or stops with the hint.
function(a2l2json_take_json11)
  set(folder "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../.deps/json11")
  cmake_path(NORMAL_PATH folder)
  set(wanted "${folder}/json11.cpp" "${folder}/json11.hpp")
  list(GET wanted 0 source)
  list(GET wanted 1 header)

  if(A2L2JSON_FETCH_JSON11 AND NOT (EXISTS "${source}" AND EXISTS "${header}"))
    find_program(A2L2JSON_APT_GET apt-get)
    mark_as_advanced(A2L2JSON_APT_GET)
    if(A2L2JSON_APT_GET)
      message(STATUS "json11: not installed, taking it from a distribution source package")
      execute_process(COMMAND sh "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/fetch_json11.sh" "${folder}")
    endif()
    if(NOT (EXISTS "${source}" AND EXISTS "${header}"))
      message(STATUS "json11: not installed, trying its upstream repository")
      a2l2json_clone_json11("${folder}")
    endif()
  endif()

  if(NOT (EXISTS "${source}" AND EXISTS "${header}"))
    message(FATAL_ERROR "json11 was not found; ${A2L2JSON_JSON11_HINT}.")
  endif()
  a2l2json_add_json11("${folder}")
  message(STATUS "json11: ${folder}")
endfunction()

if(NOT A2L2JSON_LIBRARIES_FROM_SOURCE)
  a2l2json_find_installed_json11()
endif()
if(NOT TARGET json11::json11)
  if(A2L2JSON_JSON11
     OR A2L2JSON_BUILD_TESTS
     OR A2L2JSON_BUILD_BENCH
     OR A2L2JSON_BUILD_FUZZ
     OR A2L2JSON_FUZZ)
    a2l2json_take_json11()
  else()
    message(STATUS "json11: not installed, and nothing needs it; the library goes without")
  endif()
endif()
