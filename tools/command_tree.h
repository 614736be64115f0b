#pragma once

// What the companion can be asked for, read off its command line's own definitions, for texts that are made of it: the
// manual page and the completions of shells.

#include <string>
#include <vector>

namespace CLI {  // NOLINT(readability-identifier-naming): the library's own
class App;
}  // namespace CLI

namespace quillon {

/// An option with its value, or a value that has its place.
struct OptionText {
  std::string Names;  // "-h,--help"; of a value that has its place, its name
  std::string LongName;  // "--help"; empty of a value that has its place
  std::string Value;  // what its value is called, "NAME"; empty where it takes none
  std::vector<std::string> Choices;  // the values that it takes, where they are a few words
  std::string Description;
  bool Required = false;
  bool Many = false;  // takes more than one value
};

/// A command, or the whole at its root.
struct CommandText {
  std::string Path;  // "limits call"; empty at the root
  std::string Description;  // one line
  std::string About;  // what the line leaves out
  std::string Footer;  // what its help says after the options
  std::vector<OptionText> Options;
  std::vector<CommandText> Commands;

  /// The last word of the path.
  [[nodiscard]] std::string Name() const { return Path.substr(Path.rfind(' ') + 1); }
};

/// The command line as data, in the order of its help, without what its help does not show.
[[nodiscard]] CommandText CommandTree(const CLI::App& app);

/// The commands of a tree, the root first and each before its own.
[[nodiscard]] std::vector<const CommandText*> AllCommands(const CommandText& root);

}  // namespace quillon
