# SPDX-License-Identifier: MIT
#
# Toolchain file of the preset `arm64`: makes programs for Linux on 64-bit ARM. If QEMU's user mode
# is installed, they run here as well.

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)

set(triplet aarch64-linux-gnu)
set(CMAKE_C_COMPILER ${triplet}-gcc)
set(CMAKE_CXX_COMPILER ${triplet}-g++)

set(CMAKE_FIND_ROOT_PATH "/usr/${triplet}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

find_program(A2L2JSON_QEMU qemu-aarch64)
mark_as_advanced(A2L2JSON_QEMU)
if(A2L2JSON_QEMU)
  set(CMAKE_CROSSCOMPILING_EMULATOR "${A2L2JSON_QEMU}" -L "/usr/${triplet}")
endif()
