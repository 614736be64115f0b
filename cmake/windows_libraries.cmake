# What Debian has for itself only, made for Windows: the libraries of headers alone as they are, GoogleTest from its
# sources. The headers of this machine's own system must not be found along with them.
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

  # Read once for all tests: they are compiled for every change here as well as at home, and half of that is headers.
  file(WRITE ${CMAKE_BINARY_DIR}/test_headers.cpp "")
  add_library(quillon_test_headers OBJECT ${CMAKE_BINARY_DIR}/test_headers.cpp)
  target_link_libraries(quillon_test_headers PRIVATE quillon_flags GTest::gmock)
  target_compile_options(quillon_test_headers PRIVATE -O0)
  set_target_properties(quillon_test_headers PROPERTIES QUILLON_IS_TEST ON)
  target_precompile_headers(quillon_test_headers PRIVATE
    <filesystem> <fstream> <gmock/gmock.h> <gtest/gtest.h> <optional> <sstream> <string> <vector>)
endif()
