# What `cmake --install` puts where: the programs everywhere, the desktop's files on systems that
# follow the freedesktop.org layout.
include(GNUInstallDirs)

foreach(program IN ITEMS tricklet tricklet-cli)
  if(TARGET ${program})
    install(TARGETS ${program}
      RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
      BUNDLE DESTINATION .)
  endif()
endforeach()

install(FILES LICENSE README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR})
get_property(documents GLOBAL PROPERTY TRICKLET_DOCUMENTS)
if(documents)
  install(FILES ${documents} DESTINATION ${TRICKLET_DOCUMENT_DIR})
endif()

if(UNIX AND NOT APPLE)
  set(id org.tricklet.Tricklet)
  install(FILES packaging/${id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES packaging/${id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES packaging/${id}.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
  install(FILES packaging/${id}.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
  install(FILES docs/tricklet.1 docs/tricklet-cli.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()
