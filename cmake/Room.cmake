# SPDX-License-Identifier: MIT

include_guard(GLOBAL)

# a2l2json_room(<name> SOURCES <file>... [FILE_SOURCES <file>...] [LINKS <target>...]
#               [PRIVATE_LINKS <target>...])
#
# One static library per folder ("room") of the program. Headers are included by their path below
# src/, as in #include "a2l2json/model/element.h". FILE_SOURCES open files; they
# are left out if A2L2JSON_FILES is off. LINKS are visible to whoever links the room, PRIVATE_LINKS
# only to the room's own sources.
#
# Rooms are position independent code, because the C interface puts them into a shared library. Rooms
# of the installed library are compiled without interprocedural optimisation, because only the very
# same compiler could link its intermediate code.
function(a2l2json_room name)
  cmake_parse_arguments(PARSE_ARGV 1 room "" "" "SOURCES;FILE_SOURCES;LINKS;PRIVATE_LINKS")
  if(room_UNPARSED_ARGUMENTS OR NOT room_SOURCES)
    message(FATAL_ERROR "a2l2json_room(${name}): expected SOURCES <file>..., optionally followed "
                        "by FILE_SOURCES, LINKS and PRIVATE_LINKS; got: ${ARGN}")
  endif()
  if(NOT A2L2JSON_FILES)
    set(room_FILE_SOURCES "")
  endif()
  add_library(${name} STATIC ${room_SOURCES} ${room_FILE_SOURCES})
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_compile_features(${name} PUBLIC cxx_std_20)
  target_link_libraries(${name} PUBLIC ${room_LINKS} PRIVATE a2l2json_flags ${room_PRIVATE_LINKS})
  get_property(has_shared_libraries GLOBAL PROPERTY TARGET_SUPPORTS_SHARED_LIBS)
  if(has_shared_libraries)
    set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
      target_compile_options(${name} PRIVATE -fno-semantic-interposition)
    endif()
  endif()
  if(A2L2JSON_LIBRARY)
    set_target_properties(${name} PROPERTIES INTERPROCEDURAL_OPTIMIZATION_RELEASE OFF)
  endif()
endfunction()
