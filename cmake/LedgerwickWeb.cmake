# The engine compiled to WebAssembly by emscripten: every layer below ui/ and the script runner, which
# Node runs with the machine's own files. No Qt, no window, no package.

# The engine's failures are C++ exceptions; emscripten leaves them out unless asked, at compile and link.
add_compile_options(-fexceptions)
add_link_options(-fexceptions)

# A runner for Node: one .js file that holds its .wasm (plain `node` finds nothing to fetch), the real
# file system, the real environment, and the exit status of main().
function(lw_web_runner target)
  set_target_properties(${target} PROPERTIES SUFFIX ".js")
  target_link_options(${target} PRIVATE
    -sNODERAWFS=1 -sSINGLE_FILE=1 -sEXIT_RUNTIME=1 -sALLOW_MEMORY_GROWTH=1
    "SHELL:--pre-js ${PROJECT_SOURCE_DIR}/cmake/web_node_environment.js")
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/web_node_environment.js)
  lw_place_beside_data(${target})
endfunction()

foreach(layer text model store diagnostics people catalogue fields taxpayer shell config documents output forms face headless script web)
  add_subdirectory(src/${layer})
endforeach()
