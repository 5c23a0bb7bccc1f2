# One static library a folder of src/. A folder's headers are reached as "<folder>/<Header>.h", and only by targets
# that link the folder's library: each library exports a directory of its own that holds nothing but a link to its folder.
# So an include that points to a higher floor does not build.

function(zelvor_floor folder)
  cmake_parse_arguments(FLOOR "" "" "SOURCES;LINKS" ${ARGN})
  set(target zelvor_${folder})
  add_library(${target} STATIC ${FLOOR_SOURCES})
  add_library(Zelvor::${folder} ALIAS ${target})

  set(exported ${CMAKE_BINARY_DIR}/floors/${folder})
  file(MAKE_DIRECTORY ${exported})
  zelvor_link_folder(${CMAKE_SOURCE_DIR}/src/${folder} ${exported}/${folder})

  target_include_directories(${target} PUBLIC ${exported})
  target_link_libraries(${target} PUBLIC ${FLOOR_LINKS})
  zelvor_compile_settings(${target})
  if("Qt6::Widgets" IN_LIST FLOOR_LINKS)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    zelvor_precompiled_toolkit(${target})
  endif()
endfunction()

# On Windows not every user may make symbolic links; a junction is everybody's.
function(zelvor_link_folder folder link)
  file(CREATE_LINK ${folder} ${link} RESULT fault SYMBOLIC)
  if(fault AND CMAKE_HOST_WIN32)
    if(EXISTS ${link})
      return() # the one of an earlier run
    endif()
    cmake_path(NATIVE_PATH folder folder)
    cmake_path(NATIVE_PATH link link)
    execute_process(COMMAND cmd /c mklink /J ${link} ${folder} RESULT_VARIABLE fault OUTPUT_QUIET)
  endif()
  if(fault)
    message(FATAL_ERROR "No link to ${folder} can be made: ${fault}")
  endif()
endfunction()

# The toolkit's headers are compiled once for all floors that use it. They do not stand for any include of a source:
# scripts/check compiles the sources without them.
function(zelvor_precompiled_toolkit target)
  if(TARGET zelvor_platform AND NOT target STREQUAL "zelvor_platform")
    target_precompile_headers(${target} REUSE_FROM zelvor_platform)
  else()
    target_precompile_headers(
      ${target} PRIVATE <algorithm> <array> <functional> <memory> <optional> <string> <string_view> <utility> <vector>
      <QtCore> <QAbstractButton> <QAction> <QApplication> <QCheckBox> <QComboBox> <QDialog> <QEvent> <QGridLayout>
      <QGroupBox> <QHeaderView> <QKeyEvent> <QLabel> <QLineEdit> <QListWidget> <QMainWindow> <QMdiArea> <QMdiSubWindow>
      <QMenuBar> <QMessageBox> <QPainter> <QPushButton> <QScrollBar> <QTableWidget> <QToolBar> <QToolButton>
      <QVBoxLayout> <QWindow>)
  endif()
endfunction()

# Warnings are no errors under the sanitizers: with their checks in the code, gcc 12 warns of the standard library itself.
function(zelvor_compile_settings target)
  if(MSVC)
    target_compile_options(${target} PRIVATE /W4 /utf-8)
  else()
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                             $<$<AND:$<BOOL:${ZELVOR_WERROR}>,$<NOT:$<BOOL:${ZELVOR_SANITIZE}>>>:-Werror>)
  endif()
  if(ZELVOR_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                             -fno-omit-frame-pointer)
    target_link_options(${target} PUBLIC -fsanitize=address,undefined)
  endif()
  if(ZELVOR_FUZZ)
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
endfunction()
