# What `cpack` makes of an installed tree. scripts/package runs it.
set(CPACK_PACKAGE_NAME zelvor)
set(CPACK_PACKAGE_VENDOR "The Zelvor developers")
set(CPACK_PACKAGE_CONTACT "The Zelvor developers <developers@zelvor.org>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://zelvor.org/")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Program portable two-way radios over a serial cable")
set(CPACK_PACKAGE_DESCRIPTION
    "Zelvor reads the memory of a portable two-way radio over its programming
cable, lets you edit all of it, keeps it in data files, prints it and writes
it back. It also runs the radio's service mode, with test channels and tuning
on the live radio. Every text exists in English and in Chinese.
.
A simulated radio is included, so that everything can be tried without a
cable.")
set(CPACK_PACKAGE_FILE_NAME zelvor_${PROJECT_VERSION})
set(CPACK_RESOURCE_FILE_LICENSE ${CMAKE_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
                                                WORLD_EXECUTE)

if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_PACKAGE_FILE_NAME zelvor-${PROJECT_VERSION}-windows-x64)
  include(CPack)
  return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION hamradio)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What no binary names: a font with Chinese characters, and the toolkit's own texts in Chinese.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-wqy-zenhei, qt6-translations-l10n")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
include(CPack)
