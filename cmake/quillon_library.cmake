# quillon_library(NAME HEADERS ... SOURCES ... TESTS ... QT_TESTS ... LINKS ...)
#
# One folder's library `quillon_NAME`, and one test program `NAME_test` of the tests beside its sources. A
# folder whose tests build windows lists all of them as QT_TESTS.
function(quillon_library NAME)
  cmake_parse_arguments(ARG "" "" "HEADERS;SOURCES;TESTS;QT_TESTS;LINKS" ${ARGN})

  # For tools/coverage.sh, which must not count what only tests are made of.
  set(product ${ARG_HEADERS} ${ARG_SOURCES})
  list(TRANSFORM product PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  list(JOIN product "\n" product)
  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/product/${NAME}.txt CONTENT "${product}\n" @ONLY)

  # A header with a source beside it is the first that this source includes, and so compiles alone as it is. The others
  # are compiled alone by the target all_verify_interface_header_sets.
  set(lone ${ARG_HEADERS})
  list(TRANSFORM ARG_SOURCES REPLACE "\\.cpp$" ".h" OUTPUT_VARIABLE first_includes)
  list(REMOVE_ITEM lone ${first_includes})
  list(REMOVE_ITEM ARG_HEADERS ${lone})

  add_library(quillon_${NAME} STATIC)
  target_sources(quillon_${NAME}
    PRIVATE ${ARG_SOURCES}
    PUBLIC
      FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${ARG_HEADERS}
      FILE_SET lone TYPE HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${lone})
  set_target_properties(quillon_${NAME} PROPERTIES INTERFACE_HEADER_SETS_TO_VERIFY lone)
  target_link_libraries(quillon_${NAME} PUBLIC quillon_flags ${ARG_LINKS})

  if(ARG_TESTS)
    quillon_test(${NAME}_test SOURCES ${ARG_TESTS} LINKS quillon_${NAME})
  endif()
  if(ARG_QT_TESTS)
    quillon_test(${NAME}_test QT SOURCES ${ARG_QT_TESTS} LINKS quillon_${NAME})
  endif()
endfunction()

# Tests are compiled more often than they are waited for: three times as fast this way, with the headers below. What they
# test keeps its own level.
set(QUILLON_TEST_OPTIONS -O0 $<$<CONFIG:RelWithDebInfo>:-g1>)

# quillon_test_headers(NAME LINKS ... HEADERS ...)
#
# What nearly every test includes and the compiler takes longest to read. It is read once, for all of them.
function(quillon_test_headers NAME)
  cmake_parse_arguments(ARG "" "" "LINKS;HEADERS" ${ARGN})

  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/${NAME}.cpp CONTENT "")
  add_library(${NAME} OBJECT ${CMAKE_BINARY_DIR}/${NAME}.cpp)
  target_link_libraries(${NAME} PRIVATE quillon_flags GTest::gmock ${ARG_LINKS})
  target_compile_options(${NAME} PRIVATE ${QUILLON_TEST_OPTIONS})
  target_precompile_headers(${NAME} PRIVATE <filesystem> <fstream> <gmock/gmock.h> <gtest/gtest.h> ${ARG_HEADERS})
endfunction()

quillon_test_headers(quillon_test_headers)

# quillon_as_one_source(NAME SOURCES RESULT)
#
# Gives in RESULT the sources of a test program with its test files read as one, which takes a tenth of the time. Each test
# file has its own Case and its own fixtures, so each gets a namespace of its own that sees all of ours; their headers
# come before the first of them.
function(quillon_as_one_source NAME SOURCES RESULT)
  set(includes "")
  set(tests "")
  set(others "")
  foreach(source IN LISTS SOURCES)
    if(NOT source MATCHES "_test\\.cpp$")
      list(APPEND others ${source})
      continue()
    endif()
    set(path ${CMAKE_CURRENT_SOURCE_DIR}/${source})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${path})
    file(STRINGS ${path} lines REGEX "^#include ")
    list(APPEND includes ${lines})
    string(MAKE_C_IDENTIFIER ${source} own)
    string(APPEND tests
      "namespace ${own} {\nnamespace quillon {\nusing namespace ::quillon;\n}\n#include \"${path}\"\n}\n")
  endforeach()
  list(REMOVE_DUPLICATES includes)
  list(JOIN includes "\n" includes)
  set(one ${CMAKE_BINARY_DIR}/tests_as_one/${NAME}.cpp)
  file(CONFIGURE OUTPUT ${one} CONTENT "${includes}\n${tests}" @ONLY)
  set(${RESULT} ${one} ${others} PARENT_SCOPE)
endfunction()

# quillon_test(NAME [QT] SOURCES ... LINKS ...)
#
# One GoogleTest program; each of its tests is a test of ctest's, or the program as a whole where it is built as one
# source. Its main is GoogleTest's own, or with QT that of tests that build windows.
function(quillon_test NAME)
  cmake_parse_arguments(ARG "QT" "" "SOURCES;LINKS" ${ARGN})
  if(ARG_QT)
    set(main quillon_qt_test_main)
    set(headers quillon_qt_test_headers)
  else()
    set(main GTest::gtest_main)
    set(headers quillon_test_headers)
  endif()

  if(CMAKE_UNITY_BUILD)
    quillon_as_one_source(${NAME} "${ARG_SOURCES}" ARG_SOURCES)
  endif()
  add_executable(${NAME} ${ARG_SOURCES})
  set_target_properties(${NAME} PROPERTIES UNITY_BUILD OFF)
  target_link_libraries(${NAME} PRIVATE quillon_flags ${ARG_LINKS} GTest::gmock ${main})
  target_compile_options(${NAME} PRIVATE ${QUILLON_TEST_OPTIONS})
  target_precompile_headers(${NAME} REUSE_FROM ${headers})
  if(CMAKE_UNITY_BUILD AND ARG_QT)
    # Much of a window's time is waiting, so a third of the tests each at once ends sooner than all in a row.
    foreach(third RANGE 2)
      add_test(NAME ${NAME}_${third} COMMAND ${NAME} --gtest_brief=1)
      set_tests_properties(${NAME}_${third} PROPERTIES ENVIRONMENT "GTEST_TOTAL_SHARDS=3;GTEST_SHARD_INDEX=${third}")
    endforeach()
  elseif(CMAKE_UNITY_BUILD)
    add_test(NAME ${NAME} COMMAND ${NAME} --gtest_brief=1)
  else()
    gtest_discover_tests(${NAME} DISCOVERY_TIMEOUT 60 NO_PRETTY_VALUES)
  endif()
endfunction()
