# A Debian package for all users of a machine: `cpack --config build/release/CPackConfig.cmake`. The installation tree
# goes to /opt/duktores as it is, what the desktop and the shell look for to their places below /usr.

set(enlaces ${CMAKE_BINARY_DIR}/enlaces)
file(MAKE_DIRECTORY ${enlaces})
foreach(programa duktores duktores-batch)
  file(CREATE_LINK /opt/duktores/Duct/${programa} ${enlaces}/${programa} SYMBOLIC)
  install(FILES ${enlaces}/${programa} DESTINATION bin COMPONENT escritorio EXCLUDE_FROM_ALL)
endforeach()
install(FILES Desktop/duktores.desktop DESTINATION share/applications COMPONENT escritorio EXCLUDE_FROM_ALL)
install(FILES Desktop/duktores.svg DESTINATION share/icons/hicolor/scalable/apps COMPONENT escritorio EXCLUDE_FROM_ALL)
install(FILES Desktop/copyright DESTINATION share/doc/duktores COMPONENT escritorio EXCLUDE_FROM_ALL)

# What the administrator has changed of it stays.
file(WRITE ${CMAKE_BINARY_DIR}/conffiles "/opt/duktores/Config/Config.ini\n")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /)
set(CPACK_INSTALL_CMAKE_PROJECTS "${CMAKE_BINARY_DIR};duktores;Unspecified;/opt/duktores"
                                 "${CMAKE_BINARY_DIR};duktores;escritorio;/usr")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_CONTACT "duktores <duktores@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "flat patterns of duct transition pieces")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Choose a piece, type its dimensions, see the solid, and get the flat pattern
 that is cut from the sheet, as a DXF drawing for the cutting machine.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, fonts-wqy-microhei")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_BINARY_DIR}/conffiles)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
