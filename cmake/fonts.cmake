# The fonts of the layouts, compiled in, so that a copied folder looks the same on every machine. They come from
# Debian packages (tools/install_packages.sh), not from the sources.
#
# quillon_add_fonts(TARGET): the resource quillon_fonts with one file per font under ":/fonts".
set(QUILLON_LIBERATION_FONTS /usr/share/fonts/truetype/liberation2 CACHE PATH "The folder of the Liberation 2 fonts")
set(QUILLON_DEJAVU_FONTS /usr/share/fonts/truetype/dejavu CACHE PATH "The folder of the DejaVu fonts")
set(QUILLON_LIBERATION_LICENCE /usr/share/doc/fonts-liberation2/copyright CACHE FILEPATH "The licence of Liberation 2")
set(QUILLON_DEJAVU_LICENCE /usr/share/doc/fonts-dejavu-core/copyright CACHE FILEPATH "The licence of DejaVu")

function(quillon_add_fonts TARGET)
  list(APPEND fonts
    ${QUILLON_LIBERATION_FONTS}/LiberationMono-Regular.ttf
    ${QUILLON_LIBERATION_FONTS}/LiberationSans-Bold.ttf
    ${QUILLON_LIBERATION_FONTS}/LiberationSans-Regular.ttf
    ${QUILLON_DEJAVU_FONTS}/DejaVuSans.ttf
    ${QUILLON_DEJAVU_FONTS}/DejaVuSansCondensed-Bold.ttf
    ${QUILLON_DEJAVU_FONTS}/DejaVuSansCondensed.ttf)
  set(entries "")
  foreach(font ${fonts})
    if(NOT EXISTS ${font})
      message(FATAL_ERROR "The font ${font} is missing: tools/install_packages.sh run")
    endif()
    cmake_path(GET font FILENAME name)
    string(APPEND entries "    <file alias=\"${name}\">${font}</file>\n")
  endforeach()
  set(list ${CMAKE_CURRENT_BINARY_DIR}/quillon_fonts.qrc)
  file(CONFIGURE OUTPUT ${list} @ONLY CONTENT "<RCC>\n  <qresource prefix=\"/fonts\">\n${entries}  </qresource>\n</RCC>\n")
  # As a source, these millions of bytes would take minutes to compile.
  qt_add_big_resources(objects ${list} OPTIONS --no-compress ${QUILLON_RESOURCE_OPTIONS})
  target_sources(${TARGET} PRIVATE ${objects})
endfunction()
