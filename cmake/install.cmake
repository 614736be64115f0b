# cmake --install build/release --prefix FOLDER
#
# The programs keep ranges, settings and pictures in the folder that they are in, so FOLDER should be the user's own.
include(GNUInstallDirs)

install(TARGETS quillon-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(QUILLON_GUI)
  install(TARGETS quillon RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DATADIR}/quillon)
install(FILES docs/user-guide.md LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/quillon)
install(FILES third_party/httplib/LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/quillon RENAME LICENSE.cpp-httplib)
