# The help: the manual as one HTML file beside the program (resources/help/make-help.sh).
find_program(CMARK_GFM cmark-gfm REQUIRED)
set(help_file ${CMAKE_BINARY_DIR}/Zephyl_help.html)
set(help_folder ${CMAKE_SOURCE_DIR}/resources/help)
file(GLOB help_sources CONFIGURE_DEPENDS
  ${CMAKE_SOURCE_DIR}/docs/*.md ${CMAKE_SOURCE_DIR}/docs/manual/*.md ${CMAKE_SOURCE_DIR}/docs/pictures/*.png ${help_folder}/*)
add_custom_command(
  OUTPUT ${help_file}
  COMMAND ${help_folder}/make-help.sh ${CMAKE_SOURCE_DIR}/docs ${ZEPHYL_VERSION} ${help_file}
  DEPENDS ${help_sources}
  COMMENT "Joining the manual into the help"
  VERBATIM)
add_custom_target(zephyl-help ALL DEPENDS ${help_file})
