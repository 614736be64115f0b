#pragma once

// The lists from which the user chooses a range: four combo boxes of the main window, which start with an empty entry
// for "no range", and the list of the Range Manager, which does not. The folder of range files is the only list of
// ranges there is, and these are filled from it anew whenever they are shown.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ranges/range_files.h"

namespace quillon {

/// What a list or combo box shows. Entries count from 0.
struct RangeListContents {
  std::vector<std::string> Entries;
  std::optional<int> Selected;  // nothing where there are no entries

  bool operator==(const RangeListContents&) const = default;
};

/// How a list of ranges begins.
enum class ListStart : std::uint8_t { kBlankEntry, kFirstRange };

/// The names of all files in the range folder (FileNamesIn), whatever their extension. They are sorted by what they are
/// listed under, without regard to the case of letters of any script (WithoutCase); those that are then equal are in
/// byte order. Fails as FileNamesIn does.
[[nodiscard]] std::vector<std::string> RangeFolderEntries(const ProgramFolder& folder);

/// The name that a file is listed under: its own less the last four characters, the length of ".txt". A character is
/// one of UTF-8's, however many bytes it has.
///
///     "Button Shove.txt" -> "Button Shove"      "notes.html" -> "notes."      ".txt" -> ""
///
/// RunTimeError "Invalid procedure call or argument", with the file's name, if it has fewer than four characters.
[[nodiscard]] std::string RangeNameOfFile(std::string_view fileName);

/// The file of a listed name, for messages: "Button" -> "Button.txt", or, where there is none, the first file that
/// is listed under the name, such as "Button.TXT". A folder that cannot be read is taken for an empty one.
[[nodiscard]] std::string ListedFileName(const ProgramFolder& folder, std::string_view name);

/// The index of the first entry equal to `name`; nothing if there is none.
[[nodiscard]] std::optional<int> EntryIndex(std::span<const std::string> entries, std::string_view name);

/// What a list shows that is filled from the folder anew: the empty entry where it starts with one, then the range of
/// each file. Selected is the first entry equal to `wanted`, the entry that the list showed before; if there is no such
/// entry, the first one of all. RunTimeError as for RangeFolderEntries and RangeNameOfFile.
[[nodiscard]] RangeListContents FillRangeList(const ProgramFolder& folder, ListStart start, std::string_view wanted);

}  // namespace quillon
