# The installed layout: the programs in bin/, the shipped files in share/ledgerwick/ (where the program
# looks when they are not beside it), and the desktop entries, icons and metainfo where desktops look.
include(GNUInstallDirs)

install(TARGETS Ledgerwick_Venturo Ledgerwick_OthAgcy ledgerwick-script ledgerwick-render ledgerwick-cases
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
# Whatever the build placed beside the executables: INF files, icons, pictures and the guides.
install(DIRECTORY ${LW_BIN_DIR}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/ledgerwick
        FILES_MATCHING PATTERN "*.inf" PATTERN "*.ICO" PATTERN "*.jpg" PATTERN "*.pdf")

set(LW_ICON_THEME ${CMAKE_BINARY_DIR}/hicolor)
foreach(edition Venturo OthAgcy)
  string(TOLOWER ${edition} lower)
  add_custom_command(
    OUTPUT ${LW_ICON_THEME}/64x64/apps/ledgerwick-${lower}.png
    COMMAND $<TARGET_FILE:build-assets> icons ${PROJECT_SOURCE_DIR}/data/${edition}.ICO ${LW_ICON_THEME}
            ledgerwick-${lower}
    DEPENDS build-assets ${PROJECT_SOURCE_DIR}/data/${edition}.ICO
    COMMENT "Drawing the ${edition} desktop icons"
    VERBATIM)
  list(APPEND LW_ICONS ${LW_ICON_THEME}/64x64/apps/ledgerwick-${lower}.png)
  install(FILES ${PROJECT_SOURCE_DIR}/packaging/linux/net.ledgerwick.${edition}.desktop
          DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
endforeach()
add_custom_target(lw_icons ALL DEPENDS ${LW_ICONS})
install(FILES ${PROJECT_SOURCE_DIR}/packaging/linux/net.ledgerwick.PracticeCases.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(DIRECTORY ${LW_ICON_THEME}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor)

configure_file(${PROJECT_SOURCE_DIR}/packaging/linux/net.ledgerwick.Ledgerwick.metainfo.xml
               ${CMAKE_BINARY_DIR}/net.ledgerwick.Ledgerwick.metainfo.xml @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/net.ledgerwick.Ledgerwick.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

# The pictures of the cards and licenses, drawn by the build beside the executables.
set(LW_PICTURES SSN.jpg ITIN.jpg)
foreach(n RANGE 1 16)
  list(APPEND LW_PICTURES P${n}GS.jpg)
endforeach()
list(TRANSFORM LW_PICTURES PREPEND ${LW_BIN_DIR}/)
add_custom_command(
  OUTPUT ${LW_PICTURES}
  COMMAND $<TARGET_FILE:build-assets> pictures ${LW_BIN_DIR}
  DEPENDS build-assets ${PROJECT_SOURCE_DIR}/tools/build-assets/pictures.cpp
  COMMENT "Drawing the pictures of the cards and licenses"
  VERBATIM)
add_custom_target(lw_pictures ALL DEPENDS ${LW_PICTURES})
