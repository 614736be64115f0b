#include "ranges/range_names.h"

#include <string>
#include <utility>

#include "support/file_names.h"
#include "support/files.h"
#include "support/joined_text.h"

namespace quillon {
namespace {

constexpr std::string_view kForbiddenCharacters = R"(/\:*?"<>|)";
// Intentional: the message lists nine characters although "|", the last of them, is accepted.
constexpr std::string_view kRefusedCharacters = kForbiddenCharacters.substr(0, 8);
static_assert(kForbiddenCharacters.size() == 9 && kRefusedCharacters.ends_with('>'));

Message Refusal(std::string_view title, std::string text) {
  return {std::string(title), std::move(text), MessageIcon::kStop};
}

std::optional<Message> ExistenceComplaint(const ProgramFolder& folder, std::string_view name) {
  if (name == kScratchRangeName || !RangeExists(folder, name)) return std::nullopt;
  return Refusal(kErrorTitle,
                 Joined({"A range with the name \"", name, "\" already exists.\r\n\r\nPlease choose another name."}));
}

}  // namespace

std::optional<Message> NameComplaint(std::string_view thing, std::string_view name) {
  if (name.empty()) return Refusal(kErrorTitle, Joined({"You must choose a name for this ", thing, "."}));
  if (name.find_first_of(kRefusedCharacters) == std::string_view::npos) return std::nullopt;
  return Refusal(kApplicationTitle, Joined({"The following characters are not allowed in the ", thing,
                                            " name: \r\n\r\n", kForbiddenCharacters}));
}

std::optional<Message> SystemComplaint(std::string_view thing, const ProgramFolder& folder, std::string_view name,
                                       const std::filesystem::path& file) {
  if (IsPathTooLong(file, *folder.Calls))
    return Refusal(kErrorTitle, Joined({"Your ", thing, " name is too long. Please choose a shorter one."}));
  const std::string_view fault = NameFault(name);
  if (fault.empty()) return std::nullopt;
  return Refusal(kErrorTitle, Joined({"Your ", thing, " name ", fault, ". Please choose another one."}));
}

bool ValidateRangeName(const ProgramFolder& folder, std::string_view name, MessageBoxes& messages, bool mayReplace) {
  constexpr std::string_view kRange = "range";
  std::optional<Message> complaint = NameComplaint(kRange, name);
  if (!complaint && !mayReplace) complaint = ExistenceComplaint(folder, name);
  if (!complaint) complaint = SystemComplaint(kRange, folder, name, RangeFilePath(folder, name));
  if (complaint) messages.Show(*complaint);
  return !complaint;
}

bool ValidateNewName(const ProgramFolder& folder, std::string_view oldName, std::string_view newName,
                     MessageBoxes& messages) {
  return ValidateRangeName(folder, newName, messages, newName != oldName && IsSameName(newName, oldName));
}

}  // namespace quillon
