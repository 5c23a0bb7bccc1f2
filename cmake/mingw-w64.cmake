# Builds for Windows on Linux, with the mingw-w64 compilers as Debian has them (g++-mingw-w64-x86-64-posix: the standard
# library's threads need the variant "posix"). The libraries come from the folders of CMAKE_PREFIX_PATH, which
# scripts/windows-libraries fills, and never from the machine that builds. docs/windows.md tells the steps.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(ZELVOR_MINGW x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${ZELVOR_MINGW}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ZELVOR_MINGW}-g++-posix)
set(CMAKE_RC_COMPILER ${ZELVOR_MINGW}-windres)

# CMake tries the compiler with this file too, and hands on what is named here.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES CMAKE_PREFIX_PATH)
cmake_path(CONVERT "$ENV{CMAKE_PREFIX_PATH}" TO_CMAKE_PATH_LIST ZELVOR_PREFIXES NORMALIZE)
set(CMAKE_FIND_ROOT_PATH /usr/${ZELVOR_MINGW} ${CMAKE_PREFIX_PATH} ${ZELVOR_PREFIXES})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# What the toolkit runs while it builds, such as moc, is the building machine's own.
set(QT_HOST_PATH /usr CACHE PATH "Where the toolkit of the building machine is")
file(GLOB ZELVOR_HOST_TOOLS /usr/lib/*/cmake/Qt6HostInfo)
if(ZELVOR_HOST_TOOLS)
  cmake_path(GET ZELVOR_HOST_TOOLS PARENT_PATH ZELVOR_HOST_TOOLS)
  set(QT_HOST_PATH_CMAKE_DIR ${ZELVOR_HOST_TOOLS} CACHE PATH "Where its CMake files are")
endif()
