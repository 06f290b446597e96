# SPDX-License-Identifier: MIT
#
# cmake -DHEADER=... -DLIBRARY=... -DNM=... -DOBJDUMP=... -P symbols.cmake
#
# The library shows the functions of the header, each of them and nothing else. A Windows library is
# asked by OBJDUMP, any other one by NM.

file(READ "${HEADER}" header)
string(REGEX MATCHALL "A2L2JSON_API [^;(]*a2l2json_[a-z0-9_]+\\(" declared "${header}")
list(TRANSFORM declared REPLACE ".*(a2l2json_[a-z0-9_]+)\\($" "\\1")

if(LIBRARY MATCHES "\\.dll$")
  execute_process(COMMAND "${OBJDUMP}" -p "${LIBRARY}" OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE ".*\\[Ordinal/Name Pointer\\] Table" "" text "${text}")
  string(REGEX REPLACE "\n\n.*" "" text "${text}") # what follows is another table
  string(REGEX MATCHALL "\\[ *[0-9]+\\] [^\n]+" lines "${text}")
  list(TRANSFORM lines REPLACE "^\\[ *[0-9]+\\] " "")
else()
  execute_process(COMMAND "${NM}" -D --defined-only "${LIBRARY}" OUTPUT_VARIABLE text
                                                                 COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL "[^ \n]+\n" lines "${text}")
  list(TRANSFORM lines STRIP)
  list(TRANSFORM lines REPLACE "@.*" "")
  list(REMOVE_ITEM lines A2L2JSON_1) # the version of them all
endif()

list(SORT declared)
list(SORT lines)
list(LENGTH declared count)
if(count EQUAL 0 OR NOT declared STREQUAL lines)
  message(FATAL_ERROR "declared: ${declared}\nshown:    ${lines}")
endif()
message(STATUS "${count} functions are declared and shown")
