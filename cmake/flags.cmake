# The one target that carries compiler flags; whether a warning is an error is for the preset to say. Everything of ours links it; nothing sets flags of its own.
add_library(quillon_flags INTERFACE)

target_include_directories(quillon_flags INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(quillon_flags INTERFACE
  -Wall -Wextra -Wpedantic
  -Wconversion -Wsign-conversion -Wdouble-promotion -Wold-style-cast -Wcast-align
  -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wnull-dereference
  -Wformat=2 -Wimplicit-fallthrough -Wextra-semi -Wundef)
# GCC 12 sees overlapping copies inside std::string although there are none (GCC bug 105651).
target_compile_options(quillon_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_compile_definitions(quillon_flags INTERFACE
  $<$<NOT:$<CONFIG:Release>>:_GLIBCXX_ASSERTIONS>)

# Results must agree to the last digit wherever they are computed: no fused multiply-add, no reordering.
target_compile_options(quillon_flags INTERFACE -ffp-contract=off)

# What is shipped is hardened, and the same wherever it is built. Tests are not optimised, which FORTIFY needs.
set(hardened $<AND:$<CONFIG:Release>,$<NOT:$<BOOL:$<TARGET_PROPERTY:QUILLON_IS_TEST>>>>)
# Windows moves all code, and a large frame there touches its pages one by one as it is.
set(hardened_posix $<AND:${hardened},$<NOT:$<BOOL:${WIN32}>>>)
target_compile_options(quillon_flags INTERFACE
  $<${hardened}:-U_FORTIFY_SOURCE>
  $<${hardened}:-D_FORTIFY_SOURCE=3>
  $<${hardened_posix}:-fPIE>
  $<${hardened}:-fstack-protector-strong>
  $<${hardened_posix}:-fstack-clash-protection>
  $<${hardened}:-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=>)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|amd64)$")
  target_compile_options(quillon_flags INTERFACE $<${hardened_posix}:-fcf-protection=full>)
endif()
if(WIN32)
  # Windows 10 and later, with names in UTF-16, and without the macros that hide std::min and std::max.
  target_compile_definitions(quillon_flags INTERFACE
    _WIN32_WINNT=0x0A00 WINVER=0x0A00 NOMINMAX UNICODE _UNICODE)
  # What the stack protector calls is in a library; without the time of the build; and with stacks as large as on Linux,
  # for what is matched recursively (cmake/httplib.cmake).
  target_link_options(quillon_flags INTERFACE
    $<${hardened}:-fstack-protector-strong> LINKER:--no-insert-timestamp,--stack,8388608)
  # Programs without a window run alone; the window shares Qt's libraries and those of the compiler with them.
  if(NOT QUILLON_GUI)
    target_link_options(quillon_flags INTERFACE -static)
  endif()
else()
  target_link_options(quillon_flags INTERFACE
    $<${hardened}:-pie> $<${hardened}:LINKER:-z,relro,-z,now,-z,noexecstack>)
endif()

if(QUILLON_SANITIZE)
  target_compile_options(quillon_flags INTERFACE
    -fsanitize=${QUILLON_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(quillon_flags INTERFACE -fsanitize=${QUILLON_SANITIZE})
endif()

if(QUILLON_COVERAGE)
  # Clang counts what is in the source. GCC counts the branches of the machine code, of which most are exceptions
  # that the library might throw.
  target_compile_options(quillon_flags INTERFACE -fprofile-instr-generate -fcoverage-mapping)
  target_link_options(quillon_flags INTERFACE -fprofile-instr-generate)
endif()
