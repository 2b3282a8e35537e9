# The Debian package: `scripts/build-package` makes it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME karvello)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "Karvello maintainers <maintainers@karvello.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "find clutter, review it, and move it to the Trash")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Karvello finds the files in a home folder that programs can make again:
caches, logs, build results and package downloads. It shows every finding
with its size, its age and the reason why it is listed; what is chosen moves
to the Trash of the desktop, and comes back from there on request.
.
It deletes nothing, talks to no network and ends no program.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_STRIP_FILES ON)
# Files hold the prefix, so it is the one of the build.
set(CPACK_PACKAGING_INSTALL_PREFIX "${CMAKE_INSTALL_PREFIX}")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_VERBATIM_VARIABLES ON)

if(TARGET karvello)
  # What is loaded only while the program runs is in no list of libraries.
  set(packages "${CMAKE_CURRENT_SOURCE_DIR}/../scripts/packages.txt")
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${packages}")
  file(STRINGS "${packages}" runtime REGEX "^runtime:")
  string(REGEX REPLACE "^runtime: *" "" runtime "${runtime}")
  string(REGEX REPLACE " +" ", " CPACK_DEBIAN_PACKAGE_DEPENDS "${runtime}")
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "default-dbus-session-bus | dbus-session-bus, qt6-wayland, xdg-desktop-portal")
  # GNOME shows no tray of its own; and not every system has letters for Chinese, Japanese and Korean.
  set(CPACK_DEBIAN_PACKAGE_SUGGESTS "gnome-shell-extension-appindicator, fonts-noto-cjk")
endif()
include(CPack)
