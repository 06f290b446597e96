# SPDX-License-Identifier: MIT

include_guard(GLOBAL)

# a2l2json_room(<name> SOURCES <file>... [LINKS <target>...] [PRIVATE_LINKS <target>...])
#
# One static library per folder ("room") of the program. Headers are included by their path from
# the top of the repository, as in #include "a2l2json/model/element.h". LINKS are visible to whoever
# links the room, PRIVATE_LINKS only to the room's own sources.
#
# Rooms of the installed library are compiled without interprocedural optimisation, because only the
# very same compiler could link its intermediate code, and as position independent code, so that a
# shared library may hold them.
function(a2l2json_room name)
  cmake_parse_arguments(PARSE_ARGV 1 room "" "" "SOURCES;LINKS;PRIVATE_LINKS")
  if(room_UNPARSED_ARGUMENTS OR NOT room_SOURCES)
    message(FATAL_ERROR "a2l2json_room(${name}): expected SOURCES <file>..., optionally followed "
                        "by LINKS and PRIVATE_LINKS; got: ${ARGN}")
  endif()
  add_library(${name} STATIC ${room_SOURCES})
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_compile_features(${name} PUBLIC cxx_std_20)
  target_link_libraries(${name} PUBLIC ${room_LINKS} PRIVATE a2l2json_flags ${room_PRIVATE_LINKS})
  if(A2L2JSON_LIBRARY)
    set_target_properties(${name} PROPERTIES INTERPROCEDURAL_OPTIMIZATION_RELEASE OFF
                                             POSITION_INDEPENDENT_CODE ON)
    if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
      target_compile_options(${name} PRIVATE -fno-semantic-interposition)
    endif()
  endif()
endfunction()
