#pragma once

// A range's file. Every named range is one small text file in the folder "Ranges" of the program's own folder; the
// range called "Button Shove" is the file "Button Shove.txt". The file is the range: nothing of it is kept in memory,
// and it is read anew each time it is needed. It holds the range text ("ranges/range_text.h") and one line end (CR LF),
// with no header and no name inside.

#include <filesystem>
#include <string>
#include <string_view>

#include "support/files.h"

namespace quillon {

/// The folder that the program and its ranges live in, and the calls by which files in it are reached.
struct ProgramFolder {
  std::filesystem::path Path;
  FileCalls* Calls = &SystemFileCalls();
};

/// The folder of the range files: "Ranges" in the program's folder.
[[nodiscard]] std::filesystem::path RangeFolderPath(const ProgramFolder& folder);

/// The name of a range's file, for messages: "Button" -> "Button.txt".
[[nodiscard]] std::string RangeFileName(std::string_view name);

/// The file of the range called `name` in the range folder (FileOfName): the name, ".txt". The empty name gives the
/// file ".txt". Names are told apart as the file system does it: where it heeds case, "button" and "Button" are two
/// ranges, and a file "Button.TXT" is neither of them.
[[nodiscard]] std::filesystem::path RangeFilePath(const ProgramFolder& folder, std::string_view name);

/// The content of a range's file without its line end; if there are several line ends, without the last. A file that is
/// missing or cannot be read gives the empty text, without a message, and so does a name that no file can have, one
/// with a NUL character.
[[nodiscard]] std::string LoadRangeText(const ProgramFolder& folder, std::string_view name);

/// Makes or replaces a range's file: the text and one line end. The range folder must be there. The text passes through
/// a scratch file in the program's folder, where no list of ranges shows it, and the old content stays whole until the
/// new one is on the disk. RunTimeError, with the file and the reason, if any step fails, and "Bad file name or number"
/// for a name with a NUL character.
void SaveRangeText(const ProgramFolder& folder, std::string_view name, std::string_view text);

/// Deletes a range's file. RunTimeError, with the file and the reason, if that fails, as it does where there is none.
void DeleteRange(const ProgramFolder& folder, std::string_view name);

/// Saves `text` as the range `newName`, as SaveRangeText does, and then deletes the range `oldName`; what its file held
/// does not matter. Two names of one file, or the same name twice, leave that file with the new text.
///
/// RunTimeError, with the file and the reason, if any step fails: before anything is written where the old file is
/// missing, and otherwise with the old range still there, beside the new one if only the deletion failed.
void RenameRange(const ProgramFolder& folder, std::string_view oldName, std::string_view newName,
                 std::string_view text);

/// Whether a range's file holds anything. An empty file, and one that holds a line end alone, counts as none.
[[nodiscard]] bool RangeExists(const ProgramFolder& folder, std::string_view name);

}  // namespace quillon
