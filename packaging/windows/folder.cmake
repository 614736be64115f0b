# The folder for Windows, which runs from anywhere: the component "windows", which tools/windows/build.sh packs.
install(TARGETS ${programs} RUNTIME DESTINATION . COMPONENT windows)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/Ranges DESTINATION . COMPONENT windows)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/qt.conf DESTINATION . COMPONENT windows)
quillon_install_licences(. windows)

# Libraries are searched for among the compiler's own and Qt's.
foreach(library libstdc++-6.dll libwinpthread-1.dll)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}
    OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  cmake_path(GET file PARENT_PATH folder)
  list(APPEND library_folders ${folder})
endforeach()
if(QUILLON_GUI)
  install(DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Guide DESTINATION . COMPONENT windows)
  list(APPEND library_folders ${QUILLON_WINDOWS_QT}/bin)
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/libraries.cmake.in ${made}/libraries.cmake @ONLY)
install(SCRIPT ${made}/libraries.cmake COMPONENT windows)
