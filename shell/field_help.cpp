#include "shell/field_help.h"

#include <algorithm>

namespace quillon {

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
