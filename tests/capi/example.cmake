# SPDX-License-Identifier: MIT
#
# cmake -DPROGRAM=... -DFOLDER=... -DBROKEN=... -P example.cmake
#
# Runs the example in C, a list of words in PROGRAM, on the demo in FOLDER and on the file BROKEN.

# run(<argument>...): leaves code, out and err
macro(run)
  execute_process(
    COMMAND ${PROGRAM} ${ARGN}
    RESULT_VARIABLE code
    OUTPUT_VARIABLE out
    ERROR_VARIABLE err)
endmacro()

macro(expect what actual expected)
  if(NOT "${actual}" STREQUAL "${expected}")
    message(SEND_ERROR "${what}: ${actual}\nexpected: ${expected}")
  endif()
endmacro()

file(READ "${FOLDER}/demo.json" demo)
run("${FOLDER}/demo.a2l")
expect("exit code" "${code}" 0)
expect("document" "${out}" "${demo}")
expect("messages" "${err}" "")

run("${BROKEN}")
expect("exit code" "${code}" 1)
expect("document" "${out}" "")
string(REPLACE "\r" "" err "${err}")
expect("messages" "${err}" "${BROKEN}:3: warning: unexpected element WORD [unexpected-element]
${BROKEN}:4: error: /end don't equal /begin PROJECT [end-does-not-match]
${BROKEN}, line 4: /end don't equal /begin PROJECT
")

run()
expect("exit code" "${code}" 2)
