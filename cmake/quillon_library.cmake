# quillon_library(NAME HEADERS ... SOURCES ... TESTS ... LINKS ...)
#
# One folder's library `quillon_NAME`, and one test program `NAME_test` of the tests that stand beside its sources.
function(quillon_library NAME)
  cmake_parse_arguments(ARG "" "" "HEADERS;SOURCES;TESTS;LINKS" ${ARGN})

  add_library(quillon_${NAME} STATIC)
  target_sources(quillon_${NAME}
    PRIVATE ${ARG_SOURCES}
    PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${ARG_HEADERS})
  target_link_libraries(quillon_${NAME} PUBLIC quillon_flags ${ARG_LINKS})

  if(ARG_TESTS)
    quillon_test(${NAME}_test SOURCES ${ARG_TESTS} LINKS quillon_${NAME})
  endif()
endfunction()

# quillon_test(NAME SOURCES ... LINKS ...)
#
# One GoogleTest program; each of its tests is a test of ctest's.
function(quillon_test NAME)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})

  add_executable(${NAME} ${ARG_SOURCES})
  target_link_libraries(${NAME} PRIVATE quillon_flags ${ARG_LINKS} GTest::gmock GTest::gtest_main)
  gtest_discover_tests(${NAME} DISCOVERY_TIMEOUT 60 NO_PRETTY_VALUES)
endfunction()
