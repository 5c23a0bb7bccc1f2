include(GNUInstallDirs)
install(TARGETS zelvor zelvor-radio RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
