# Configures the small project of PROJECT in a fresh folder BINARY with EXTRA arguments, and checks
# that it succeeds (WANT 0) or stops (WANT 1), and that its output matches WANT_OUTPUT when given.
file(REMOVE_RECURSE ${BINARY})
execute_process(COMMAND ${CMAKE_COMMAND} -S ${PROJECT} -B ${BINARY} -G ${GENERATOR} -DLW_CMAKE_DIR=${LW_CMAKE_DIR} ${EXTRA}
                RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(status EQUAL 0)
  set(stopped 0)
else()
  set(stopped 1)
endif()
if(NOT stopped EQUAL WANT)
  message(FATAL_ERROR "configuration exited with ${status}, wanted it to ${WANT} (0 succeed, 1 stop):\n${output}")
endif()
if(DEFINED WANT_OUTPUT AND NOT output MATCHES "${WANT_OUTPUT}")
  message(FATAL_ERROR "the output does not match \"${WANT_OUTPUT}\":\n${output}")
endif()
