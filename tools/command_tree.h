#pragma once

// The companion's command line as data, taken from its definitions, for its manual page and shell completions.

#include <string>
#include <vector>

namespace CLI {  // NOLINT(readability-identifier-naming): the library's own
class App;
}  // namespace CLI

namespace quillon {

/// An option with its value, or a positional value.
struct OptionText {
  std::string Names;  // "-h,--help"; for a positional value, its name
  std::string LongName;  // "--help"; empty for a positional value
  std::string Value;  // the name of its value, "NAME"; may be empty
  std::vector<std::string> Choices;  // the values that it takes, if they are a few words
  std::string Description;
  bool Required = false;
  bool Many = false;  // takes more than one value
};

/// A command, or the root.
struct CommandText {
  std::string Path;  // "limits call"; empty at the root
  std::string Description;  // one line
  std::string About;  // the details
  std::string Footer;  // what its help says after the options
  std::vector<OptionText> Options;
  std::vector<CommandText> Commands;

  /// The last word of the path.
  [[nodiscard]] std::string Name() const { return Path.substr(Path.rfind(' ') + 1); }
};

/// The command line as data, in the order of its help, without hidden parts.
[[nodiscard]] CommandText CommandTree(const CLI::App& app);

/// The commands of a tree, in pre-order from the root.
[[nodiscard]] std::vector<const CommandText*> AllCommands(const CommandText& root);

}  // namespace quillon
