#include "tools/companion.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstddef>
#include <memory>
#include <ostream>
#include <sstream>
#include <string_view>
#include <vector>

#include "shell/version.h"
#include "tools/command_tree.h"
#include "tools/commands.h"
#include "tools/manual_page.h"
#include "tools/shell_completion.h"

namespace quillon {
namespace {

constexpr const char* kHelpCommand = "help";

// A command with its part of the command line.
struct OfferedCommand {
  CLI::App* options;
  RunCommand run;
};

constexpr const char* kExitStatuses =
    "Exit status:\n"
    "  0  the question was answered\n"
    "  1  a run-time error, or an answer that lacks something; standard error says what\n"
    "  2  the command line makes no sense\n"
    "  3  the input was refused, or there is no such range\n";

// A list of commands has one line each; the rest of a description is for the command's own help.
class ManualFormatter : public CLI::Formatter {
 public:
  std::string make_subcommand(const CLI::App* command) const override {
    std::ostringstream line;
    const std::string description = command->get_description();
    CLI::detail::format_help(line, command->get_display_name(true), description.substr(0, description.find('\n')),
                             get_column_width());
    return line.str();
  }
};

// What the help of a command says after its options.
std::string Epilogue(const Command& command) {
  return std::string(kExitStatuses) + "\nExample:\n  quillon-cli " + command.Name + " " + command.Example;
}

// Adds the manual of a command, or of a part of it, after its line in the list.
void Explain(const Command& command, CLI::App& options) {
  options.description(options.get_description() + "\n\n" + command.About + "\n");
}

std::string CommandNames(std::string_view beforeLast) {
  std::string names;
  for (std::size_t i = 0; i < kCommands.size(); ++i)
    names.append(i == 0 ? "" : i + 1 == kCommands.size() ? beforeLast : ", ").append(kCommands[i].Name);
  return names;
}

bool IsCommand(const std::string& name) {
  return std::ranges::any_of(kCommands, [&](const Command& command) { return command.Name == name; });
}

// Rejects help on something that is not a command. The library reports an option after "help".
void CheckHelpOf(std::span<const std::string> arguments) {
  if (arguments.size() < 2 || arguments[0] != kHelpCommand || arguments[1].starts_with('-')) return;
  if (IsCommand(arguments[1]) || arguments[1] == kHelpCommand) return;
  throw CLI::ValidationError("There is no command \"" + arguments[1] + "\"; there are " + CommandNames(" and "));
}

// The arguments in reverse, as the library expects; "help call" as "call --help".
std::vector<std::string> Reversed(std::span<const std::string> arguments) {
  std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
  if (!reversed.empty() && reversed.back() == kHelpCommand) {
    reversed.pop_back();
    reversed.insert(reversed.begin(), "--help");
  }
  return reversed;
}

// A command for packagers: prints the manual page and the shell completions. The help does not list it.
RunCommand OfferTextsForPackages(const CLI::App& app, CLI::App& options) {
  constexpr const char* kManual = "man";
  struct Request {
    std::string text;
    std::string guide = "Guide/user-guide.html beside the program";
  };
  const auto request = std::make_shared<Request>();
  std::vector<std::string> texts = {kManual};
  for (const CompletionShell& shell : kCompletionShells)
    texts.emplace_back(shell.Name);
  options.group("");
  options.add_option("text", request->text)->required()->check(CLI::IsMember(texts));
  options.add_option("--guide", request->guide);
  return [&app, request](const Surroundings& surroundings) {
    const CommandText root = CommandTree(app);
    const auto* const shell = std::ranges::find(kCompletionShells, request->text, &CompletionShell::Name);
    surroundings.Output << (shell == kCompletionShells.end() ? ManualPage(root, kExitStatuses, request->guide)
                                                             : shell->Script(root));
    return kDone;
  };
}

int Run(const std::vector<OfferedCommand>& commands, const Surroundings& surroundings) {
  for (const OfferedCommand& command : commands) {
    if (command.options->parsed()) return command.run(surroundings);
  }
  throw CLI::ValidationError("Say what to do: " + CommandNames(" or "));
}

}  // namespace

int RunCompanion(std::span<const std::string> arguments, const Surroundings& surroundings) {
  CLI::App app("Call the all-in, or shove yourself? The answer for all 169 starting hands.", "quillon-cli");
  app.allow_windows_style_options(false);  // "/file" is a path everywhere
  app.require_subcommand(0, 1);
  app.formatter(std::make_shared<ManualFormatter>());
  app.set_version_flag("--version", std::string("quillon-cli ").append(kVersionText));
  std::vector<OfferedCommand> commands;
  for (const Command& command : kCommands) {
    CLI::App* const options = app.add_subcommand(command.Name, command.Description);
    options->footer(Epilogue(command));
    commands.push_back({options, command.Offer(*options)});
    Explain(command, *options);
    for (CLI::App* const part : options->get_subcommands({}))
      Explain(command, *part);
  }
  app.add_subcommand(kHelpCommand, "This text; the options of a command with its name after it");
  CLI::App* const texts = app.add_subcommand("generate");
  commands.push_back({texts, OfferTextsForPackages(app, *texts)});
  try {
    CheckHelpOf(arguments);
    app.parse(Reversed(arguments));
    return Run(commands, surroundings);
  } catch (const CLI::ParseError& error) {
    const int status = app.exit(error, surroundings.Output, surroundings.Errors);
    return status == 0 ? kDone : kWrongUsage;
  }
}

}  // namespace quillon
