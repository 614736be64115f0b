#include "tools/companion.h"

#include <CLI/CLI.hpp>
#include <array>
#include <cstddef>
#include <ostream>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "shell/version.h"
#include "tools/commands.h"

namespace quillon {
namespace {

constexpr const char* kHelpCommand = "help";

// A command with its part of the command line.
struct OfferedCommand {
  CLI::App* options;
  RunCommand run;
};

std::string CommandNames() {
  std::string names;
  for (std::size_t i = 0; i < kCommands.size(); ++i)
    names.append(i == 0 ? "" : i + 1 == kCommands.size() ? " or " : ", ").append(kCommands[i].Name);
  return names;
}

// The arguments in reverse, as the library takes them; "help call" as "call --help".
std::vector<std::string> Reversed(std::span<const std::string> arguments) {
  std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
  if (!reversed.empty() && reversed.back() == kHelpCommand) {
    reversed.pop_back();
    reversed.insert(reversed.begin(), "--help");
  }
  return reversed;
}

int Run(const std::vector<OfferedCommand>& commands, const Surroundings& surroundings) {
  for (const OfferedCommand& command : commands) {
    if (command.options->parsed()) return command.run(surroundings);
  }
  throw CLI::ValidationError("Say what to do: " + CommandNames());
}

}  // namespace

int RunCompanion(std::span<const std::string> arguments, const Surroundings& surroundings) {
  CLI::App app("Call the all-in, or shove yourself? The answer for all 169 starting hands.", "quillon-cli");
  app.require_subcommand(0, 1);
  app.set_version_flag("--version", "quillon-cli " + VersionText());
  std::vector<OfferedCommand> commands;
  for (const Command& command : kCommands) {
    CLI::App* const options = app.add_subcommand(command.Name, command.Description);
    commands.push_back({options, command.Offer(*options)});
  }
  app.add_subcommand(kHelpCommand, "This text; the options of a command with its name after it");
  try {
    app.parse(Reversed(arguments));
    return Run(commands, surroundings);
  } catch (const CLI::ParseError& error) {
    const int status = app.exit(error, surroundings.Output, surroundings.Errors);
    return status == 0 ? kDone : kWrongUsage;
  }
}

}  // namespace quillon
