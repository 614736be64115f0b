#include "tools/terminal.h"

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

namespace quillon {
namespace {

struct Case {
  const char* rule;
  bool output;
  bool errors;
  std::map<std::string, std::string> variables;
  bool progress;
  bool colors;
  bool allHaveColors = false;
};

TEST(Terminal, GetsWhatSuitsIt) {
  const std::vector<Case> cases = {
      {"a terminal with 24-bit colour", true, true, {{"TERM", "xterm"}, {"COLORTERM", "truecolor"}}, true, true},
      {"the other name of 24-bit colour", true, true, {{"COLORTERM", "24bit"}}, true, true},
      {"a terminal that promises no colour", true, true, {{"TERM", "xterm-256color"}}, true, false},
      {"a promise of something else", true, true, {{"COLORTERM", "yes"}}, true, false},
      {"no colour wanted", true, true, {{"COLORTERM", "truecolor"}, {"NO_COLOR", "1"}}, true, false},
      {"no colour wanted, in any words", true, true, {{"COLORTERM", "truecolor"}, {"NO_COLOR", "0"}}, true, false},
      {"an empty NO_COLOR says nothing", true, true, {{"COLORTERM", "truecolor"}, {"NO_COLOR", ""}}, true, true},
      {"a dumb terminal", true, true, {{"TERM", "dumb"}, {"COLORTERM", "truecolor"}}, false, false},
      {"standard output to a file", false, true, {{"COLORTERM", "truecolor"}}, true, false},
      {"standard error to a file", true, false, {{"COLORTERM", "truecolor"}}, false, true},
      {"no terminal at all", false, false, {{"COLORTERM", "truecolor"}}, false, false},
      {"one of many that all have colour", true, true, {}, true, true, true},
      {"no colour wanted of such", true, true, {{"NO_COLOR", "1"}}, true, false, true},
      {"a file beside such", false, false, {}, false, false, true},
  };
  for (const Case& c : cases) {
    const auto variable = [&c](const char* name) {
      const auto found = c.variables.find(name);
      return found == c.variables.end() ? std::string() : found->second;
    };
    const Terminal terminal = TerminalOf(c.output, c.errors, c.allHaveColors, variable);
    EXPECT_EQ(terminal.ShowProgress, c.progress) << c.rule;
    EXPECT_EQ(terminal.ShowColors, c.colors) << c.rule;
  }
}

}  // namespace
}  // namespace quillon
