# What `cmake --install` puts where a desktop looks for it, and the Debian package of that.
include(GNUInstallDirs)
set(app_id org.quillorandix.Quillorandix)
install(TARGETS quillorandix quilltags)
install(FILES data/${app_id}.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES data/${app_id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES data/${app_id}.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
  RENAME ${app_id}.xml)
install(FILES data/${app_id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES data/quillorandix.1 data/quilltags.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES data/quilltags.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
  RENAME quilltags)
install(FILES LICENSE README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_CONTACT "the Quillorandix authors <quillorandix@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "mark and tag how narrative texts express time")
set(CPACK_DEBIAN_PACKAGE_SECTION text)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "fonts-dejavu-core, fonts-liberation, fonts-symbola, fonts-wqy-microhei, qt6-wayland")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
include(CPack)
