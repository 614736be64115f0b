#include "tools/manual_page.h"

#include <cstddef>

#include "shell/version.h"

namespace quillon {
namespace {

// Plain text escaped for roff: "\" and "-", and a leading request character.
std::string Plain(std::string_view text) {
  std::string page;
  bool lineStart = true;
  for (const char c : text) {
    if (lineStart && (c == '.' || c == '\'')) page += "\\&";
    if (c == '\\') page += "\\e";
    if (c == '-') page += "\\-";
    if (c != '\\' && c != '-') page += c;
    lineStart = c == '\n';
  }
  return page;
}

std::string Bold(std::string_view text) {
  return "\\fB" + Plain(text) + "\\fR";
}

std::string Italic(std::string_view text) {
  return "\\fI" + Plain(text) + "\\fR";
}

std::string ValueOf(const OptionText& option) {
  if (option.Value.empty()) return {};
  return " " + Italic(option.Value) + (option.Many ? "..." : "");
}

std::string HeadOf(const OptionText& option) {
  if (option.LongName.empty()) return Italic(option.Value) + (option.Required ? "" : " (may be left out)");
  return Bold(option.Names) + ValueOf(option) + (option.Required ? " (required)" : "");
}

std::string OptionsOf(const CommandText& command) {
  std::string page;
  for (const OptionText& option : command.Options) {
    if (option.LongName != "--help") page += ".TP\n" + HeadOf(option) + "\n" + Plain(option.Description) + "\n";
  }
  return page;
}

std::string Without(std::string text, std::string_view part) {
  const std::size_t at = text.find(part);
  if (at != std::string::npos) text.erase(at, part.size());
  return text;
}

// Lists of formats and examples, whose lines are kept.
std::string FooterOf(const CommandText& command, std::string_view exitStatuses) {
  std::string footer = Without(command.Footer, exitStatuses);
  footer.erase(0, footer.find_first_not_of('\n'));
  return footer.empty() ? "" : ".PP\n.nf\n" + Plain(footer) + "\n.fi\n";
}

std::string SectionOf(const CommandText& command, std::string_view exitStatuses) {
  std::string page = ".SS " + Plain(command.Path) + "\n" + Plain(command.Description) + ".\n";
  if (!command.About.empty()) page += ".PP\n" + Plain(command.About) + "\n";
  return page + OptionsOf(command) + FooterOf(command, exitStatuses);
}

// The list has a line for each status, after a heading: "  0  the question was answered".
std::string StatusesOf(std::string_view exitStatuses) {
  std::string page;
  for (std::size_t at = exitStatuses.find("\n  "); at != std::string_view::npos;
       at = exitStatuses.find("\n  ", at + 1)) {
    const std::string_view line = exitStatuses.substr(at + 3, exitStatuses.find('\n', at + 1) - at - 3);
    page += ".TP\n" + Bold(line.substr(0, line.find(' '))) + "\n" +
            Plain(line.substr(line.find_first_not_of(' ', line.find(' ')))) + "\n";
  }
  return page;
}

constexpr std::string_view kEnvironment =
    ".TP\n\\fBXDG_DATA_HOME\\fR\n"
    "An installed Quillon keeps ranges in the folder Quillon of this one, by default in\n"
    ".IR \\(ti/.local/share/Quillon .\n"
    ".TP\n\\fBCOLORTERM\\fR, \\fBNO_COLOR\\fR\n"
    "With truecolor or 24bit in the first, and nothing in the second, a report on a terminal begins with the grid.\n";

}  // namespace

std::string ManualPage(const CommandText& root, std::string_view exitStatuses, const std::string& guide) {
  std::string page = R"(.TH QUILLON\-CLI 1 "" "Quillon )" + std::string(kVersionText) + "\" \"User Commands\"\n";
  page += ".SH NAME\nquillon\\-cli \\- " + Plain(root.Description) + "\n";
  page += ".SH SYNOPSIS\n.B quillon\\-cli\n" + Italic("COMMAND") + " [" + Italic("OPTION") + "...]\n";
  page += ".SH DESCRIPTION\nThe companion of\n.BR quillon (1),\nfor scripts and for machines without a display.\n";
  page += OptionsOf(root);
  page += ".SH COMMANDS\n";
  for (const CommandText* command : AllCommands(root)) {
    if (command != &root) page += SectionOf(*command, exitStatuses);
  }
  page += ".SH EXIT STATUS\n" + StatusesOf(exitStatuses);
  page.append(".SH ENVIRONMENT\n").append(kEnvironment);
  page += ".SH SEE ALSO\n.BR quillon (1)\n.PP\nThe user guide: file://" + Plain(guide) + "\n";
  return page;
}

}  // namespace quillon
