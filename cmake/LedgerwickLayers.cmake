# One static library per layer; a layer below ui/ may not link Qt (checked by the module included here).
include(${CMAKE_CURRENT_LIST_DIR}/LedgerwickEngineWithoutQt.cmake)

function(lw_layer name)
  cmake_parse_arguments(L "" "" "SOURCES;DEPS" ${ARGN})
  add_library(lw_${name} STATIC ${L_SOURCES})
  target_include_directories(lw_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(lw_${name} PUBLIC ${L_DEPS})
endfunction()

# The executables sit in one folder with the shipped data files beside them, as an install lays them out.
set(LW_BIN_DIR ${CMAKE_BINARY_DIR}/bin)
if(NOT TARGET lw_data)
  add_custom_target(lw_data ALL
    COMMAND ${CMAKE_COMMAND} -E make_directory ${LW_BIN_DIR}
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/data ${LW_BIN_DIR}
    COMMENT "Placing the shipped data files beside the executables")
endif()
function(lw_place_beside_data target)
  set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${LW_BIN_DIR})
  add_dependencies(${target} lw_data)
endfunction()
