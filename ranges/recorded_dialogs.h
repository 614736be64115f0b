#pragma once

// For tests: the range dialogs and the choosers of the main window, without windows. They work on the files of a
// program folder, their lists raise their click events, and a diary tells in which order things happened.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ranges/new_range.h"
#include "ranges/range_choosers.h"
#include "ranges/range_manager.h"
#include "ranges/recorded_card_grid.h"
#include "ranges/recorded_list.h"
#include "support/recorded_input.h"
#include "support/recorded_messages.h"

namespace quillon {

using Diary = std::vector<std::string>;

/// Message boxes that tell the diary when they show.
class DiaryMessages final : public RecordedMessages {
 public:
  explicit DiaryMessages(Diary& diary) : diary_(diary) {}

  MessageAnswer Show(const Message& message) override {
    diary_.emplace_back("message");
    return RecordedMessages::Show(message);
  }

 private:
  Diary& diary_;
};

/// The main window's side, and the list of the Range Manager.
class RecordedMain final : public RangeChoosers {
 public:
  explicit RecordedMain(ProgramFolder folder) : Folder(std::move(folder)) {
    for (std::int16_t index = 0; index < kChooserCount; ++index)
      List(index).OnClick([this, index] { ClickChooser(*this, index); });
  }
  RecordedMain(const RecordedMain&) = delete;
  RecordedMain(RecordedMain&&) = delete;
  RecordedMain& operator=(const RecordedMain&) = delete;
  RecordedMain& operator=(RecordedMain&&) = delete;
  ~RecordedMain() override = default;

  [[nodiscard]] ChooserList& Chooser(std::int16_t index) override { return List(index); }
  void SetOrVisible(std::int16_t index, bool visible) override {
    OrVisible.at(static_cast<std::size_t>(index)) = visible;
  }
  void SetEditRangeVisible(std::int16_t index, bool visible) override {
    EditRangeVisible.at(static_cast<std::size_t>(index)) = visible;
  }
  [[nodiscard]] std::string LastEdit() const override { return LastEditCaption; }
  void SetLastEdit(std::string_view caption) override { LastEditCaption = caption; }
  [[nodiscard]] ChooserList& ManagerList() override { return ManagerRanges; }
  void ShowManager() override { Notes.push_back("show manager on " + ManagerRanges.CurrentText()); }
  NewRangeWindow& ShowNewRange() override {
    Notes.push_back("show new range for " + LastEditCaption);
    return *NewRange;
  }

  void RefreshLists() {
    Notes.emplace_back("refresh");
    const std::array<ChooserList*, kChooserCount + 1> lists = {&List(0), &List(1), &List(2), &List(3), &ManagerRanges};
    RefreshRangeLists(lists, Folder);
  }

  [[nodiscard]] RecordedList& List(std::int16_t index) { return Combos.at(static_cast<std::size_t>(index)); }

  ProgramFolder Folder;
  Diary Notes;
  std::array<RecordedList, kChooserCount> Combos = {RecordedList("cmboRanges(0)"), RecordedList("cmboRanges(1)"),
                                                    RecordedList("cmboRanges(2)"), RecordedList("cmboRanges(3)")};
  RecordedList ManagerRanges{"lstRanges"};
  std::array<bool, kChooserCount> OrVisible = {true, true, true, true};
  std::array<bool, kChooserCount> EditRangeVisible = {true, true, true, true};
  std::string LastEditCaption = "0";
  NewRangeWindow* NewRange = nullptr;
};

/// The Range Manager, loaded and with its list filled.
class RecordedManager final : public ManagerWindow {
 public:
  explicit RecordedManager(RecordedMain& main) : Main(main), Boxes(main.Notes) {
    BuildCardGrid(Cells);
    Main.ManagerRanges.OnClick([this] { ClickRangeList(*this, Main.Folder); });
    Main.RefreshLists();
    Main.Notes.clear();
  }
  RecordedManager(const RecordedManager&) = delete;
  RecordedManager(RecordedManager&&) = delete;
  RecordedManager& operator=(const RecordedManager&) = delete;
  RecordedManager& operator=(RecordedManager&&) = delete;
  ~RecordedManager() override { Main.ManagerRanges.OnClick({}); }

  [[nodiscard]] CardGridForm& Grid() override { return Cells; }
  [[nodiscard]] ChooserList& RangeList() override { return Main.ManagerRanges; }
  void SetRangeName(std::string_view caption) override { RangeName = caption; }
  void SetSelectionCaption(std::string_view caption) override { Selection = caption; }
  void SetSummary(std::string_view text) override { Summary = text; }
  [[nodiscard]] MessageBoxes& Messages() override { return Boxes; }
  [[nodiscard]] InputBoxes& Inputs() override { return Questions; }
  void RefreshLists() override { Main.RefreshLists(); }
  void Close() override { Main.Notes.emplace_back("close"); }

  RecordedMain& Main;
  RecordedCardGrid Cells;
  std::string RangeName = "Title";
  std::string Selection = "0% selected";
  std::string Summary = "None\r\n";
  DiaryMessages Boxes;
  RecordedInput Questions;
};

/// The New Range dialog, loaded.
class RecordedNewRange final : public NewRangeWindow {
 public:
  explicit RecordedNewRange(RecordedMain& main) : Main(main), Boxes(main.Notes) {
    BuildCardGrid(Cells);
    Main.NewRange = this;
  }
  RecordedNewRange(const RecordedNewRange&) = delete;
  RecordedNewRange(RecordedNewRange&&) = delete;
  RecordedNewRange& operator=(const RecordedNewRange&) = delete;
  RecordedNewRange& operator=(RecordedNewRange&&) = delete;
  ~RecordedNewRange() override { Main.NewRange = nullptr; }

  [[nodiscard]] CardGridForm& Grid() override { return Cells; }
  void SetSelectionCaption(std::string_view caption) override { Selection = caption; }
  void SetSummary(std::string_view text) override { Summary = text; }
  [[nodiscard]] std::string RangeName() const override { return Name; }
  void SetRangeName(std::string_view text) override { Name = text; }
  void SetRangeNameEnabled(bool enabled) override {
    NameEnabled = enabled;
    Main.Notes.emplace_back(enabled ? "enable name" : "disable name");
  }
  void FocusRangeName() override { Main.Notes.emplace_back("focus name"); }
  void SelectWholeRangeName() override { Main.Notes.emplace_back("select name"); }
  [[nodiscard]] bool SaveRangeChecked() const override { return Save; }
  [[nodiscard]] MessageBoxes& Messages() override { return Boxes; }
  [[nodiscard]] RangeChoosers& Choosers() override { return Main; }
  void RefreshLists() override { Main.RefreshLists(); }
  void Close() override { Main.Notes.emplace_back("close"); }
  void Hide() override { Main.Notes.emplace_back("hide"); }

  RecordedMain& Main;
  RecordedCardGrid Cells;
  std::string Selection = "0% Selected";
  std::string Summary = "None\r\n";
  std::string Name;
  bool NameEnabled = true;
  bool Save = true;
  DiaryMessages Boxes;
};

}  // namespace quillon
