# Makes the same class set with its pages twice, by two runs of ledgerwick-cases a second apart, and
# checks that every file of the two sets is the same, case.pdf included.
file(REMOVE_RECURSE ${OUT}/first ${OUT}/second)
foreach(set first second)
  execute_process(COMMAND ${TOOL} --count 2 --seed 77 --year 2025 --profile married-with-children --pdf
                          --out ${OUT}/${set} RESULT_VARIABLE status OUTPUT_QUIET ERROR_VARIABLE errors)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "ledgerwick-cases: exit status ${status}\n${errors}")
  endif()
  execute_process(COMMAND ${CMAKE_COMMAND} -E sleep 1.1)
endforeach()
file(GLOB_RECURSE made RELATIVE ${OUT}/first ${OUT}/first/*)
list(LENGTH made count)
if(count LESS 10)
  message(FATAL_ERROR "the set holds only ${count} files")
endif()
foreach(name ${made})
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${OUT}/first/${name} ${OUT}/second/${name}
                  RESULT_VARIABLE different)
  if(different)
    message(FATAL_ERROR "${name} differs between two runs of the same seed")
  endif()
endforeach()
