# The user guide as a page for the browser, with its pictures, in the folder "Guide" next to the program.
find_program(QUILLON_CMARK cmark-gfm REQUIRED)
set(guide ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Guide)
file(GLOB guide_pictures CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/screens/*)
add_custom_command(
  OUTPUT ${guide}/user-guide.html
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${guide}
  COMMAND ${CMAKE_COMMAND} -DCMARK=${QUILLON_CMARK} -DDOCS=${PROJECT_SOURCE_DIR}/docs -DGUIDE=${guide}
    -P ${PROJECT_SOURCE_DIR}/cmake/make_user_guide.cmake
  DEPENDS
    ${PROJECT_SOURCE_DIR}/cmake/make_user_guide.cmake
    ${PROJECT_SOURCE_DIR}/docs/user-guide.html.in
    ${PROJECT_SOURCE_DIR}/docs/user-guide.md
    ${guide_pictures}
  VERBATIM)
add_custom_target(user_guide DEPENDS ${guide}/user-guide.html)
