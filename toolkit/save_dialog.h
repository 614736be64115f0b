#pragma once

// Where to save a picture or a table: the program's own dialog for the name of a file. A name is taken as it was typed:
// no extension is added, quotes are part of it, and a file that is there is no reason to ask.

#include <QWidget>
#include <filesystem>
#include <string>
#include <string_view>

namespace quillon {

struct SaveQuestion {
  std::string_view Title;
  std::string_view Filter;  // what the dialog says, " | ", the file names that it lists
  std::string Folder;  // where it opens; exists
  std::string Offered{};  // a path within the folder, or empty: what the line holds at first
};

/// Asks, over the window of `parent`, and returns the path chosen, empty if the dialog is cancelled. A "~/" at the
/// start is the user's home, the name of a folder opens it, and a name that no file can have leaves the dialog open,
/// with a message where it is only this system that cannot store it.
/// Paths that are not UTF-8 are kept byte for byte.
[[nodiscard]] std::filesystem::path AskFileName(QWidget& parent, const SaveQuestion& question);

}  // namespace quillon
