# What is installed where, and the Debian package made of it.
include(GNUInstallDirs)

install(TARGETS trawlex trawlex-harvest trawlex-mdb-reader trawlex-browser-holder RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES packaging/desktop/trawlex.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/desktop/trawlex.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES src/ui/look/icons/trawlex.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES packaging/man/trawlex.1 packaging/man/trawlex-harvest.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(DIRECTORY docs/manual docs/images DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/trawlex PATTERN 200 EXCLUDE)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/trawlex RENAME copyright)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME trawlex)
set(CPACK_PACKAGE_CONTACT "The Trawlex developers <trawlex@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "walk search results and keep what you look for on their pages")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION web)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The built-in browser is a process of its own, which the library that is linked does not ask for.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6webenginecore6-bin")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "ca-certificates, chromium, xdg-utils")
include(CPack)
