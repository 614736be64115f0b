#pragma once

// The folders that the program keeps its files in. They are made when the program starts, and made anew where one has
// gone since.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "support/files.h"

namespace quillon {

/// Whether a folder is there and can be listed. It is asked for with a separator at its end, added where there is none,
/// so a file of that name is not a folder, while a link to a folder is one and the empty path is the root. Whatever
/// goes wrong in asking counts as not being there.
[[nodiscard]] bool FolderExists(const std::filesystem::path& path, FileCalls& calls = SystemFileCalls());

/// Makes a folder in one that is there. RunTimeError, with the path and the reason, if it cannot be made: "Path not
/// found" where the outer folder is missing, "Path/File access error" where anything of that name is there already.
void MakeFolder(const std::filesystem::path& path, FileCalls& calls = SystemFileCalls());

/// Makes a folder if it is not there. Fails as MakeFolder does, so a folder that is there but may not be listed is a
/// failure too.
void MakeFolderIfMissing(const std::filesystem::path& path, FileCalls& calls = SystemFileCalls());

/// Whether anything of that name is there. A link to nowhere is a file too: it is listed, and it can be deleted.
[[nodiscard]] bool IsThere(const std::filesystem::path& file);

/// The names of all files in a folder as text (TextOfFileName), in no order; not those of folders in it nor of the
/// program's own scratch files. RunTimeError, with the folder and the reason, if it cannot be read: "Path not found"
/// where it is missing.
[[nodiscard]] std::vector<std::string> FileNamesIn(const std::filesystem::path& folder);

/// The file of a name, in UTF-8 as names on disk are: the folder, a separator, and the name as it is. Where no such
/// file is there but one whose name is not UTF-8 and is shown as this one (TextOfFileName), it is that file.
[[nodiscard]] std::filesystem::path FileOfName(const std::filesystem::path& folder, std::string_view name);

}  // namespace quillon
