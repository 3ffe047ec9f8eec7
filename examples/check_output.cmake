# Runs PROGRAM (under EMULATOR when given) and compares its standard
# output with the file EXPECTED.
execute_process(COMMAND ${EMULATOR} ${PROGRAM} OUTPUT_VARIABLE actual ERROR_VARIABLE errors
                RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${PROGRAM} exited with ${status}\n${errors}")
endif()
file(READ ${EXPECTED} expected)
string(REPLACE "\r\n" "\n" actual "${actual}")
if(NOT actual STREQUAL expected)
  file(WRITE ${PROGRAM}.actual.txt "${actual}")
  execute_process(COMMAND diff -u ${EXPECTED} ${PROGRAM}.actual.txt)
  message(FATAL_ERROR "output of ${PROGRAM} differs from ${EXPECTED}")
endif()
