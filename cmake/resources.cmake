# The art: zephyl-art draws every picture and glyph at build time and writes them as one C++ source. It runs on the
# machine that builds, so a cross build points ZEPHYL_ART to a zephyl-art built there; the program needs neither the
# fonts nor FreeType.
set(ZEPHYL_ART "" CACHE FILEPATH "A zephyl-art that runs on this machine, for cross builds")

if(ZEPHYL_ART)
  set(art_command ${ZEPHYL_ART})
else()
  find_package(Freetype REQUIRED)
  set(art_font_folder /usr/share/fonts/X11/misc CACHE PATH "The bitmap fonts of xfonts-base and xfonts-terminus")
  file(GLOB art_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/resources/art/*.cpp)
  add_executable(zephyl-art ${art_sources} ${CMAKE_SOURCE_DIR}/src/faceplate/gif_writer.cpp)
  target_include_directories(zephyl-art PRIVATE ${CMAKE_SOURCE_DIR}/resources/art)
  target_compile_definitions(zephyl-art PRIVATE FONT_FOLDER="${art_font_folder}")
  target_link_libraries(zephyl-art PRIVATE zephyl_options Freetype::Freetype)
  set(art_command zephyl-art)
endif()

set(resources_source ${CMAKE_BINARY_DIR}/generated/resources_data.cpp)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/generated)
add_custom_command(
  OUTPUT ${resources_source}
  COMMAND ${art_command} ${resources_source}
  DEPENDS ${art_command}
  COMMENT "Drawing the pictures and glyphs")
target_sources(zephyl_core PRIVATE ${resources_source})
