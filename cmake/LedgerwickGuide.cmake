# The user guide of each edition, as PDF beside the executables: docs/guide.md with pictures that the
# program itself draws from the sample documents in docs/samples and from docs/pictures.lws.
set(LW_GUIDE_PICTURES ${CMAKE_BINARY_DIR}/guide-pictures)
file(GLOB LW_GUIDE_SAMPLES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/samples/*.venturo)
file(GLOB LW_FORM_DRAWINGS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/catalogue/definitions/*.lwf)

# The folder is made by the first step, and only then entered: a WORKING_DIRECTORY would be entered
# before any step runs, which the Makefile generators do with a plain `cd` that fails on a fresh build.
add_custom_command(
  OUTPUT ${LW_GUIDE_PICTURES}/pictures.stamp
  COMMAND ${CMAKE_COMMAND} -E make_directory ${LW_GUIDE_PICTURES}
  COMMAND ${CMAKE_COMMAND} -E chdir ${LW_GUIDE_PICTURES} ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
          $<TARGET_FILE:ledgerwick-render> --year 2025 --png ${LW_GUIDE_PICTURES} --zoom 2 ${LW_GUIDE_SAMPLES}
  COMMAND ${CMAKE_COMMAND} -E chdir ${LW_GUIDE_PICTURES} ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
          $<TARGET_FILE:ledgerwick-script> ${PROJECT_SOURCE_DIR}/docs/pictures.lws
  COMMAND ${CMAKE_COMMAND} -E touch ${LW_GUIDE_PICTURES}/pictures.stamp
  DEPENDS ledgerwick-render ledgerwick-script ${LW_GUIDE_SAMPLES} ${LW_FORM_DRAWINGS}
          ${PROJECT_SOURCE_DIR}/docs/pictures.lws
  COMMENT "Drawing the pictures of the user guide"
  VERBATIM)

set(LW_GUIDES)
foreach(edition Venturo OthAgcy)
  if(edition STREQUAL "Venturo")
    set(extension ".venturo")
    set(forms_folder "~/.local/share/ledgerwick/VenturoForms")
  else()
    set(extension ".taxForm")
    set(forms_folder "~/.local/share/ledgerwick/TaxFormsLW")
  endif()
  set(guide ${LW_BIN_DIR}/Ledgerwick_V${PROJECT_VERSION_MAJOR}_${edition}_UserGuide.pdf)
  add_custom_command(
    OUTPUT ${guide}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${LW_BIN_DIR}
    COMMAND $<TARGET_FILE:build-assets> guide ${PROJECT_SOURCE_DIR}/docs/guide.md ${LW_GUIDE_PICTURES}
            ${guide} ${edition} ${extension} ${forms_folder}
    DEPENDS build-assets ${PROJECT_SOURCE_DIR}/docs/guide.md ${LW_GUIDE_PICTURES}/pictures.stamp
    COMMENT "Writing the ${edition} user guide"
    VERBATIM)
  list(APPEND LW_GUIDES ${guide})
endforeach()
add_custom_target(lw_guide ALL DEPENDS ${LW_GUIDES})
