# The art: zephyl-art draws every picture and glyph at build time and writes them as one C++ source. It runs on the
# machine that builds; the program needs neither the fonts nor FreeType.
if(CMAKE_CROSSCOMPILING)
  include(ExternalProject)
  set(art_program ${CMAKE_BINARY_DIR}/host-art/zephyl-art)
  ExternalProject_Add(host_art
    SOURCE_DIR ${CMAKE_SOURCE_DIR}/resources/art
    BINARY_DIR ${CMAKE_BINARY_DIR}/host-art
    CMAKE_ARGS -DCMAKE_BUILD_TYPE=Release
    BUILD_ALWAYS ON
    BUILD_BYPRODUCTS ${art_program}
    INSTALL_COMMAND "")
else()
  add_subdirectory(resources/art)
  set(art_program zephyl-art)
endif()

set(resources_source ${CMAKE_BINARY_DIR}/generated/resources_data.cpp)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/generated)
add_custom_command(
  OUTPUT ${resources_source}
  COMMAND ${art_program} ${resources_source}
  DEPENDS ${art_program}
  COMMENT "Drawing the pictures and glyphs")
target_sources(zephyl_core PRIVATE ${resources_source})

# The texts: every file under resources/texts/ becomes a named text of the program (engine/text_resources.h).
set(texts_folder ${CMAKE_SOURCE_DIR}/resources/texts)
file(GLOB_RECURSE text_files CONFIGURE_DEPENDS ${texts_folder}/*)
set(texts_source ${CMAKE_BINARY_DIR}/generated/texts_data.cpp)
add_custom_command(
  OUTPUT ${texts_source}
  COMMAND ${CMAKE_COMMAND} -D folder=${texts_folder} -D output=${texts_source} -P ${CMAKE_SOURCE_DIR}/cmake/text_table.cmake
  DEPENDS ${text_files} ${CMAKE_SOURCE_DIR}/cmake/text_table.cmake ${CMAKE_SOURCE_DIR}/cmake/text_bytes.cmake
  COMMENT "Gathering the texts")
target_sources(zephyl_core PRIVATE ${texts_source})

# The built-in programs, one a file, as one text (programs/built_in_programs.h).
set(programs_folder ${CMAKE_SOURCE_DIR}/resources/programs)
file(GLOB program_files CONFIGURE_DEPENDS ${programs_folder}/*.prgm)
set(programs_source ${CMAKE_BINARY_DIR}/generated/built_in_programs_data.cpp)
add_custom_command(
  OUTPUT ${programs_source}
  COMMAND ${CMAKE_COMMAND} -D folder=${programs_folder} -D output=${programs_source}
          -P ${CMAKE_SOURCE_DIR}/cmake/built_in_programs.cmake
  DEPENDS ${program_files} ${CMAKE_SOURCE_DIR}/cmake/built_in_programs.cmake ${CMAKE_SOURCE_DIR}/cmake/text_bytes.cmake
  COMMENT "Joining the built-in programs")
target_sources(zephyl_core PRIVATE ${programs_source})
