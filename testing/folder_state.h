#pragma once

// The contents of a folder, so that a test can check that nothing has changed.

#include <filesystem>
#include <map>
#include <string>

#include "testing/file_bytes.h"

namespace quillon {

/// Every file and folder below it, by path, with its modification time and, for a file, its bytes.
[[nodiscard]] inline std::map<std::string, std::string> FolderState(const std::filesystem::path& folder) {
  std::map<std::string, std::string> state;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    std::string& text = state[entry.path().string()];
    text = std::to_string(entry.last_write_time().time_since_epoch().count()) + ' ';
    if (entry.is_regular_file()) text += BytesOf(entry.path());
  }
  return state;
}

}  // namespace quillon
