# What is installed where, and the Debian package made of it.
find_program(GZIP gzip REQUIRED)

# A text that is installed packed, as distributions want it; without a time in it, so that builds can be compared.
function(install_packed source name folder)
  set(packed "${CMAKE_BINARY_DIR}/packed/${name}")
  file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/packed")
  execute_process(COMMAND "${GZIP}" -9nc "${CMAKE_SOURCE_DIR}/${source}" OUTPUT_FILE "${packed}" COMMAND_ERROR_IS_FATAL ANY)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${source}")
  install(FILES "${packed}" DESTINATION "${folder}")
endfunction()

install(TARGETS trawlex trawlex-harvest RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS trawlex-mdb-reader trawlex-browser-holder trawlex-harvest-work trawlex-browser DESTINATION ${TRAWLEX_PARTS_DIR})
install(FILES packaging/desktop/trawlex.desktop packaging/desktop/z-trawlex-pictures.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/desktop/trawlex.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES src/ui/look/icons/trawlex.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install_packed(packaging/man/trawlex.1 trawlex.1.gz ${CMAKE_INSTALL_MANDIR}/man1)
install_packed(packaging/man/trawlex-harvest.1 trawlex-harvest.1.gz ${CMAKE_INSTALL_MANDIR}/man1)
install_packed(CHANGELOG.md changelog.gz ${CMAKE_INSTALL_DATADIR}/doc/trawlex)
install(DIRECTORY docs/manual docs/images DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/trawlex PATTERN 200 EXCLUDE)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/trawlex RENAME copyright)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME trawlex)
set(CPACK_PACKAGE_CONTACT "The Trawlex developers <trawlex@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "walk search results and keep what you look for on their pages")
set(CPACK_PACKAGE_DESCRIPTION "Trawlex drives a real web browser through the result pages of a search service,
or through lists of addresses, visits one page after the other and keeps what is
looked for: summaries, pages, e-mail addresses, phone numbers and links. It all
goes into one database file. trawlex-harvest does the same from a terminal.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION web)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "ca-certificates, chromium, xdg-utils")
include(CPack)
