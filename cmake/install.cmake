# cmake --install build/release --prefix FOLDER
#
# The programs keep ranges, settings and pictures in the folder that they are in, so FOLDER should be the user's own. The
# window looks there for the guide that it opens, too.
include(GNUInstallDirs)

install(TARGETS quillon-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(QUILLON_GUI)
  install(TARGETS quillon RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Guide DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DATADIR}/quillon)
install(FILES docs/user-guide.md LICENSE NOTICE DESTINATION ${CMAKE_INSTALL_DATADIR}/quillon)
install(FILES third_party/httplib/LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/quillon RENAME LICENSE.cpp-httplib)
if(QUILLON_GUI)
  foreach(font liberation dejavu)
    string(TOUPPER ${font} upper)
    install(FILES ${QUILLON_${upper}_LICENCE}
      DESTINATION ${CMAKE_INSTALL_DATADIR}/quillon RENAME LICENSE.${font}-fonts)
  endforeach()
endif()
