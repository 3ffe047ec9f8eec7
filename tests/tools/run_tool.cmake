# Runs the kiv tool once and checks its exit status and output.
#   TOOL      the kiv executable (run under EMULATOR when given)
#   ARGS      its arguments, separated by "|"
#   INPUT     file fed to standard input (default: empty)
#   EXIT      expected exit status
#   STDOUT    regular expression that standard output must match (optional)
#   STDERR    regular expression that standard error must match (optional)
#   NOSTDOUT  when set, standard output must be empty
string(REPLACE "|" ";" arguments "${ARGS}")
if(NOT INPUT)
  set(INPUT /dev/null)
endif()
execute_process(COMMAND ${EMULATOR} ${TOOL} ${arguments} INPUT_FILE ${INPUT}
                OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status)
string(REPLACE "\r\n" "\n" out "${out}")
string(REPLACE "\r\n" "\n" err "${err}")
set(report "kiv ${arguments}\nexit ${status}\n--- stdout\n${out}--- stderr\n${err}")
if(NOT status STREQUAL EXIT)
  message(FATAL_ERROR "expected exit status ${EXIT}\n${report}")
endif()
if(DEFINED STDOUT AND NOT out MATCHES "${STDOUT}")
  message(FATAL_ERROR "standard output does not match '${STDOUT}'\n${report}")
endif()
if(DEFINED STDERR AND NOT err MATCHES "${STDERR}")
  message(FATAL_ERROR "standard error does not match '${STDERR}'\n${report}")
endif()
if(NOSTDOUT AND NOT out STREQUAL "")
  message(FATAL_ERROR "expected no standard output\n${report}")
endif()
