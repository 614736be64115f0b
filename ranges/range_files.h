#pragma once

// Range files. Every named range is one small text file in the folder "Ranges" of the program's folder; the range
// "Button Shove" is the file "Button Shove.txt". Nothing is cached: the file is read each time it is needed. It holds
// the range text ("ranges/range_text.h") and one line end (CR LF), with no header and no name inside.

#include <filesystem>
#include <string>
#include <string_view>

#include "support/files.h"

namespace quillon {

/// The program's folder, with its ranges, and the calls for accessing it.
struct ProgramFolder {
  std::filesystem::path Path;
  FileCalls* Calls = &SystemFileCalls();
};

/// The folder of the range files: "Ranges" in the program's folder.
[[nodiscard]] std::filesystem::path RangeFolderPath(const ProgramFolder& folder);

/// The file of the range `name` in the range folder (FileOfName): the name plus ".txt". The empty name gives the file
/// ".txt". The file system decides which names are equal: if it is case-sensitive, "button" and "Button" are two
/// ranges, and a file "Button.TXT" is neither.
[[nodiscard]] std::filesystem::path RangeFilePath(const ProgramFolder& folder, std::string_view name);

/// The content of a range's file without its last line end. A file that is missing or cannot be read gives the empty
/// text, and so does a name with a NUL character, which no file can have.
[[nodiscard]] std::string LoadRangeText(const ProgramFolder& folder, std::string_view name);

/// Creates or replaces a range's file: the text and one line end. The range folder must exist. The text goes through a
/// scratch file in the program's folder, where no list of ranges shows it, and the old content stays whole until the
/// new one is on disk. RunTimeError, with the file and the reason, if any step fails, and "Bad file name or number" for
/// a name with a NUL character.
void SaveRangeText(const ProgramFolder& folder, std::string_view name, std::string_view text);

/// Deletes a range's file. RunTimeError, with the file and the reason, if that fails, also if it is missing.
void DeleteRange(const ProgramFolder& folder, std::string_view name);

/// Saves `text` as the range `newName`, as SaveRangeText does, and then deletes the range `oldName`, whatever its file
/// held. If both names mean the same file, it stays, with the new text.
///
/// RunTimeError, with the file and the reason, if any step fails. If the old file is missing, nothing is written;
/// otherwise the old range still exists, alongside the new one if only the deletion failed.
void RenameRange(const ProgramFolder& folder, std::string_view oldName, std::string_view newName,
                 std::string_view text);

/// Whether a range's file has content. An empty file, or one with only a line end, does not count.
[[nodiscard]] bool RangeExists(const ProgramFolder& folder, std::string_view name);

}  // namespace quillon
