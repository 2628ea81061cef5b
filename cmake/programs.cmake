# One program a driver: src/platform/<driver>/ as a library, so that tests can reach it, and src/app/main_<driver>.cpp.
function(zephyl_driver driver)
  file(GLOB_RECURSE driver_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/platform/${driver}/*.cpp)
  add_library(zephyl_${driver}_driver STATIC ${driver_sources})
  target_link_libraries(zephyl_${driver}_driver PUBLIC zephyl_core ${ARGN})
endfunction()

function(zephyl_program program driver)
  add_executable(${program} ${CMAKE_SOURCE_DIR}/src/app/main_${driver}.cpp)
  target_link_libraries(${program} PRIVATE zephyl_${driver}_driver)
endfunction()

# What the drivers of one system have in common.
zephyl_driver(posix)

# Commands on standard input; zlib packs its PNG files.
find_package(ZLIB REQUIRED)
zephyl_driver(script ZLIB::ZLIB)
zephyl_program(zephyl-script script)

# Expressions in a terminal, with line editing by GNU readline.
find_path(READLINE_INCLUDE readline/readline.h REQUIRED)
find_library(READLINE_LIBRARY readline REQUIRED)
zephyl_driver(console zephyl_posix_driver ${READLINE_LIBRARY})
target_include_directories(zephyl_console_driver SYSTEM PRIVATE ${READLINE_INCLUDE})
zephyl_program(zephyl-console console)

# The window.
if(ZEPHYL_WINDOW)
  find_package(Qt6 REQUIRED COMPONENTS Widgets)
  zephyl_driver(desktop zephyl_posix_driver Qt6::Widgets)
  # Without it Qt makes macros of common words such as "slots".
  target_compile_definitions(zephyl_desktop_driver PUBLIC QT_NO_KEYWORDS)
  zephyl_program(zephyl desktop)
  add_dependencies(zephyl zephyl-help)
endif()
