# quillon_library(NAME HEADERS ... SOURCES ... LINKS ... TESTS ... QT_TESTS ... POSIX_TESTS ... WINDOWS_TESTS ...
#   TEST_LINKS ... TEST_DEFINITIONS ...)
#
# A folder's library `quillon_NAME`, and a program `NAME_test` of its tests. A folder whose tests create windows lists
# all of them as QT_TESTS. POSIX_TESTS and WINDOWS_TESTS are for one system's own rules.
function(quillon_library NAME)
  cmake_parse_arguments(ARG "" ""
    "HEADERS;SOURCES;LINKS;TESTS;QT_TESTS;POSIX_TESTS;WINDOWS_TESTS;TEST_LINKS;TEST_DEFINITIONS" ${ARGN})

  # For tools/coverage.sh, which must not count test helpers.
  set(product ${ARG_HEADERS} ${ARG_SOURCES})
  list(TRANSFORM product PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  list(JOIN product "\n" product)
  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/product/${NAME}.txt CONTENT "${product}\n" @ONLY)

  # A header with a source is the first one that the source includes, which shows that it compiles alone. The target
  # all_verify_interface_header_sets compiles the others alone.
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

  set(test_arguments LINKS quillon_${NAME} ${ARG_TEST_LINKS} DEFINITIONS ${ARG_TEST_DEFINITIONS})
  if(ARG_TESTS)
    string(TOUPPER ${QUILLON_SYSTEM} system)
    quillon_test(${NAME}_test SOURCES ${ARG_TESTS} ${ARG_${system}_TESTS} ${test_arguments})
  endif()
  if(ARG_QT_TESTS)
    quillon_test(${NAME}_test QT SOURCES ${ARG_QT_TESTS} ${test_arguments})
  endif()
endfunction()

# quillon_test(NAME [QT] SOURCES ... LINKS ... DEFINITIONS ... PROGRAMS ...)
#
# A GoogleTest program; each of its tests becomes a ctest test. Its main is GoogleTest's own, or with QT that for tests
# with windows. PROGRAMS are targets that it starts. Does nothing if no tests are built.
function(quillon_test NAME)
  if(NOT QUILLON_TESTS)
    return()
  endif()
  cmake_parse_arguments(ARG "QT" "" "SOURCES;LINKS;DEFINITIONS;PROGRAMS" ${ARGN})

  add_executable(${NAME} ${ARG_SOURCES})
  target_link_libraries(${NAME} PRIVATE
    quillon_flags ${ARG_LINKS} quillon_test_system GTest::gmock $<IF:$<BOOL:${ARG_QT}>,quillon_qt_test_main,GTest::gtest_main>)
  target_compile_definitions(${NAME} PRIVATE
    QUILLON_GOLDEN_FOLDER="${PROJECT_SOURCE_DIR}/tests/golden" ${ARG_DEFINITIONS})
  # Compiling tests takes longer than running them. The tested code keeps its own level.
  target_compile_options(${NAME} PRIVATE -O0)
  set_target_properties(${NAME} PROPERTIES QUILLON_IS_TEST ON)
  if(TARGET quillon_test_headers)
    target_precompile_headers(${NAME} REUSE_FROM quillon_test_headers)
  endif()
  if(ARG_PROGRAMS)
    add_dependencies(${NAME} ${ARG_PROGRAMS})
  endif()
  if(QUILLON_SANITIZE OR CMAKE_CROSSCOMPILING)
    # Programs start slowly under a sanitizer and under Wine.
    add_test(NAME ${NAME} COMMAND ${NAME} --gtest_brief=1)
  else()
    gtest_discover_tests(${NAME} DISCOVERY_TIMEOUT 60 NO_PRETTY_VALUES)
  endif()
endfunction()
