#pragma once

// The folders that the program keeps its files in, created when it starts, and again whenever one is missing.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "support/files.h"

namespace quillon {

/// Whether a folder exists and can be listed. A separator is appended if missing, so a file of that name does not
/// count, a link to a folder does, and the empty path is the root. Any error counts as no.
[[nodiscard]] bool FolderExists(const std::filesystem::path& path, FileCalls& calls = SystemFileCalls());

/// Creates a folder in an existing one. RunTimeError, with the path and the reason, if it cannot be created: "Path not
/// found" if the outer folder is missing, "Path/File access error" if the name is taken.
void MakeFolder(const std::filesystem::path& path, FileCalls& calls = SystemFileCalls());

/// Creates a folder if it does not exist. Fails as MakeFolder does, also if the folder exists but cannot be listed.
void MakeFolderIfMissing(const std::filesystem::path& path, FileCalls& calls = SystemFileCalls());

/// Whether the name exists. A dangling link counts: it is listed, and it can be deleted.
[[nodiscard]] bool IsThere(const std::filesystem::path& file);

/// The names of all files in a folder as text (TextOfFileName), in no order; without folders and scratch files.
/// RunTimeError, with the folder and the reason, if it cannot be read: "Path not found" if it is missing.
[[nodiscard]] std::vector<std::string> FileNamesIn(const std::filesystem::path& folder);

/// The path of a file in a folder, by its UTF-8 name. If there is no such file but one whose name is not UTF-8 and is
/// shown as this name (TextOfFileName), then the path of that one.
[[nodiscard]] std::filesystem::path FileOfName(const std::filesystem::path& folder, std::string_view name);

}  // namespace quillon
