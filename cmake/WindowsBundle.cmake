# What an installed tree for Windows holds beside the programs: the toolkit's plug-ins and Chinese texts, the libraries that
# programs and plug-ins need, and licences. Included by Install.cmake.

# The plug-ins that the programs load: the window system and what reports are made on without one, the look of Windows.
# Pictures and icons are drawn by the program, and print devices belong to the printing library.
foreach(plugin platforms/qwindows platforms/qoffscreen styles/qwindowsvistastyle)
  set(library ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS}/${plugin}.dll)
  cmake_path(GET plugin PARENT_PATH kind)
  install(FILES ${library} DESTINATION plugins/${kind})
endforeach()

install(FILES packaging/qt.conf LICENSE DESTINATION .)
install(FILES ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_TRANSLATIONS}/qtbase_zh_CN.qm DESTINATION translations)

# scripts/windows-libraries collects those of the libraries there.
set(ZELVOR_LICENCES ${QT6_INSTALL_PREFIX}/licences CACHE PATH "The licence texts of the libraries that the package holds")
install(DIRECTORY ${ZELVOR_LICENCES}/ DESTINATION licences)

# The compiler's own libraries: beside the compiler on Windows, in its library folders elsewhere.
cmake_path(GET CMAKE_CXX_COMPILER PARENT_PATH compiler)
set(ZELVOR_LIBRARY_FOLDERS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} ${compiler} ${CMAKE_CXX_IMPLICIT_LINK_DIRECTORIES})
if(MSVC)
  set(CMAKE_INSTALL_SYSTEM_RUNTIME_DESTINATION .)
  include(InstallRequiredSystemLibraries)
endif()

configure_file(cmake/InstallLibraries.cmake.in ${CMAKE_BINARY_DIR}/packaging/InstallLibraries.cmake @ONLY)
install(SCRIPT ${CMAKE_BINARY_DIR}/packaging/InstallLibraries.cmake)
