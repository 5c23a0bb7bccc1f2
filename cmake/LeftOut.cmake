# What of the tests a system cannot run, and why: the one place. An entry is a source of tests/, which is not built then,
# or a case, as GoogleTest names it and with its patterns, which is built and not run. docs/windows.md has the same list,
# and scripts/check-windows compares the two. What one source has for one system alone stands there behind its #ifdef.

set(ZELVOR_LEFT_OUT "")
macro(zelvor_left_out reason)
  list(APPEND ZELVOR_LEFT_OUT ${ARGN})
endmacro()

if(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
  zelvor_left_out(
    "They run zelvor-radio, whose serial port is a pseudo-terminal."
    cli/ReadmeJobsTest.cpp
    cli/radio/RadioCommandsSystemTest.cpp
    simulator/ZelvorRadioTest.cpp
    system/BackupTest.cpp
    system/HelpBesidePromptTest.cpp
    system/ReadFaultTest.cpp
    system/ServiceSessionTest.cpp
    system/SystemTest.cpp
    system/TourProgramTest.cpp
    system/WriteFaultTest.cpp
    system/ZelvorProgramTest.cpp)
  zelvor_left_out("They make faults of a file system by calls that Linux alone has."
                  platform/FileBelongingsTest.cpp platform/FileFaultTest.cpp platform/KillTest.cpp)
endif()

if(WIN32)
  zelvor_left_out("Its ports are pseudo-terminals behind links of the user's; here ports have their numbers by name."
                  platform/PseudoTerminal.cpp platform/QtSerialPortTest.cpp)
  zelvor_left_out("Its printing system that does not answer is a socket of CUPS." platform/UnansweringSpoolerTest.cpp)
  zelvor_left_out("A file of 64 GB takes that much room here." DataFile.IsRefusedForAHugeLengthWithoutBeingReadThrough)
  zelvor_left_out("The standard library makes no symbolic links here."
                  BackupsInARealFolder.AreNotWrittenThroughALinkOfThatName)
elseif(APPLE)
  zelvor_left_out("They were never tried here." cli/CommandLineTest.cpp cli/ZelvorCliTest.cpp)
endif()

# The sources that are not left out.
function(zelvor_sources_here result)
  set(kept "")
  foreach(source ${ARGN})
    cmake_path(ABSOLUTE_PATH source NORMALIZE OUTPUT_VARIABLE name)
    cmake_path(RELATIVE_PATH name BASE_DIRECTORY ${CMAKE_SOURCE_DIR}/tests)
    if(NOT name IN_LIST ZELVOR_LEFT_OUT)
      list(APPEND kept ${source})
    endif()
  endforeach()
  set(${result} ${kept} PARENT_SCOPE)
endfunction()

# The cases that are left out, as a filter of GoogleTest; empty where none is.
set(ZELVOR_CASES_LEFT_OUT ${ZELVOR_LEFT_OUT})
list(FILTER ZELVOR_CASES_LEFT_OUT EXCLUDE REGEX "\\.cpp$")
list(JOIN ZELVOR_CASES_LEFT_OUT ":" ZELVOR_CASES_LEFT_OUT)

# For scripts/check-windows.
list(JOIN ZELVOR_LEFT_OUT "\n" left_out)
file(WRITE ${CMAKE_BINARY_DIR}/left-out.txt "${left_out}\n")
