#pragma once

// A folder under the system's folder for temporary files, gone with all that is in it when the object goes.

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace quillon {

class TemporaryFolder {
 public:
  /// A new folder whose name starts with `name`.
  explicit TemporaryFolder(std::string_view name = "quillon-test") {
    std::string pattern = (std::filesystem::temp_directory_path() / name).string() + "-XXXXXX";
    if (::mkdtemp(pattern.data()) == nullptr) throw std::system_error(errno, std::generic_category(), pattern);
    path_ = pattern;
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
