#pragma once

// Files as a test finds them on the disk, past the routines that it tests.

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

namespace quillon {

/// The content of a file, empty if there is none.
[[nodiscard]] inline std::string BytesOf(const std::filesystem::path& path) {
  std::ostringstream content;
  content << std::ifstream(path, std::ios::binary).rdbuf();
  return content.str();
}

/// Makes or overwrites a file.
inline void Put(const std::filesystem::path& path, std::string_view bytes = {}) {
  std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace quillon
