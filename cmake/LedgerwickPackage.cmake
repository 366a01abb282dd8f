# The Debian package of both editions, made by CPack (tools/package). The libraries it needs are found
# by dpkg-shlibdeps; the faces the forms are drawn in are named here.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ledgerwick)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Ledgerwick team <team@ledgerwick.net>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "practice tax documents for tax-preparation courses")
string(CONCAT CPACK_DEBIAN_PACKAGE_DESCRIPTION
  "Ledgerwick lets a trainer fill on-screen copies of tax forms (W-2, the\n"
  "1099 and 1098 families, benefit and health coverage statements, Schedule\n"
  "K-1), training ID cards, driver's licenses and a blank check, with typed\n"
  "fields, computed boxes and a taxpayer sheet that fills any form. Documents\n"
  "are kept as small text files, printed at their true size, clipped as\n"
  "pictures or rendered to PDF.")
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-wine, fonts-liberation, fonts-dejavu-core")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://ledgerwick.net/")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)

# What Debian asks of every package: the copyright and the changelog, compressed as dpkg does.
configure_file(${PROJECT_SOURCE_DIR}/packaging/linux/changelog ${CMAKE_BINARY_DIR}/changelog @ONLY)
add_custom_command(
  OUTPUT ${CMAKE_BINARY_DIR}/changelog.gz
  COMMAND gzip -9 -n -k -f ${CMAKE_BINARY_DIR}/changelog
  DEPENDS ${CMAKE_BINARY_DIR}/changelog
  VERBATIM)
add_custom_target(lw_changelog ALL DEPENDS ${CMAKE_BINARY_DIR}/changelog.gz)

set(LW_MANUALS)
foreach(page Ledgerwick_Venturo Ledgerwick_OthAgcy ledgerwick-render ledgerwick-script ledgerwick-cases)
  add_custom_command(
    OUTPUT ${CMAKE_BINARY_DIR}/man/${page}.1.gz
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/man
    COMMAND sh -c "gzip -9 -n -c '${PROJECT_SOURCE_DIR}/packaging/linux/man/${page}.1' > '${CMAKE_BINARY_DIR}/man/${page}.1.gz'"
    DEPENDS ${PROJECT_SOURCE_DIR}/packaging/linux/man/${page}.1
    VERBATIM)
  list(APPEND LW_MANUALS ${CMAKE_BINARY_DIR}/man/${page}.1.gz)
endforeach()
add_custom_target(lw_manuals ALL DEPENDS ${LW_MANUALS})
install(FILES ${LW_MANUALS} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${PROJECT_SOURCE_DIR}/packaging/linux/copyright ${CMAKE_BINARY_DIR}/changelog.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/ledgerwick)

include(CPack)
