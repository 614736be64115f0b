# cpp-httplib, for the web client; "third_party/httplib/README.md" says why it is here.
add_library(quillon_httplib INTERFACE)
target_include_directories(quillon_httplib SYSTEM INTERFACE ${PROJECT_SOURCE_DIR}/third_party/httplib)
target_link_libraries(quillon_httplib INTERFACE Threads::Threads)
target_compile_definitions(quillon_httplib INTERFACE
  CPPHTTPLIB_MAX_LINE_LENGTH=8192) # a status line is matched recursively, character by character
if(WIN32)
  target_link_libraries(quillon_httplib INTERFACE ws2_32 crypt32)
else()
  # A lost host is a failed request, not the end of the program.
  target_compile_definitions(quillon_httplib INTERFACE CPPHTTPLIB_SEND_FLAGS=MSG_NOSIGNAL)
endif()
