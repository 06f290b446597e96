# SPDX-License-Identifier: MIT
#
# The library as other projects link it, a2l2json::a2l2json, and everything that `cmake --install`
# installs: the programs with their manual pages, shell completions, documentation and the JSON Schema
# of the documents, and, with A2L2JSON_LIBRARY, the library with its headers, CMake package and
# pkg-config file.
#
# The packages use the components (packaging/packages.cmake). `debian` and `static` hold files that
# a plain installation has in another form.

include_guard(GLOBAL)
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# ---------------------------------------------------------------------------------------------
# The library: all rooms in one archive

# a2l2json_archive(<name> <output> <room>...): the rooms as lib<output>.a
function(a2l2json_archive name output)
  add_library(${name} STATIC)
  foreach(room ${ARGN})
    target_sources(${name} PRIVATE $<TARGET_OBJECTS:${room}>)
  endforeach()
  target_include_directories(
    ${name} PUBLIC "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>"
                   "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>")
  target_compile_features(${name} PUBLIC cxx_std_20)
  set_target_properties(${name} PROPERTIES OUTPUT_NAME ${output} LINKER_LANGUAGE CXX)
  if(NOT A2L2JSON_LIBRARY)
    set_target_properties(${name} PROPERTIES EXCLUDE_FROM_ALL ON)
  endif()
endfunction()

a2l2json_archive(a2l2json_library a2l2json a2l2json_text a2l2json_model a2l2json_elements
                 a2l2json_mend a2l2json_reader a2l2json_export)
add_library(a2l2json::a2l2json ALIAS a2l2json_library)
set_target_properties(a2l2json_library PROPERTIES EXPORT_NAME a2l2json)

# json11 itself is not part of it: the installed CMake package looks for it and links it.
if(TARGET a2l2json_export_json11)
  a2l2json_archive(a2l2json_json11 a2l2json-json11 a2l2json_export_json11)
  add_library(a2l2json::json11 ALIAS a2l2json_json11)
  set_target_properties(a2l2json_json11 PROPERTIES EXPORT_NAME json11)
  target_link_libraries(a2l2json_json11 PUBLIC a2l2json_library $<BUILD_INTERFACE:json11::json11>)
endif()

if(NOT PROJECT_IS_TOP_LEVEL)
  return()
endif()

# ---------------------------------------------------------------------------------------------
# The programs, their manual pages, their completions, the documentation

set(generated "${PROJECT_BINARY_DIR}/packaging")
set(packaging "${PROJECT_SOURCE_DIR}/packaging")
set(programs a2l2json)
if(TARGET a2lmend)
  list(APPEND programs a2lmend)
endif()

foreach(program ${programs})
  configure_file("${packaging}/${program}.1.in" "${generated}/${program}.1" @ONLY)
  install(TARGETS ${program} COMPONENT program)
  install(
    FILES "${packaging}/completions/${program}.bash"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions"
    RENAME ${program}
    COMPONENT shared)
  install(
    FILES "${packaging}/completions/${program}.fish"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d"
    COMPONENT shared)
  install(
    FILES "${generated}/${program}.1"
    DESTINATION "${CMAKE_INSTALL_MANDIR}/man1"
    COMPONENT plain)
  install(
    FILES "${packaging}/completions/_${program}"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/site-functions"
    COMPONENT plain)
endforeach()

install(
  FILES "${PROJECT_SOURCE_DIR}/docs/json.schema.json"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/a2l2json"
  COMPONENT shared)

# The pages for users. Links to files that are not installed become plain text, and the names of
# test cases are removed.
set(not_installed "(\\.\\./)?(tests/|CONTRIBUTING|docs/(adding|design|javascript|page|performance|python))")
foreach(page README.md docs/json.md docs/mending.md docs/reading-a2l.md docs/recipes.md)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${page}")
  file(READ "${PROJECT_SOURCE_DIR}/${page}" text)
  string(REGEX REPLACE "[ \n]+<!-- cases: [^>]* -->" "" text "${text}")
  string(REGEX REPLACE "\\[([^]]+)\\]\\(${not_installed}[^)]*\\)" "\\1" text "${text}")
  file(WRITE "${generated}/pages/${page}" "${text}")
endforeach()
install(
  DIRECTORY "${generated}/pages/"
  DESTINATION "${CMAKE_INSTALL_DOCDIR}"
  COMPONENT shared)
install(
  FILES "${PROJECT_SOURCE_DIR}/docs/json.schema.json"
  DESTINATION "${CMAKE_INSTALL_DOCDIR}/docs"
  COMPONENT shared)
install(
  FILES "${PROJECT_SOURCE_DIR}/LICENSE" "${PROJECT_SOURCE_DIR}/CHANGELOG.md"
  DESTINATION "${CMAKE_INSTALL_DOCDIR}"
  COMPONENT shared)
