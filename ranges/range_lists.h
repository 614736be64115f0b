#pragma once

// The lists of ranges: four combo boxes of the main window, which start with an empty entry for "no range", and the
// list of the Range Manager, which does not. The range folder is the only source, read again whenever a list is shown.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ranges/range_files.h"

namespace quillon {

/// The contents of a list or combo box. Entries count from 0.
struct RangeListContents {
  std::vector<std::string> Entries;
  std::optional<int> Selected;  // nothing if there are no entries

  bool operator==(const RangeListContents&) const = default;
};

/// How a list of ranges begins.
enum class ListStart : std::uint8_t { kBlankEntry, kFirstRange };

/// The names of all files in the range folder (FileNamesIn), whatever their extension, sorted by listed name ignoring
/// the case of letters of any script (WithoutCase); equal ones in byte order. Fails as FileNamesIn does.
[[nodiscard]] std::vector<std::string> RangeFolderEntries(const ProgramFolder& folder);

/// The listed name of a file: without its last four characters, the length of ".txt". Counts UTF-8 characters.
///
///     "Button Shove.txt" -> "Button Shove"      "notes.html" -> "notes."      ".txt" -> ""
///
/// RunTimeError "Invalid procedure call or argument", with the file's name, if it has fewer than four characters.
[[nodiscard]] std::string RangeNameOfFile(std::string_view fileName);

/// The file of a listed name, for messages: "Button" -> "Button.txt" or, if that does not exist, the first file listed
/// under the name, such as "Button.TXT". An unreadable folder counts as empty.
[[nodiscard]] std::string ListedFileName(const ProgramFolder& folder, std::string_view name);

/// The index of the first entry equal to `name`; nothing if there is none.
[[nodiscard]] std::optional<int> EntryIndex(std::span<const std::string> entries, std::string_view name);

/// The contents of a list refilled from the folder: the empty entry if it starts with one, then every range. Selected
/// is the first entry equal to `wanted`, the previous selection, or else the first entry of all. RunTimeError as for
/// RangeFolderEntries and RangeNameOfFile.
[[nodiscard]] RangeListContents FillRangeList(const ProgramFolder& folder, ListStart start, std::string_view wanted);

}  // namespace quillon
