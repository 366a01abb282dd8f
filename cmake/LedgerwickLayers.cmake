# One static library per layer; a layer below ui/ may not link Qt.
function(lw_layer name)
  cmake_parse_arguments(L "" "" "SOURCES;DEPS" ${ARGN})
  add_library(lw_${name} STATIC ${L_SOURCES})
  target_include_directories(lw_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(lw_${name} PUBLIC ${L_DEPS})
endfunction()
