#pragma once

// Direct access to files on disk, bypassing the routines under test.

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

namespace quillon {

/// The content of a file; empty if there is none.
[[nodiscard]] inline std::string BytesOf(const std::filesystem::path& path) {
  std::ostringstream content;
  content << std::ifstream(path, std::ios::binary).rdbuf();
  return content.str();
}

/// Creates or overwrites a file.
inline void Put(const std::filesystem::path& path, std::string_view bytes = {}) {
  std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace quillon
