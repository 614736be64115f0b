#pragma once

// The program's own dialog for saving a picture or a table. The name is taken as typed: no extension is added, quotes
// are part of it, and existing files are replaced without asking.

#include <QWidget>
#include <filesystem>
#include <string>
#include <string_view>

namespace quillon {

struct SaveQuestion {
  std::string_view Title;
  std::string_view Filter;  // a caption, " | ", the file names that it lists
  std::string Folder;  // the initial folder, which exists
  std::string Offered{};  // the proposed path within the folder; may be empty
};

/// Shows the dialog over the window of `parent` and returns the chosen path; empty if cancelled. A leading "~/" is the
/// user's home, and the name of a folder opens it. An invalid name keeps the dialog open, with a message if only this
/// system cannot store it. Paths that are not UTF-8 are kept byte for byte.
[[nodiscard]] std::filesystem::path AskFileName(QWidget& parent, const SaveQuestion& question);

}  // namespace quillon
