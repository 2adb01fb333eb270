# lingomat_test(<name> SOURCES ... USES ...)
#
# One test program; each of its cases becomes a test of its own, run without a display.
function(lingomat_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;USES")
  if(arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "lingomat_test(${name}): unknown arguments ${arg_UNPARSED_ARGUMENTS}")
  endif()

  add_executable(${name} ${arg_SOURCES})
  set_target_properties(${name} PROPERTIES
    AUTOMOC ON
    RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
  target_link_libraries(${name} PRIVATE lingomat_flags test_support ${arg_USES})
  target_precompile_headers(${name} REUSE_FROM test_prelude)
  gtest_discover_tests(${name}
    TEST_PREFIX "${name}."
    DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 60
    PROPERTIES
      TIMEOUT 300
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
endfunction()
