# What `cmake --install` puts where. What a program needs at run time it finds from its own folder (platform/posix/folders.h).
include(GNUInstallDirs)
# Whoever installs has built before.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)

set(packaging ${CMAKE_SOURCE_DIR}/packaging)
set(made ${CMAKE_BINARY_DIR}/packaging)
file(MAKE_DIRECTORY ${made}/icons)

install(TARGETS zephyl zephyl-console zephyl-script)
install(FILES ${help_file} DESTINATION ${CMAKE_INSTALL_DATADIR}/zephyl)

# --- The desktop: entry, icon, file types, what software centres show

set(icon_sizes 16 22 24 32 48 64 96 128 256)
set(icons)
foreach(size ${icon_sizes})
  set(icon ${made}/icons/${size}.png)
  list(APPEND icons ${icon})
  install(FILES ${icon} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps RENAME zephyl.png)
endforeach()
add_custom_command(
  OUTPUT ${icons}
  COMMAND zephyl-icons ${made}/icons ${icon_sizes}
  DEPENDS zephyl-icons
  COMMENT "Drawing the icon"
  VERBATIM)

configure_file(${packaging}/desktop/metainfo.xml.in ${made}/org.example.zephyl.metainfo.xml @ONLY)
install(FILES ${packaging}/desktop/zephyl.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/desktop/zephyl-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME zephyl.xml)
install(FILES ${made}/org.example.zephyl.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

# --- Documents, packed as Debian wants them; without a time of packing, so that two builds are the same

set(packed)
function(zephyl_packed source destination)
  get_filename_component(name ${source} NAME)
  set(file ${made}/${name}.gz)
  add_custom_command(
    OUTPUT ${file}
    COMMAND gzip -9nc ${source} > ${file}
    DEPENDS ${source}
    COMMENT "Packing ${name}")
  set(packed ${packed} ${file} PARENT_SCOPE)
  install(FILES ${file} DESTINATION ${destination})
endfunction()

execute_process(COMMAND env LC_ALL=C date -u -d ${ZEPHYL_RELEASE_DAY} "+%B %-d, %Y"
  OUTPUT_VARIABLE release_day_in_words OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
foreach(program zephyl zephyl-console zephyl-script)
  configure_file(${packaging}/man/${program}.1.in ${made}/${program}.1 @ONLY)
  zephyl_packed(${made}/${program}.1 ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()

configure_file(${CMAKE_SOURCE_DIR}/CHANGES.md ${made}/changelog COPYONLY)
zephyl_packed(${made}/changelog ${CMAKE_INSTALL_DOCDIR})
execute_process(COMMAND env LC_ALL=C date -u -R -d ${ZEPHYL_RELEASE_DAY}
  OUTPUT_VARIABLE release_day_of_mails OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
configure_file(${packaging}/debian/changelog.in ${made}/changelog.Debian @ONLY)
zephyl_packed(${made}/changelog.Debian ${CMAKE_INSTALL_DOCDIR})

# The text of LICENSE below its title and the line of the copyright, as a field: each line behind a blank, an empty one as a
# point.
file(READ ${CMAKE_SOURCE_DIR}/LICENSE licence)
string(REGEX REPLACE "^.*\nCopyright[^\n]*\n\n" "" licence "${licence}")
string(REGEX REPLACE "\n\n" "\n.\n" licence "${licence}")
string(REGEX REPLACE "\n(.)" "\n \\1" licence " ${licence}")
configure_file(${packaging}/debian/copyright.in ${made}/copyright @ONLY)

install(FILES ${CMAKE_SOURCE_DIR}/README.md ${made}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs
  FILES_MATCHING PATTERN "*.md" PATTERN "*.png")

add_custom_target(zephyl-installed-files ALL DEPENDS ${icons} ${packed})