install(
  DIRECTORY "${PROJECT_SOURCE_DIR}/examples"
  DESTINATION "${CMAKE_INSTALL_DOCDIR}"
  COMPONENT shared
  PATTERN "build" EXCLUDE)

# The pkg-config files find everything relative to their own place, so the installation may be moved.
file(RELATIVE_PATH A2L2JSON_PC_PREFIX "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig"
     "${CMAKE_INSTALL_PREFIX}")
string(REGEX REPLACE "/$" "" A2L2JSON_PC_PREFIX "${A2L2JSON_PC_PREFIX}")

# ---------------------------------------------------------------------------------------------
# The library, its headers, its CMake package and its pkg-config file

if(A2L2JSON_LIBRARY)
  set(package "${CMAKE_INSTALL_LIBDIR}/cmake/a2l2json")
  set(version_file "${generated}/a2l2json-config-version.cmake")

  # The header that a user includes, and those that it includes.
  set(sources "${PROJECT_SOURCE_DIR}/src")
  set(open "a2l2json/a2l2json.h")
  set(installed "")
  while(open)
    list(POP_FRONT open header)
    list(APPEND installed "${header}")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${sources}/${header}")
    file(STRINGS "${sources}/${header}" includes REGEX "^#include \"a2l2json/")
    list(TRANSFORM includes REPLACE "^#include \"([^\"]+)\".*" "\\1")
    list(APPEND open ${includes})
    list(REMOVE_ITEM open ${installed})
    list(REMOVE_DUPLICATES open)
    cmake_path(GET header PARENT_PATH folder)
    install(
      FILES "${sources}/${header}"
      DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${folder}"
      COMPONENT library)
  endwhile()

  install(TARGETS a2l2json_library EXPORT a2l2json-targets COMPONENT library)
  install(
    EXPORT a2l2json-targets
    NAMESPACE a2l2json::
    DESTINATION "${package}"
    COMPONENT library)
  if(TARGET a2l2json_json11)
    install(
      FILES "${sources}/a2l2json/export/json11_document.h"
      DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/a2l2json/export"
      COMPONENT library)
    install(TARGETS a2l2json_json11 EXPORT a2l2json-json11-targets COMPONENT library)
    install(
      EXPORT a2l2json-json11-targets
      NAMESPACE a2l2json::
      DESTINATION "${package}"
      COMPONENT library)
    install(
      FILES "${PROJECT_SOURCE_DIR}/cmake/InstalledJson11.cmake"
      DESTINATION "${package}"
      COMPONENT library)
  endif()

  configure_package_config_file("${packaging}/a2l2json-config.cmake.in"
                                "${generated}/a2l2json-config.cmake"
                                INSTALL_DESTINATION "${package}")
  write_basic_package_version_file("${version_file}" COMPATIBILITY SameMajorVersion)
  install(
    FILES "${generated}/a2l2json-config.cmake" "${version_file}"
    DESTINATION "${package}"
    COMPONENT library)

  configure_file("${packaging}/a2l2json.pc.in" "${generated}/a2l2json.pc" @ONLY)
  install(
    FILES "${generated}/a2l2json.pc"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
    COMPONENT library)
endif()

# ---------------------------------------------------------------------------------------------
# The C interface. Its name for the linker is not that of the file, because liba2l2json.so would be
# taken in the place of liba2l2json.a.

if(A2L2JSON_C_LIBRARY AND TARGET a2l2json_c)
  set(package "${CMAKE_INSTALL_LIBDIR}/cmake/a2l2json")
  install(
    FILES "${PROJECT_SOURCE_DIR}/capi/a2l2json.h"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
    COMPONENT c)
  install(
    TARGETS a2l2json_c
    EXPORT a2l2json-c-targets
    RUNTIME COMPONENT c
    LIBRARY COMPONENT c NAMELINK_SKIP
    ARCHIVE COMPONENT c
    INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
  install(
    EXPORT a2l2json-c-targets
    NAMESPACE a2l2json::
    DESTINATION "${package}"
    COMPONENT c)
  if(NOT WIN32)
    set(link "${generated}/liba2l2json-c${CMAKE_SHARED_LIBRARY_SUFFIX}")
    file(CREATE_LINK "liba2l2json${CMAKE_SHARED_LIBRARY_SUFFIX}.${PROJECT_VERSION_MAJOR}" "${link}"
         SYMBOLIC)
    install(
      FILES "${link}"
      DESTINATION "${CMAKE_INSTALL_LIBDIR}"
      COMPONENT c)
  endif()
  configure_file("${packaging}/a2l2json-c.pc.in" "${generated}/a2l2json-c.pc" @ONLY)
  install(
    FILES "${generated}/a2l2json-c.pc"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
    COMPONENT c)
endif()

include("${packaging}/packages.cmake")
