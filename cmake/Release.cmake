# The release that this is: the number and the day of the newest entry of CHANGELOG.md, which nothing else repeats.
set(changes ${CMAKE_CURRENT_LIST_DIR}/../CHANGELOG.md)
file(STRINGS ${changes} newest REGEX "^## \\[[0-9]" LIMIT_COUNT 1 ENCODING UTF-8)
if(NOT newest MATCHES "^## \\[([0-9]+\\.[0-9]+\\.[0-9]+)\\] - ([0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9])$")
  message(FATAL_ERROR "CHANGELOG.md has no entry like \"## [1.2.3] - 2026-11-22\" on top.")
endif()
set(ZELVOR_RELEASE ${CMAKE_MATCH_1})
set(ZELVOR_RELEASE_DATE ${CMAKE_MATCH_2})
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${changes})
