#pragma once

// A folder under the system's temporary folder, deleted with the object.

#include <filesystem>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

#include "support/files.h"

namespace quillon {

class TemporaryFolder {
 public:
  /// A new folder whose name starts with `name`.
  explicit TemporaryFolder(std::string_view name = "quillon-test") {
    const std::filesystem::path start = std::filesystem::temp_directory_path() / PathOf(name);
    std::random_device random;
    do {
      path_ = start;
      path_ += "-" + std::to_string(random());
    } while (!std::filesystem::create_directory(path_));
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder(TemporaryFolder&&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(TemporaryFolder&&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace quillon
