#pragma once

// The program's version. Versions are compared as the decimal numbers that their texts read as, so 0.10 would count as
// 0.1 and be older than 0.9: after 0.9 comes 0.91 or 1.0.

#include <string>

namespace quillon {

inline constexpr int kMajorVersion = 0;
inline constexpr int kMinorVersion = 9;

/// "0.9"
[[nodiscard]] inline std::string VersionText() {
  return std::to_string(kMajorVersion) + "." + std::to_string(kMinorVersion);
}

}  // namespace quillon
