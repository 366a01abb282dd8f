# Runs a script that is meant to fail and checks the exit status and the closing line, and, when WANT_OUTPUT
# is given, that the output matches that regular expression (a failed check named by its line).
execute_process(COMMAND ${RUNNER} ${SCRIPT} RESULT_VARIABLE status OUTPUT_VARIABLE output)
if(NOT status EQUAL WANT)
  message(FATAL_ERROR "exit status ${status}, wanted ${WANT}:\n${output}")
endif()
if(NOT output MATCHES "[0-9]+ passed, [0-9]+ failed\n$")
  message(FATAL_ERROR "the output does not end with the counts line:\n${output}")
endif()
if(DEFINED WANT_OUTPUT AND NOT output MATCHES "${WANT_OUTPUT}")
  message(FATAL_ERROR "the output does not match \"${WANT_OUTPUT}\":\n${output}")
endif()
