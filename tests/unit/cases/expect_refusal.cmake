# Runs ledgerwick-cases with arguments it must refuse: exit status 2, the reason on the error stream,
# and no case folder left behind.
file(REMOVE_RECURSE ${OUT})
string(REPLACE ";" " " shown "${ARGS}")
execute_process(COMMAND ${TOOL} ${ARGS} --out ${OUT} RESULT_VARIABLE status ERROR_VARIABLE errors
                OUTPUT_VARIABLE output)
if(NOT status EQUAL 2)
  message(FATAL_ERROR "ledgerwick-cases ${shown}: exit status ${status}, wanted 2\n${output}${errors}")
endif()
string(FIND "${errors}" "${WANT}" at)
if(at EQUAL -1)
  message(FATAL_ERROR "ledgerwick-cases ${shown}: the message lacks \"${WANT}\":\n${errors}")
endif()
file(GLOB left ${OUT}/case-*)
if(left)
  message(FATAL_ERROR "ledgerwick-cases ${shown} left ${left}")
endif()
