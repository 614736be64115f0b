#pragma once

// For tests: a program folder of their own with range files in it, and the range texts that they are filled with.

#include <array>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "hand/hand_classes.h"
#include "ranges/range_files.h"
#include "ranges/range_text.h"

namespace quillon {

/// A new folder under the system's folder for temporary files, with an empty "Ranges" in it. It goes with the object.
class RangeFolder {
 public:
  RangeFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "quillon-analysis-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no folder for temporary files");
    folder_.Path = pattern;
    std::filesystem::create_directory(RangeFolderPath(folder_));
  }
  RangeFolder(const RangeFolder&) = delete;
  RangeFolder& operator=(const RangeFolder&) = delete;
  RangeFolder(RangeFolder&&) = delete;
  RangeFolder& operator=(RangeFolder&&) = delete;
  ~RangeFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_.Path, ignored);
  }

  [[nodiscard]] const ProgramFolder& Folder() const { return folder_; }

  void Save(std::string_view name, std::string_view text) const { SaveRangeText(folder_, name, text); }
  void Remove(std::string_view name) const { std::filesystem::remove(RangeFilePath(folder_, name)); }

 private:
  ProgramFolder folder_;
};

/// A range text with these weights and all other classes at `others`.
[[nodiscard]] inline std::string RangeWith(std::initializer_list<std::pair<std::string_view, double>> weights,
                                           double others = 0) {
  std::array<double, kHandClassCount> all{};
  all.fill(others);
  for (const auto& [label, weight] : weights)
    all.at(static_cast<std::size_t>(HandIndex(label))) = weight;
  return RangeTextOf(all);
}

/// A range text with every class at one weight.
[[nodiscard]] inline std::string EveryHandAt(double weight) {
  return RangeWith({}, weight);
}

}  // namespace quillon
