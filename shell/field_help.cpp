#include "shell/field_help.h"

#include <algorithm>
#include <cstddef>

#include "analysis/scenarios.h"

namespace quillon {
namespace {

// One for each amount and range of the scenarios that ask for amounts.
constexpr std::size_t HelpedFields() {
  std::size_t count = 0;
  for (const Scenario& scenario : kScenarios) {
    if (scenario.AmountCount > 0) count += scenario.AmountCount + (scenario.HasCallingRange ? 2 : 1);
  }
  return count;
}
static_assert(kFieldHelp.size() == HelpedFields());

}  // namespace

std::string FieldHelpText(std::string_view key) {
  const auto* const help = std::ranges::find(kFieldHelp, key, &FieldHelp::Key);
  if (help == kFieldHelp.end()) return {};
  std::string text(help->First);
  if (!help->Second.empty()) text.append("\r\n\r\n").append(help->Second);
  return text;
}

void ShowFieldHelp(std::string_view key, MessageBoxes& messages) {
  messages.Show({std::string(key), FieldHelpText(key), MessageIcon::kInformation});
}

}  // namespace quillon
