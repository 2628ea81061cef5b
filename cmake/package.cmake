# The Debian package, of what `cmake --install` installs: `cpack` in the build folder, or packaging/package.sh.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zephyl)
set(CPACK_PACKAGE_VENDOR Zephyl)
set(CPACK_PACKAGE_VERSION ${ZEPHYL_VERSION})
set(CPACK_PACKAGE_CONTACT ${ZEPHYL_MAINTAINER})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "programmable graphing and scientific calculator")
set(CPACK_PACKAGE_DESCRIPTION
  "Zephyl is a calculator with a drawn face whose keys are tapped or typed. It\n\
computes with real and complex numbers, lists, matrices, strings and integers\n\
in four bases, has statistics, plots of curves and surfaces, programs, loans\n\
and cash flows, units, constants and the periodic table.\n\
.\n\
Beside the window there are zephyl-console, which computes in a terminal or a\n\
pipe, and zephyl-script, which drives the calculator by commands.")
set(CPACK_PACKAGE_HOMEPAGE_URL https://zephyl.example.org/)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION math)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# xdg-utils opens the help; the other is the window on a Wayland desktop without an X server beside it.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, qt6-wayland")
# Any of them plays the click of the keys.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "pipewire-bin | pulseaudio-utils | alsa-utils")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Folders get the permissions that Debian asks for, whatever the umask.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
include(CPack)
