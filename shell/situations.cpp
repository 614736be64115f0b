#include "shell/situations.h"

#include <algorithm>
#include <utility>

#include "ranges/range_lists.h"
#include "ranges/range_lookup.h"
#include "ranges/range_messages.h"
#include "ranges/range_names.h"
#include "support/files.h"
#include "support/folders.h"
#include "support/joined_text.h"
#include "support/letter_case.h"
#include "support/windows_1252.h"

namespace quillon {
namespace {

constexpr std::string_view kThing = "situation";
constexpr std::string_view kExtension = ".json";
constexpr std::string_view kNamePrompt = "What do you want to call this situation?";
constexpr std::string_view kNameTitle = "Save Situation";

Message Refusal(std::string text) {
  return {std::string(kErrorTitle), std::move(text), MessageIcon::kStop};
}

Message ReplaceQuestion(std::string_view name) {
  return {"Replace?",
          Joined({"A situation with the name \"", name, "\" already exists.\r\n\r\nDo you want to replace it?"}),
          MessageIcon::kQuestion, MessageButtons::kYesNo};
}

// A range that does not exist is not chosen, and a remark says so.
void DropUnknownRanges(ReadSituation& read, const ProgramFolder& folder) {
  const std::vector<std::string> known = FillRangeList(folder, ListStart::kBlankEntry, {}).Entries;
  EnteredSituation& entered = read.Situation.Entered;
  for (std::string* name : {&entered.Range, &entered.CallingRange}) {
    if (EntryIndex(known, *name)) continue;
    read.NotTaken.push_back(WhyUnknown(*name, folder).value_or(Joined({"No list has a range \"", *name, "\"."})));
    name->clear();
  }
}

std::optional<Message> RemarksOn(std::string_view name, const std::vector<std::string>& notTaken) {
  if (notTaken.empty()) return std::nullopt;
  std::string text = Joined({"The situation \"", name, "\" is open. Some of the file cannot be used:\r\n"});
  for (const std::string& remark : notTaken)
    text += Joined({"\r\n- ", remark});
  return Message{.text = std::move(text), .icon = MessageIcon::kExclamation};
}

}  // namespace

std::filesystem::path SituationFolderPath(const ProgramFolder& folder) {
  return folder.Path / "Situations";
}

std::filesystem::path SituationFilePath(const ProgramFolder& folder, std::string_view name) {
  return FileOfName(SituationFolderPath(folder), Joined({name, kExtension}));
}

std::vector<std::string> SituationNames(const ProgramFolder& folder) {
  std::vector<std::string> names;
  if (!IsThere(SituationFolderPath(folder))) return names;
  for (std::string& file : FileNamesIn(SituationFolderPath(folder))) {
    if (!file.ends_with(kExtension) || file == kExtension) continue;
    file.resize(file.size() - kExtension.size());
    names.push_back(std::move(file));
  }
  std::ranges::sort(names, {}, [](const std::string& name) { return std::pair(WithoutCase(name), name); });
  return names;
}

std::optional<std::string> AskAndSaveSituation(const ScreenSituation& situation, std::string_view proposed,
                                               const ProgramFolder& folder, const AskLine& ask,
                                               MessageBoxes& messages) {
  const SituationText text = TextOfSituation(situation);
  if (!text.Fault.empty()) {
    messages.Show(Refusal(Joined({"This situation cannot be saved: ", text.Fault, "."})));
    return std::nullopt;
  }
  std::string name = ask({kNamePrompt, kNameTitle, proposed});
  if (name.empty()) return std::nullopt;
  std::optional<Message> complaint = NameComplaint(kThing, name);
  const std::filesystem::path file = SituationFilePath(folder, name);
  if (!complaint) {
    MakeFolderIfMissing(SituationFolderPath(folder), *folder.Calls);
    complaint = SystemComplaint(kThing, folder, name, file);
  }
  if (complaint) {
    messages.Show(*complaint);
    return std::nullopt;
  }
  if (IsThere(file) && messages.Show(ReplaceQuestion(name)) != MessageAnswer::kYes) return std::nullopt;
  ReplaceFile(file, text.Line, folder.Path, *folder.Calls);
  return name;
}

std::optional<OpenedSituation> OpenSituation(std::string_view name, const ProgramFolder& folder,
                                             MessageBoxes& messages) {
  const std::filesystem::path file = SituationFilePath(folder, name);
  const std::string bytes = ReadAllBytes(file, *folder.Calls);
  auto reading = bytes.empty() ? std::variant<ReadSituation, std::string>("its file is missing, empty or unreadable")
                               : SituationOfText(bytes);
  if (const auto* const reason = std::get_if<std::string>(&reading)) {
    messages.Show(Refusal(Joined(
        {"The situation \"", name, "\" cannot be opened: ", *reason, ".\r\n\r\n", TextOfFileName(file.string())})));
    return std::nullopt;
  }
  auto& read = std::get<ReadSituation>(reading);
  DropUnknownRanges(read, folder);
  std::optional<Message> remarks = RemarksOn(name, read.NotTaken);
  return OpenedSituation{std::move(read.Situation), std::move(remarks)};
}

bool AskAndDeleteSituation(std::string_view name, const ProgramFolder& folder, MessageBoxes& messages) {
  if (messages.Show(DeleteRangeQuestion(name)) != MessageAnswer::kYes) return false;
  // Another program may have deleted it meanwhile.
  if (const std::filesystem::path file = SituationFilePath(folder, name); IsThere(file))
    DeleteFile(file, *folder.Calls);
  return true;
}

Message SituationSavedMessage(std::string_view name) {
  return {.text = Joined({"The situation \"", name, "\" was saved successfully!"})};
}

std::string SituationOpenedText(std::string_view name) {
  return Joined({"The situation \"", name, "\" is open."});
}

Message NoInputScreenMessage() {
  return {.text = Joined({"Ctrl+S saves the situation on the screen where you enter it: ",
                          Listed(kScenarios, &Scenario::Name), "."})};
}

Message NoSituationsMessage() {
  return {.text = "There are no saved situations yet. Ctrl+S on an input screen saves one."};
}

Message RunningMessage() {
  return {.text =
              "An analysis is going on. Wait until it has ended, or stop it with \"< Back\", and open the situation "
              "then."};
}

}  // namespace quillon
