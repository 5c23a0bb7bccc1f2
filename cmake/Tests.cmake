include(cmake/LeftOut.cmake)

# Tests are compiled for a quick build, not for speed.
function(zelvor_test_settings target)
  zelvor_compile_settings(${target})
  if(NOT MSVC)
    target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-O1>)
  endif()
endfunction()

# Headers compiled once for all test programs of a kind: without the toolkit, with the toolkit's libraries behind the
# code under test, with windows.
function(zelvor_test_headers name)
  file(WRITE ${CMAKE_BINARY_DIR}/test_headers/${name}.cpp "")
  add_library(${name} OBJECT ${CMAKE_BINARY_DIR}/test_headers/${name}.cpp)
  target_link_libraries(${name} PRIVATE ${ARGN} GTest::gtest)
  target_precompile_headers(${name} PRIVATE <algorithm> <array> <functional> <gtest/gtest.h> <memory> <optional> <random>
                            <string> <string_view> <utility> <vector>)
  zelvor_test_settings(${name})
endfunction()

zelvor_test_headers(zelvor_test_headers_plain)
zelvor_test_headers(zelvor_test_headers_engine Zelvor::platform)
zelvor_test_headers(zelvor_test_headers_gui Zelvor::platform zelvor_qtest)
target_precompile_headers(
  zelvor_test_headers_gui PRIVATE <QtCore> <QApplication> <QCheckBox> <QComboBox> <QDialog> <QHeaderView> <QLabel>
  <QLineEdit> <QListWidget> <QMainWindow> <QMdiArea> <QMdiSubWindow> <QMenuBar> <QMessageBox> <QPushButton> <QScrollBar>
  <QSignalSpy> <QTableWidget> <QTabWidget> <QTest> <QToolBar> <QToolButton> <QVBoxLayout> <QWindow>)

# What every test passes over under the leak sanitizer: libraries that are not ours.
set(ZELVOR_LEAKS "LSAN_OPTIONS=set:suppressions=${CMAKE_SOURCE_DIR}/tests/leaks.supp:print_suppressions=0")

# The environment of every test. On Windows a program finds the toolkit and the compiler's libraries by the path: that of
# Windows, or of Wine where the tests run there.
set(ZELVOR_TEST_ENVIRONMENT "${ZELVOR_LEAKS}")
if(WIN32)
  get_target_property(toolkit Qt6::Core LOCATION)
  cmake_path(GET toolkit PARENT_PATH toolkit)
  if(CMAKE_CROSSCOMPILING)
    set(folders ${toolkit} ${CMAKE_CXX_IMPLICIT_LINK_DIRECTORIES})
    list(TRANSFORM folders PREPEND "Z:")
    list(JOIN folders "\\;" folders)
    list(APPEND ZELVOR_TEST_ENVIRONMENT "WINEPATH=set:${folders}")
  else()
    list(APPEND ZELVOR_TEST_ENVIRONMENT "PATH=path_list_prepend:${toolkit}")
  endif()
endif()
if(ZELVOR_CASES_LEFT_OUT)
  list(APPEND ZELVOR_TEST_ENVIRONMENT "GTEST_FILTER=set:-${ZELVOR_CASES_LEFT_OUT}")
endif()

# A test program: zelvor_test(<name> LABEL fast|gui|system [SHARES <n>] SOURCES ... LINKS ...).
# Its cases run in one process, or in several of their own that share them out: each is one CTest test with the label.
# A process for each case would spend most of its time on starting. One case alone: build/release/tests/<name>
# --gtest_filter=<case>. A program of which this system can run no test is no target.
function(zelvor_test name)
  cmake_parse_arguments(TEST "" "LABEL;SHARES;TIMEOUT" "SOURCES;LINKS" ${ARGN})
  zelvor_sources_here(TEST_SOURCES ${TEST_SOURCES})
  if(NOT TEST_SOURCES MATCHES "Test\\.cpp")
    return()
  endif()
  if(NOT TEST_TIMEOUT)
    set(TEST_TIMEOUT 600)
  endif()
  if(NOT TEST_SHARES)
    set(TEST_SHARES 1)
  endif()
  add_executable(${name} ${TEST_SOURCES})
  target_link_libraries(${name} PRIVATE ${TEST_LINKS} GTest::gtest)
  if(TEST_LABEL STREQUAL "fast")
    target_link_libraries(${name} PRIVATE GTest::gtest_main)
  endif()
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  zelvor_test_settings(${name})
  if("zelvor_qtest" IN_LIST TEST_LINKS)
    target_precompile_headers(${name} REUSE_FROM zelvor_test_headers_gui)
  elseif(TEST_LINKS MATCHES "Zelvor::(fakes|platform|controls|channels|service|shell|print|link)|zelvor_link_rig")
    target_precompile_headers(${name} REUSE_FROM zelvor_test_headers_engine)
  else()
    target_precompile_headers(${name} REUSE_FROM zelvor_test_headers_plain)
  endif()
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  foreach(share RANGE 1 ${TEST_SHARES})
    math(EXPR index "${share} - 1")
    if(TEST_SHARES EQUAL 1)
      set(test ${name})
    else()
      set(test ${name}-${share})
    endif()
    add_test(NAME ${test} COMMAND ${name})
    set_tests_properties(
      ${test} PROPERTIES LABELS ${TEST_LABEL} TIMEOUT ${TEST_TIMEOUT}
                         ENVIRONMENT "QT_QPA_PLATFORM=offscreen;GTEST_TOTAL_SHARDS=${TEST_SHARES};GTEST_SHARD_INDEX=${index}"
                         ENVIRONMENT_MODIFICATION "${ZELVOR_TEST_ENVIRONMENT}")
  endforeach()
endfunction()
