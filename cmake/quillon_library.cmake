# quillon_library(NAME HEADERS ... SOURCES ... TESTS ... QT_TESTS ... LINKS ...)
#
# One folder's library `quillon_NAME`, and one test program `NAME_test` of the tests that stand beside its sources. A
# folder whose tests build windows lists all of them as QT_TESTS.
function(quillon_library NAME)
  cmake_parse_arguments(ARG "" "" "HEADERS;SOURCES;TESTS;QT_TESTS;LINKS" ${ARGN})

  add_library(quillon_${NAME} STATIC)
  target_sources(quillon_${NAME}
    PRIVATE ${ARG_SOURCES}
    PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${ARG_HEADERS})
  target_link_libraries(quillon_${NAME} PUBLIC quillon_flags ${ARG_LINKS})

  if(ARG_TESTS)
    quillon_test(${NAME}_test SOURCES ${ARG_TESTS} LINKS quillon_${NAME})
  endif()
  if(ARG_QT_TESTS)
    quillon_test(${NAME}_test SOURCES ${ARG_QT_TESTS} LINKS quillon_${NAME} MAIN quillon_qt_test_main)
  endif()
endfunction()

# quillon_test(NAME SOURCES ... LINKS ... [MAIN LIBRARY])
#
# One GoogleTest program; each of its tests is a test of ctest's. Its main is GoogleTest's own or that of LIBRARY.
function(quillon_test NAME)
  cmake_parse_arguments(ARG "" "MAIN" "SOURCES;LINKS" ${ARGN})
  if(NOT ARG_MAIN)
    set(ARG_MAIN GTest::gtest_main)
  endif()

  add_executable(${NAME} ${ARG_SOURCES})
  set_target_properties(${NAME} PROPERTIES UNITY_BUILD OFF)  # each test file has its own Case and its own fixtures
  target_link_libraries(${NAME} PRIVATE quillon_flags ${ARG_LINKS} GTest::gmock ${ARG_MAIN})
  # Tests are compiled more often than they are waited for: twice as fast this way. What they test keeps its own level.
  target_compile_options(${NAME} PRIVATE $<$<NOT:$<CONFIG:Debug>>:-O1>)
  gtest_discover_tests(${NAME} DISCOVERY_TIMEOUT 60 NO_PRETTY_VALUES)
endfunction()
