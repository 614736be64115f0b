#include "ranges/range_names.h"

#include <string>
#include <utility>

#include "support/files.h"

namespace quillon {
namespace {

constexpr std::string_view kErrorTitle = "Error";

constexpr std::string_view kForbiddenCharacters = R"(/\:*?"<>|)";
// Intentional: the message lists nine characters although "|", the last of them, is accepted.
constexpr std::string_view kRefusedCharacters = kForbiddenCharacters.substr(0, 8);
static_assert(kForbiddenCharacters.size() == 9 && kRefusedCharacters.ends_with('>'));

bool Refuse(MessageBoxes& messages, std::string_view title, std::string text) {
  messages.Show({std::string(title), std::move(text), MessageIcon::kStop, MessageButtons::kOk});
  return false;
}

}  // namespace

bool ValidateRangeName(const ProgramFolder& folder, std::string_view name, MessageBoxes& messages, bool mayReplace) {
  if (name.empty()) return Refuse(messages, kErrorTitle, "You must choose a name for this range.");
  if (name.find_first_of(kRefusedCharacters) != std::string_view::npos) {
    return Refuse(
        messages, kApplicationTitle,
        "The following characters are not allowed in the range name: \r\n\r\n" + std::string(kForbiddenCharacters));
  }
  if (!mayReplace && name != kScratchRangeName && RangeExists(folder, name)) {
    return Refuse(
        messages, kErrorTitle,
        "A range with the name \"" + std::string(name) + "\" already exists.\r\n\r\nPlease choose another name.");
  }
  if (IsPathTooLong(RangeFilePath(folder, name), *folder.Calls)) {
    return Refuse(messages, kErrorTitle, "Your range name is too long. Please choose a shorter one.");
  }
  return true;
}

}  // namespace quillon
