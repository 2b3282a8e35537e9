# The application, and what a desktop knows of it. One id names the entry, the name on the session bus, the metadata and the
# icon; that is how desktops find one from the other.
set(KARVELLO_APPLICATION_ID io.github.karvello.Karvello)

install(TARGETS karvello DESTINATION "${CMAKE_INSTALL_BINDIR}")
add_dependencies(karvello-installed karvello)
karvello_install_compressed(man/karvello.1 karvello.1 "${CMAKE_INSTALL_MANDIR}/man1")

install(FILES desktop/${KARVELLO_APPLICATION_ID}.desktop DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES desktop/${KARVELLO_APPLICATION_ID}.metainfo.xml DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
configure_file(desktop/${KARVELLO_APPLICATION_ID}.service.in ${KARVELLO_APPLICATION_ID}.service @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${KARVELLO_APPLICATION_ID}.service"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/dbus-1/services")

set(theme "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
install(FILES icons/${KARVELLO_APPLICATION_ID}.svg DESTINATION "${theme}/scalable/apps")
install(FILES icons/${KARVELLO_APPLICATION_ID}-symbolic.svg DESTINATION "${theme}/symbolic/apps")

# Ready-made sizes for what reads no SVG. The small ones have a drawing of their own: the ring would only blur them.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
set(pictures "")
foreach(size 16 22 24 32 48 64 128 256 512)
  if(size LESS 32)
    set(drawing "${CMAKE_CURRENT_SOURCE_DIR}/icons/small.svg")
  else()
    set(drawing "${CMAKE_CURRENT_SOURCE_DIR}/icons/${KARVELLO_APPLICATION_ID}.svg")
  endif()
  set(picture "${CMAKE_CURRENT_BINARY_DIR}/icons/${size}/${KARVELLO_APPLICATION_ID}.png")
  add_custom_command(OUTPUT "${picture}"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${CMAKE_CURRENT_BINARY_DIR}/icons/${size}"
    COMMAND "${RSVG_CONVERT}" --width ${size} --height ${size} --output "${picture}" "${drawing}"
    DEPENDS "${drawing}"
    VERBATIM)
  list(APPEND pictures "${picture}")
  install(FILES "${picture}" DESTINATION "${theme}/${size}x${size}/apps")
endforeach()
add_custom_target(karvello-icons DEPENDS ${pictures})
add_dependencies(karvello-installed karvello-icons)
