# The calculator without any driver. Which folder may include which is checked by tests/architecture.
set(core_folders engine numerics collections stats plot tools persistence programs faceplate app)
set(core_sources)
foreach(folder ${core_folders})
  file(GLOB_RECURSE found CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${folder}/*.cpp)
  list(APPEND core_sources ${found})
endforeach()
list(FILTER core_sources EXCLUDE REGEX "/app/main_[a-z]+\\.cpp$")
file(GLOB platform_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/platform/*.cpp)

add_library(zephyl_core STATIC ${core_sources} ${platform_sources})
target_link_libraries(zephyl_core PUBLIC zephyl_options)

# The loops over rows of matrices are worth being vectorised.
set(vectorised ${core_sources})
list(FILTER vectorised INCLUDE REGEX "/src/collections/(matrix_|decompositions/)")
set_source_files_properties(${vectorised} PROPERTIES COMPILE_OPTIONS "$<$<CONFIG:Release>:-O3>")
