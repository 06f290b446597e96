# SPDX-License-Identifier: MIT
#
# Toolchain file: WebAssembly made with Clang and the C and C++ libraries that Debian has for it, for
# the preset `wasm`. The module has no files, no exceptions and no threads.

set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR wasm32)

set(A2L2JSON_WASM_CLANG
    22
    CACHE STRING "Version of Clang and of its libraries for WebAssembly")
find_program(A2L2JSON_WASM_CXX NAMES clang++-${A2L2JSON_WASM_CLANG} REQUIRED)
mark_as_advanced(A2L2JSON_WASM_CXX A2L2JSON_WASM_CLANG)
set(CMAKE_CXX_COMPILER "${A2L2JSON_WASM_CXX}")
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(CMAKE_EXECUTABLE_SUFFIX_CXX .wasm)
# The compiler calls the system by a newer name than the libraries, and says so.
set(CMAKE_CXX_FLAGS_INIT "-Wno-deprecated -fno-exceptions -fvisibility=hidden")

set(CMAKE_FIND_ROOT_PATH "/usr/lib/wasm32-wasi")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
