# The Debian package, from the component "system", and the portable archive, from the component "portable", which CPack
# makes with -G DEB and -G External.
set(docs ${CMAKE_INSTALL_DATADIR}/doc/quillon)
set(licence_names ${licences})
set(licence_files ${licences})
list(FILTER licence_names INCLUDE REGEX "^LICENSE")
list(FILTER licence_files EXCLUDE REGEX "^LICENSE")

# ---- the Debian package

file(READ ${PROJECT_SOURCE_DIR}/NOTICE copyright)
string(PREPEND copyright "Quillon's sources: https://${QUILLON_WEB_HOST}/quillon/\n\n")
foreach(name file IN ZIP_LISTS licence_names licence_files)
  file(READ ${file} text)
  string(APPEND copyright "\n---- ${name} ----\n\n${text}")
endforeach()
file(WRITE ${made}/copyright "${copyright}")
quillon_print(${made}/changelog.gz DEPENDS ${made}/debian-changelog COMMAND gzip -9nc ${made}/debian-changelog)
install(FILES ${made}/changelog.gz ${made}/copyright DESTINATION ${docs} COMPONENT system)
file(MAKE_DIRECTORY ${made}/docs)
file(CREATE_LINK ../../quillon/Guide ${made}/docs/guide SYMBOLIC)
install(FILES ${made}/docs/guide DESTINATION ${docs} COMPONENT system)

set(CPACK_PACKAGE_NAME quillon)
set(CPACK_PACKAGE_VENDOR "The Quillon developers")
set(CPACK_PACKAGE_CONTACT "The Quillon developers <${QUILLON_CONTACT_ADDRESS}>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://${QUILLON_WEB_HOST}/quillon/)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Hold'em calculator for calling an all-in or shoving")
set(CPACK_PACKAGE_DESCRIPTION
  "You tell Quillon the pot, the amounts and what you think the other player
holds, and it paints a grid of what each of the 169 starting hands wins or
loses by calling his all-in, or by shoving before the flop. Equities are
exact, from a table of every hand against every hand.
.
The companion quillon-cli asks the same questions from a command line, and
studies limits, sweeps and balanced ranges.")
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS xdg-utils) # opens links
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_SOURCE_DIR}/postrm)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# ---- the portable archive

install(TARGETS ${programs} RUNTIME DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/Ranges ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Guide
  DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)
install(FILES qt.conf DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)
quillon_install_licences(. portable EXCLUDE_FROM_ALL)
find_program(QUILLON_PATCHELF patchelf REQUIRED)
get_target_property(qmake Qt6::qmake IMPORTED_LOCATION)
execute_process(COMMAND ${qmake} -query QT_INSTALL_PLUGINS
  OUTPUT_VARIABLE qt_plugins OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
configure_file(portable.cmake.in ${made}/portable.cmake @ONLY)
install(SCRIPT ${made}/portable.cmake COMPONENT portable EXCLUDE_FROM_ALL)

configure_file(choose_component.cmake.in ${made}/choose_component.cmake @ONLY)
set(CPACK_PROJECT_CONFIG_FILE ${made}/choose_component.cmake)
set(CPACK_EXTERNAL_ENABLE_STAGING ON)
set(CPACK_EXTERNAL_PACKAGE_SCRIPT ${CMAKE_CURRENT_SOURCE_DIR}/archive.cmake)
set(CPACK_GENERATOR DEB External)
include(CPack)
