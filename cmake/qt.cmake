# Qt, for the window's folders. Targets that do not link quillon_qt cannot include Qt headers.
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
if(QUILLON_TESTS)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
endif()

# For the system-specific sources.
add_library(quillon_window_system INTERFACE)
if(WIN32)
  target_link_libraries(quillon_window_system INTERFACE ole32 oleaut32)
else()
  find_package(Qt6 6.4 REQUIRED COMPONENTS DBus Svg)
  find_package(PkgConfig REQUIRED)
  pkg_check_modules(XCB REQUIRED IMPORTED_TARGET xcb)
  target_link_libraries(quillon_window_system INTERFACE
    Qt6::DBus # announcements to screen readers
    Qt6::Svg # the artwork as it is
    PkgConfig::XCB) # hands the clipboard over when the program ends
endif()

# Later formats contain file times, which would make builds irreproducible.
set(QUILLON_RESOURCE_OPTIONS --format-version 1)

add_library(quillon_qt INTERFACE)
target_link_libraries(quillon_qt INTERFACE Qt6::Widgets)
target_compile_definitions(quillon_qt INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_DISABLE_DEPRECATED_BEFORE=0x060400)
