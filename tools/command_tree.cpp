#include "tools/command_tree.h"

#include <CLI/CLI.hpp>
#include <cstddef>

namespace quillon {
namespace {

// The library joins a value's name and its choices: "F:{plain,csv}".
std::vector<std::string> ChoicesIn(const std::string& type) {
  const std::size_t open = type.find(":{");
  if (open == std::string::npos || !type.ends_with('}')) return {};
  return CLI::detail::split(type.substr(open + 2, type.size() - open - 3), ',');
}

OptionText TextOf(const CLI::Option& option) {
  const std::string type = option.get_type_size() == 0 ? "" : option.get_type_name();
  const bool hasPlace = option.get_positional();
  return {.Names = option.get_name(hasPlace),
          .LongName = hasPlace ? "" : option.get_name(),
          .Value = type.substr(0, type.find(':')),
          .Choices = ChoicesIn(type),
          .Description = option.get_description(),
          .Required = option.get_required(),
          .Many = option.get_items_expected_max() > 1};
}

CommandText TreeAt(const CLI::App& app, const std::string& path) {
  const std::string description = app.get_description();
  const std::size_t end = description.find('\n');
  CommandText text;
  text.Path = path;
  text.Description = description.substr(0, end);
  text.Footer = app.get_footer();
  const std::size_t about = description.find_first_not_of('\n', end);
  if (about != std::string::npos)
    text.About = description.substr(about, description.find_last_not_of('\n') + 1 - about);
  for (const CLI::Option* option : app.get_options([](const CLI::Option* one) { return !one->get_group().empty(); }))
    text.Options.push_back(TextOf(*option));
  for (const CLI::App* command : app.get_subcommands([](const CLI::App* one) { return !one->get_group().empty(); }))
    text.Commands.push_back(TreeAt(*command, path.empty() ? command->get_name() : path + " " + command->get_name()));
  return text;
}

void Gather(const CommandText& command, std::vector<const CommandText*>& all) {
  all.push_back(&command);
  for (const CommandText& inner : command.Commands)
    Gather(inner, all);
}

}  // namespace

CommandText CommandTree(const CLI::App& app) {
  return TreeAt(app, "");
}

std::vector<const CommandText*> AllCommands(const CommandText& root) {
  std::vector<const CommandText*> all;
  Gather(root, all);
  return all;
}

}  // namespace quillon
