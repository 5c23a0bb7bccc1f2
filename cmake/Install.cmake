include(GNUInstallDirs)
if(WIN32)
  # One folder, wherever its user puts it.
  set(ZELVOR_INSTALL_PROGRAMS .)
  set(ZELVOR_INSTALL_DATA .)
else()
  set(ZELVOR_INSTALL_PROGRAMS ${CMAKE_INSTALL_BINDIR})
  set(ZELVOR_INSTALL_DATA ${CMAKE_INSTALL_DATADIR}/zelvor)
endif()
install(TARGETS zelvor zelvor-cli RUNTIME DESTINATION ${ZELVOR_INSTALL_PROGRAMS})
if(TARGET zelvor-radio)
  install(TARGETS zelvor-radio RUNTIME DESTINATION ${ZELVOR_INSTALL_PROGRAMS})
endif()
install(DIRECTORY help DESTINATION ${ZELVOR_INSTALL_DATA} FILES_MATCHING PATTERN "*.htm" PATTERN "*.css")
if(WIN32)
  include(cmake/WindowsBundle.cmake)
endif()

# Installs a file compressed, as distributions keep manuals and change logs.
function(zelvor_install_gzipped file destination)
  cmake_path(GET file FILENAME name)
  set(packed ${CMAKE_BINARY_DIR}/packaging/${name}.gz)
  add_custom_command(
    OUTPUT ${packed}
    COMMAND gzip -9nc ${file} > ${packed}
    DEPENDS ${file}
    VERBATIM)
  add_custom_target(packed_${name} ALL DEPENDS ${packed})
  install(FILES ${packed} DESTINATION ${destination})
endfunction()

# What desktops of this kind look for: names, icon, kinds of files, manuals and licence.
if(UNIX AND NOT APPLE)
  set(metainfo ${CMAKE_BINARY_DIR}/packaging/org.zelvor.Zelvor.metainfo.xml)
  configure_file(packaging/org.zelvor.Zelvor.metainfo.xml.in ${metainfo} @ONLY)
  install(FILES ${metainfo} DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES packaging/org.zelvor.Zelvor.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES packaging/org.zelvor.Zelvor.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
          RENAME org.zelvor.Zelvor.xml)
  install(FILES resources/org.zelvor.Zelvor.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
  foreach(program zelvor zelvor-cli zelvor-radio)
    configure_file(packaging/${program}.1 ${CMAKE_BINARY_DIR}/packaging/${program}.1 @ONLY)
    zelvor_install_gzipped(${CMAKE_BINARY_DIR}/packaging/${program}.1 ${CMAKE_INSTALL_MANDIR}/man1)
  endforeach()
  install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/zelvor RENAME copyright)
  execute_process(COMMAND date --utc --rfc-email --date "${ZELVOR_RELEASE_DATE} 12:00" OUTPUT_VARIABLE ZELVOR_RELEASE_DAY
                  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  configure_file(packaging/changelog.in ${CMAKE_BINARY_DIR}/packaging/changelog @ONLY)
  zelvor_install_gzipped(${CMAKE_BINARY_DIR}/packaging/changelog ${CMAKE_INSTALL_DATADIR}/doc/zelvor)
endif()

include(cmake/Package.cmake)
