#pragma once

// The program's version, that of the build's project. Versions are compared as the decimal numbers that their texts
// read as, so 0.10 would count as 0.1 and be older than 0.9: after 0.9 comes 0.91 or 1.0.

#include <string_view>

namespace quillon {

/// "0.9"
inline constexpr std::string_view kVersionText = QUILLON_VERSION;

}  // namespace quillon
