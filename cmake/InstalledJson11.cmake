# SPDX-License-Identifier: MIT
#
# Finds json11 if it is installed. The build uses this file, and so does the CMake package that the
# build installs, which has a copy of it.

# Defines the target json11::json11 if json11 is installed, as a CMake package or as a pkg-config
# module, and nothing otherwise. If the target exists already, it stays as it is.
function(a2l2json_find_installed_json11)
  if(TARGET json11::json11)
    return()
  endif()
  find_package(json11 CONFIG QUIET GLOBAL)
  if(NOT TARGET json11::json11 AND TARGET json11)
    add_library(json11::json11 ALIAS json11)
  endif()
  if(TARGET json11::json11)
    message(STATUS "json11: installed CMake package")
    return()
  endif()

  find_package(PkgConfig QUIET)
  if(PKG_CONFIG_FOUND)
    pkg_check_modules(JSON11 QUIET IMPORTED_TARGET GLOBAL json11)
    if(TARGET PkgConfig::JSON11)
      add_library(json11::json11 ALIAS PkgConfig::JSON11)
      message(STATUS "json11: installed pkg-config module")
    endif()
  endif()
endfunction()
