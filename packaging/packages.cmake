# SPDX-License-Identifier: MIT
#
# The packages that cpack makes for `make packages`: with the preset `package`, a Debian package with
# everything that is installed, and an archive with the statically linked programs; with `arm64`, such
# an archive; with `windows-package`, an archive with the programs and the shared library.
# cmake/Install.cmake includes this file.

include_guard(GLOBAL)

if(NOT A2L2JSON_STATIC AND NOT WIN32)
  return()
endif()

set(CPACK_PACKAGE_NAME "${PROJECT_NAME}")
set(CPACK_PACKAGE_VENDOR "The a2l2json authors")
set(CPACK_PACKAGE_CONTACT "${CPACK_PACKAGE_VENDOR}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "converter from A2L files to JSON")
set(CPACK_PACKAGE_DESCRIPTION
    "a2l2json converts an A2L file (ASAM MCD-2 MC, the description of an engine
control unit's measurements and calibration objects) into one JSON document,
and reports mistakes with their lines. a2lmend tells beforehand what the layout
of a file would cost, and writes the file in a layout that costs nothing.

The same is there for C++ programs: a static library with its headers, a CMake
package and a pkg-config file. Programs in C and in all languages that can call
C have a shared library.")
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
string(TOLOWER "${CMAKE_SYSTEM_NAME}" system)
set(CPACK_PACKAGE_FILE_NAME
    "${PROJECT_NAME}-${PROJECT_VERSION}-${system}-${CMAKE_SYSTEM_PROCESSOR}")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PROJECT_CONFIG_FILE "${packaging}/contents.cmake")

# ---------------------------------------------------------------------------------------------
# The archives

if(A2L2JSON_STATIC)
  foreach(program ${programs})
    install(TARGETS ${program}_static COMPONENT static EXCLUDE_FROM_ALL)
  endforeach()
endif()
if(NOT A2L2JSON_LIBRARY)
  include(CPack)
  return()
endif()

# ---------------------------------------------------------------------------------------------
# The Debian package. In it, some files have other names or are compressed.

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${CPACK_PACKAGE_CONTACT}")
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "g++, cmake | pkgconf")

find_program(A2L2JSON_GZIP gzip REQUIRED)
mark_as_advanced(A2L2JSON_GZIP)

# The licence as the file `copyright` must have it: indented, with a full stop for an empty line.
file(READ "${PROJECT_SOURCE_DIR}/LICENSE" licence)
string(REGEX MATCH "Copyright \\(c\\) ([^\n]+)" copyright "${licence}")
set(A2L2JSON_COPYRIGHT "${CMAKE_MATCH_1}")
string(FIND "${licence}" "Permission" begin)
string(SUBSTRING "${licence}" ${begin} -1 licence)
string(STRIP "${licence}" licence)
string(REPLACE "\n\n" "\n.\n" licence "${licence}")
string(REPLACE "\n" "\n " A2L2JSON_LICENCE "${licence}")

string(TIMESTAMP A2L2JSON_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file("${packaging}/debian-copyright.in" "${generated}/copyright" @ONLY)
configure_file("${packaging}/debian-changelog.in" "${generated}/changelog" @ONLY)
execute_process(COMMAND "${A2L2JSON_GZIP}" -9nkf "${generated}/changelog" COMMAND_ERROR_IS_FATAL ANY)
install(
  FILES "${generated}/copyright" "${generated}/changelog.gz"
  DESTINATION "${CMAKE_INSTALL_DOCDIR}"
  COMPONENT debian EXCLUDE_FROM_ALL)
foreach(program ${programs})
  execute_process(COMMAND "${A2L2JSON_GZIP}" -9nkf "${generated}/${program}.1"
                          COMMAND_ERROR_IS_FATAL ANY)
  install(
    FILES "${generated}/${program}.1.gz"
    DESTINATION "${CMAKE_INSTALL_MANDIR}/man1"
    COMPONENT debian EXCLUDE_FROM_ALL)
  install(
    FILES "${packaging}/completions/_${program}"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions"
    COMPONENT debian EXCLUDE_FROM_ALL)
endforeach()

include(CPack)
