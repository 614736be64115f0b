#pragma once

// A program's folder with an empty range folder, deleted with the object.

#include <filesystem>
#include <string>
#include <string_view>

#include "ranges/range_files.h"
#include "testing/file_bytes.h"
#include "testing/temporary_folder.h"

namespace quillon {

class TemporaryProgram {
 public:
  TemporaryProgram() { std::filesystem::create_directory(RangeFolderPath(folder_)); }

  [[nodiscard]] const ProgramFolder& Folder() const { return folder_; }
  [[nodiscard]] std::filesystem::path RangeFile(std::string_view fileName) const {
    return RangeFolderPath(folder_) / PathOf(fileName);
  }

  /// Writes a file into the range folder, byte for byte.
  void Write(std::string_view fileName, std::string_view bytes = {}) const { Put(RangeFile(fileName), bytes); }

  /// The bytes of a file in the range folder.
  [[nodiscard]] std::string Read(std::string_view fileName) const { return BytesOf(RangeFile(fileName)); }

  /// Saves a range as the program does, and deletes it.
  void Save(std::string_view name, std::string_view text) const { SaveRangeText(folder_, name, text); }
  void Remove(std::string_view name) const { std::filesystem::remove(RangeFilePath(folder_, name)); }

 private:
  TemporaryFolder temporary_;
  ProgramFolder folder_{temporary_.Path()};
};

}  // namespace quillon
