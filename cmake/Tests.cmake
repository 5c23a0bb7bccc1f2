# A test program: zelvor_test(<name> LABEL fast|gui|system SOURCES ... LINKS ...).
# Each GoogleTest case becomes one CTest test with the label.

function(zelvor_test name)
  cmake_parse_arguments(TEST "" "LABEL;TIMEOUT" "SOURCES;LINKS" ${ARGN})
  if(NOT TEST_TIMEOUT)
    set(TEST_TIMEOUT 60)
  endif()
  add_executable(${name} ${TEST_SOURCES})
  target_link_libraries(${name} PRIVATE ${TEST_LINKS} GTest::gtest)
  if(TEST_LABEL STREQUAL "fast")
    target_link_libraries(${name} PRIVATE GTest::gtest_main)
  endif()
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  zelvor_compile_settings(${name})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
                       PROPERTIES LABELS ${TEST_LABEL} TIMEOUT ${TEST_TIMEOUT}
                       ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
