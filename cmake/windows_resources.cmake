# quillon_windows_resources(TARGET DESCRIPTION): a Windows executable's icon, version, and manifest, which declares
# support for Windows 10, UTF-8 names, long paths, and screens of any density. Does nothing on other systems.
if(WIN32)
  enable_language(RC)
  find_program(QUILLON_RSVG_CONVERT rsvg-convert REQUIRED)
  find_program(QUILLON_ICOTOOL icotool REQUIRED)

  # The sizes that Windows uses at 100% to 250%; the largest is stored as a PNG.
  set(drawing ${PROJECT_SOURCE_DIR}/artwork/icon.svg)
  set(icon_folder ${PROJECT_BINARY_DIR}/windows_icon)
  file(MAKE_DIRECTORY ${icon_folder})
  set(pictures "")
  foreach(size 16 20 24 32 40 48 64 128 256)
    set(picture ${icon_folder}/${size}.png)
    add_custom_command(OUTPUT ${picture}
      COMMAND ${QUILLON_RSVG_CONVERT} -w ${size} -h ${size} -o ${picture} ${drawing}
      DEPENDS ${drawing}
      VERBATIM)
    list(APPEND pictures ${picture})
  endforeach()
  set(QUILLON_ICON ${icon_folder}/quillon.ico)
  list(TRANSFORM pictures REPLACE "^(.*/256\\.png)$" "--raw=\\1" OUTPUT_VARIABLE in_icon)
  add_custom_command(OUTPUT ${QUILLON_ICON}
    COMMAND ${QUILLON_ICOTOOL} --create --output=${QUILLON_ICON} ${in_icon}
    DEPENDS ${pictures}
    VERBATIM)
  add_custom_target(quillon_windows_icon DEPENDS ${QUILLON_ICON})
endif()

function(quillon_windows_resources TARGET DESCRIPTION)
  if(NOT WIN32)
    return()
  endif()
  set(made ${CMAKE_CURRENT_BINARY_DIR}/${TARGET})
  configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/program.manifest.in ${made}.manifest @ONLY)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/program.rc.in ${made}.rc @ONLY)
  # Compiled separately: windres does not understand a target's compiler flags.
  add_library(${TARGET}_resources OBJECT ${made}.rc)
  set_source_files_properties(${made}.rc PROPERTIES OBJECT_DEPENDS "${QUILLON_ICON};${made}.manifest")
  add_dependencies(${TARGET}_resources quillon_windows_icon)
  target_sources(${TARGET} PRIVATE $<TARGET_OBJECTS:${TARGET}_resources>)
endfunction()
