# Debian's libraries, for Windows: header-only ones as they are, GoogleTest from its sources. The other headers of this
# system must not be found.
function(quillon_borrow_headers TARGET NAME)
  set(borrowed ${CMAKE_BINARY_DIR}/borrowed/${NAME})
  file(MAKE_DIRECTORY ${borrowed})
  file(CREATE_LINK /usr/include/${NAME} ${borrowed}/${NAME} SYMBOLIC)
  add_library(${TARGET} INTERFACE IMPORTED GLOBAL)
  target_include_directories(${TARGET} SYSTEM INTERFACE ${borrowed})
endfunction()

quillon_borrow_headers(nlohmann_json::nlohmann_json nlohmann)
quillon_borrow_headers(CLI11::CLI11 CLI)

if(QUILLON_TESTS)
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
  foreach(library gtest gtest_main gmock)
    target_compile_options(${library} PRIVATE -O0)
  endforeach()

  # Precompiled for all tests: half of their compile time is headers.
  file(WRITE ${CMAKE_BINARY_DIR}/test_headers.cpp "")
  add_library(quillon_test_headers OBJECT ${CMAKE_BINARY_DIR}/test_headers.cpp)
  target_link_libraries(quillon_test_headers PRIVATE quillon_flags GTest::gmock)
  target_compile_options(quillon_test_headers PRIVATE -O0)
  set_target_properties(quillon_test_headers PROPERTIES QUILLON_IS_TEST ON)
  target_precompile_headers(quillon_test_headers PRIVATE
    <filesystem> <fstream> <gmock/gmock.h> <gtest/gtest.h> <optional> <sstream> <string> <vector>)
endif()
