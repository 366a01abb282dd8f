# Every test runs with a fixed locale and Qt's offscreen platform.
set(LW_TEST_ENV "LANG=C.UTF-8;LC_ALL=C.UTF-8;QT_QPA_PLATFORM=offscreen")

function(lw_unit_test name)
  cmake_parse_arguments(T "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${T_SOURCES})
  target_link_libraries(${name} PRIVATE ${T_LIBS} GTest::gtest GTest::gtest_main)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "${LW_TEST_ENV}")
endfunction()
