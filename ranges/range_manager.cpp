#include "ranges/range_manager.h"

#include <string>
#include <utility>

#include "ranges/range_names.h"
#include "ranges/range_summary.h"
#include "ranges/range_text.h"

namespace quillon {
namespace {

std::string Quoted(std::string_view name) {
  return "\"" + std::string(name) + "\"";
}

void UpdateSummary(ManagerWindow& window) {
  window.SetSummary(RangeSummary(RangeTextFromGrid(window.Grid())));
}

void SaveGrid(ManagerWindow& window, const ProgramFolder& folder, std::string_view name) {
  SaveRangeText(folder, name, RangeTextFromGrid(window.Grid()));
}

void RefreshAndSelect(ManagerWindow& window, std::string_view name) {
  window.RefreshLists();
  SelectListEntry(window.RangeList(), name);
}

void Tell(ManagerWindow& window, std::string text) {
  window.Messages().Show(
      {std::string(kApplicationTitle), std::move(text), MessageIcon::kInformation, MessageButtons::kOk});
}

void TellSaved(ManagerWindow& window, std::string_view name) {
  Tell(window, "The range " + Quoted(name) + " was saved successfully!");
}

MessageAnswer AskYesNoCancel(ManagerWindow& window, std::string title, std::string text) {
  return window.Messages().Show(
      {std::move(title), std::move(text), MessageIcon::kQuestion, MessageButtons::kYesNoCancel});
}

}  // namespace

void UpdateSelLabel(ManagerWindow& window) {
  window.SetSelectionCaption(SelectionCaption(SelectedCombos(window.Grid())));
}

bool HasBeenModified(ManagerWindow& window, const ProgramFolder& folder) {
  return RangeTextFromGrid(window.Grid()) != LoadRangeText(folder, window.RangeList().CurrentText());
}

void ClickRangeList(ManagerWindow& window, const ProgramFolder& folder) {
  const std::string name = window.RangeList().CurrentText();
  ClearCardGrid(window.Grid());
  ShowRangeOnGrid(window.Grid(), folder, name);
  UpdateSummary(window);
  window.SetRangeName(name);
  UpdateSelLabel(window);
}

void ClickManagerCell(ManagerWindow& window, std::int16_t index) {
  ToggleCell(window.Grid(), index);
  UpdateSelLabel(window);
  UpdateSummary(window);
}

void ClickNew(ManagerWindow& window, const ProgramFolder& folder) {
  // The title is that of Rename, and is meant to be.
  const std::string answer = window.Inputs().Ask("What do you want to name the range?", "Rename Range", {});
  if (answer.empty() || !ValidateRangeName(folder, answer, window.Messages())) return;

  ClearCardGrid(window.Grid());
  window.SetSummary({});
  UpdateSelLabel(window);
  SaveGrid(window, folder, answer);
  RefreshAndSelect(window, answer);
}

void ClickSave(ManagerWindow& window, const ProgramFolder& folder) {
  const std::string name = window.RangeList().CurrentText();
  SaveGrid(window, folder, name);
  TellSaved(window, name);
  window.RefreshLists();
}

void ClickSaveAs(ManagerWindow& window, const ProgramFolder& folder) {
  const std::string name = window.RangeList().CurrentText();
  const std::string answer = window.Inputs().Ask("What do you want to call the new range?", "Pick a Name", name);
  if (answer.empty() || !ValidateRangeName(folder, answer, window.Messages())) return;

  SaveGrid(window, folder, answer);
  RefreshAndSelect(window, answer);
  TellSaved(window, answer);
}

void ClickRename(ManagerWindow& window, const ProgramFolder& folder) {
  const std::string name = window.RangeList().CurrentText();
  const std::string answer = window.Inputs().Ask("What do you want to rename the range to?", "Rename Range", name);
  // Here a cancelled box is not silent: its empty answer is refused like any other.
  if (!ValidateRangeName(folder, answer, window.Messages())) return;

  RenameRange(folder, name, answer, RangeTextFromGrid(window.Grid()));
  RefreshAndSelect(window, answer);
  Tell(window, "The range was successfull renamed: \r\n\r\nOld: \t" + name + "\r\nNew: \t" + answer);
}

void ClickDelete(ManagerWindow& window, const ProgramFolder& folder) {
  const std::string name = window.RangeList().CurrentText();
  const MessageAnswer answer = AskYesNoCancel(window, "Delete?", "Do you really want to delete " + Quoted(name) + "?");
  if (answer != MessageAnswer::kYes) return;

  DeleteRange(folder, name);
  window.RefreshLists();
}

void ClickManagerOk(ManagerWindow& window, const ProgramFolder& folder) {
  if (HasBeenModified(window, folder)) {
    const MessageAnswer answer = AskYesNoCancel(window, "Save Range?",
                                                "The range " + Quoted(window.RangeList().CurrentText()) +
                                                    " has changed since you last saved it.\r\n\r\n"
                                                    "Do you want to save the range now?");
    if (answer == MessageAnswer::kYes) ClickSave(window, folder);
    if (answer == MessageAnswer::kCancel) return;
  }
  window.Close();
}

}  // namespace quillon
