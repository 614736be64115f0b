#pragma once

// What a folder holds, so that a test can say that nothing in it has changed.

#include <filesystem>
#include <map>
#include <string>

#include "testing/file_bytes.h"

namespace quillon {

/// Every file and folder below the folder, by path, with the time of its last change and, of a file, its bytes.
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
