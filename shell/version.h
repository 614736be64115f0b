#pragma once

// The program's version, from the build. Versions are compared as decimal numbers, so 0.10 would count as 0.1 and be
// older than 0.9: after 0.9 comes 0.91 or 1.0.

#include <string_view>

namespace quillon {

/// Such as "0.9".
inline constexpr std::string_view kVersionText = QUILLON_VERSION;

}  // namespace quillon
