#pragma once

// What the tests of ranges share: a program folder that lasts as long as a test, range texts from lists of labels, the
// messages of both dialogs, and the fault of a call that fails.

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <system_error>

#include "hand/hand_classes.h"
#include "ranges/range_files.h"
#include "support/message_boxes.h"
#include "support/run_time_error.h"

namespace quillon {

/// A program's folder with an empty range folder in it, gone with all it holds at the end.
class TemporaryProgram {
 public:
  TemporaryProgram() {
    std::string pattern = (std::filesystem::temp_directory_path() / "quillon-ranges-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) {
      throw std::filesystem::filesystem_error("mkdtemp", pattern, std::error_code(errno, std::generic_category()));
    }
    folder_.Path = pattern;
    std::filesystem::create_directory(RangeFolderPath(folder_));
  }
  TemporaryProgram(const TemporaryProgram&) = delete;
  TemporaryProgram(TemporaryProgram&&) = delete;
  TemporaryProgram& operator=(const TemporaryProgram&) = delete;
  TemporaryProgram& operator=(TemporaryProgram&&) = delete;
  ~TemporaryProgram() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_.Path, ignored);
  }

  [[nodiscard]] const ProgramFolder& Folder() const { return folder_; }
  [[nodiscard]] std::filesystem::path RangeFile(std::string_view fileName) const {
    return RangeFolderPath(folder_) / fileName;
  }

  /// Puts a file into the range folder, byte for byte.
  void Write(std::string_view fileName, std::string_view bytes = {}) const {
    std::ofstream(RangeFile(fileName), std::ios::binary) << bytes;
  }

  /// The bytes of a file in the range folder.
  [[nodiscard]] std::string Read(std::string_view fileName) const {
    std::ostringstream bytes;
    bytes << std::ifstream(RangeFile(fileName), std::ios::binary).rdbuf();
    return bytes.str();
  }

 private:
  ProgramFolder folder_;
};

/// Whether `label` is one of the words of `labels`.
inline bool HasLabel(const std::string& labels, std::string_view label) {
  std::istringstream words(labels);
  for (std::string word; words >> word;) {
    if (word == label) return true;
  }
  return false;
}

/// The range text of two lists of labels with blanks between: those at 1 and those at 0.5.
inline std::string TextWith(const std::string& full, const std::string& half = {}) {
  std::string text;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const std::string label(HandLabel(index));
    const std::string weight = HasLabel(full, label) ? "1" : HasLabel(half, label) ? "0.5" : "0";
    text.append(label).append(" (").append(weight).append("), ");
  }
  return text;
}

/// All 169 labels with blanks between.
inline std::string AllLabels() {
  std::string labels;
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    labels.append(HandLabel(index)).append(" ");
  return labels;
}

/// What the dialogs tell of a range, and ask.
inline Message Saved(const std::string& name) {
  return {"Quillon", "The range \"" + name + "\" was saved successfully!", MessageIcon::kInformation,
          MessageButtons::kOk};
}
inline Message NoName() {
  return {"Error", "You must choose a name for this range.", MessageIcon::kStop, MessageButtons::kOk};
}
inline Message Exists(const std::string& name) {
  return {"Error", "A range with the name \"" + name + "\" already exists.\r\n\r\nPlease choose another name.",
          MessageIcon::kStop, MessageButtons::kOk};
}
inline Message AskToDelete(const std::string& name) {
  return {"Delete?", "Do you really want to delete \"" + name + "\"?", MessageIcon::kQuestion,
          MessageButtons::kYesNoCancel};
}
inline Message AskToSave(const std::string& name) {
  return {"Save Range?",
          "The range \"" + name + "\" has changed since you last saved it.\r\n\r\nDo you want to save the range now?",
          MessageIcon::kQuestion, MessageButtons::kYesNoCancel};
}

/// The fault that `call` fails with, nothing if it does not fail.
template <typename Call>
std::optional<RunTimeFault> FaultOf(Call call) {
  try {
    static_cast<void>(call());
  } catch (const RunTimeError& error) {
    return error.Fault();
  }
  return std::nullopt;
}

}  // namespace quillon
