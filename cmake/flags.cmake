# The only target with compiler flags; everything of ours links it. The preset decides whether warnings are errors.
add_library(quillon_flags INTERFACE)

target_include_directories(quillon_flags INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(quillon_flags INTERFACE
  -Wall -Wextra -Wpedantic
  -Wconversion -Wsign-conversion -Wdouble-promotion -Wold-style-cast -Wcast-align
  -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wnull-dereference
  -Wformat=2 -Wimplicit-fallthrough -Wextra-semi -Wundef)
# GCC 12 falsely reports overlapping copies inside std::string (GCC bug 105651).
target_compile_options(quillon_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_compile_definitions(quillon_flags INTERFACE
  $<$<NOT:$<CONFIG:Release>>:_GLIBCXX_ASSERTIONS>)

# Results must agree to the last digit on every machine: no fused multiply-add, no reordering.
target_compile_options(quillon_flags INTERFACE -ffp-contract=off)

# Release builds are hardened and reproducible. Tests are not optimised, as FORTIFY would need.
set(hardened $<AND:$<CONFIG:Release>,$<NOT:$<BOOL:$<TARGET_PROPERTY:QUILLON_IS_TEST>>>>)
# On Windows code is always relocatable, and large stack frames are always probed.
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
  # The stack protector's library; no build time; and stacks as large as on Linux, for recursive matching
  # (cmake/httplib.cmake).
  target_link_options(quillon_flags INTERFACE
    $<${hardened}:-fstack-protector-strong> LINKER:--no-insert-timestamp,--stack,8388608)
  # Programs without a window are static; the window uses Qt's shared libraries and the compiler's.
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
  # Clang counts source branches. GCC counts those of the machine code, most of which are possible exceptions.
  target_compile_options(quillon_flags INTERFACE -fprofile-instr-generate -fcoverage-mapping)
  target_link_options(quillon_flags INTERFACE -fprofile-instr-generate)
endif()
