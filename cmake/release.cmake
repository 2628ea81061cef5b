# Version and day of the release, each from the one place where it stands: the version in the source, the day in the first
# heading of CHANGES.md.
file(STRINGS ${CMAKE_SOURCE_DIR}/src/engine/errors.h version_line REGEX "VERSION_TEXT = ")
string(REGEX REPLACE ".*\"(.*)\".*" "\\1" ZEPHYL_VERSION "${version_line}")
file(STRINGS ${CMAKE_SOURCE_DIR}/CHANGES.md headings REGEX "^## ")
list(GET headings 0 newest)
if(NOT newest MATCHES "^## ${ZEPHYL_VERSION}, ([0-9]+-[0-9]+-[0-9]+)$")
  message(FATAL_ERROR "The first heading of CHANGES.md isn't \"## ${ZEPHYL_VERSION}, YEAR-MONTH-DAY\" but \"${newest}\"")
endif()
set(ZEPHYL_RELEASE_DAY ${CMAKE_MATCH_1})
set(ZEPHYL_MAINTAINER "Zephyl developers <developers@zephyl.example.org>")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/engine/errors.h ${CMAKE_SOURCE_DIR}/CHANGES.md)
