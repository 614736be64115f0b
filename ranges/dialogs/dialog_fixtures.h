#pragma once

// For tests: a program folder with some ranges, a main window of four choosers, and the dialogs themselves, which speak
// in real boxes ("toolkit/expected_boxes.h").

#include <QTest>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "hand/hand_classes.h"
#include "ranges/dialogs/range_dialogs.h"
#include "ranges/range_fixtures.h"
#include "ranges/recorded_list.h"
#include "toolkit/expected_boxes.h"
#include "toolkit/message_dialogs.h"
#include "toolkit/text.h"

namespace quillon {

/// The main window as the dialogs know it.
class StagedMain final : public RangeFormsOwner {
 public:
  StagedMain(ProgramFolder folder, RangeForms& dialogs) : Folder(std::move(folder)), Dialogs(dialogs) {
    for (std::int16_t index = 0; index < kChooserCount; ++index)
      List(index).OnClick([this, index] { ClickChooser(*this, index); });
  }

  void RefreshLists() override {
    ++Refreshes;
    const std::array<ChooserList*, kChooserCount + 1> lists = {&List(0), &List(1), &List(2), &List(3), &ManagerList()};
    RefreshRangeLists(lists, Folder);
  }
  void SetDefaultPointer() override { ++PointerResets; }
  [[nodiscard]] ChooserList& Chooser(std::int16_t index) override { return List(index); }
  void SetOrVisible(std::int16_t index, bool visible) override { OrVisible.at(At(index)) = visible; }
  void SetEditRangeVisible(std::int16_t index, bool visible) override { EditRangeVisible.at(At(index)) = visible; }
  [[nodiscard]] std::string LastEdit() const override { return LastEditCaption; }
  void SetLastEdit(std::string_view caption) override { LastEditCaption = caption; }
  [[nodiscard]] ChooserList& ManagerList() override { return Dialogs.ManagerList(); }
  void ShowManager() override { Dialogs.ShowManager(); }
  NewRangeWindow& ShowNewRange() override { return Dialogs.ShowNewRange(); }

  [[nodiscard]] RecordedList& List(std::int16_t index) { return Choosers.at(At(index)); }

  ProgramFolder Folder;
  RangeForms& Dialogs;
  int Refreshes = 0;
  int PointerResets = 0;
  std::array<RecordedList, kChooserCount> Choosers = {RecordedList("cmboRanges(0)"), RecordedList("cmboRanges(1)"),
                                                      RecordedList("cmboRanges(2)"), RecordedList("cmboRanges(3)")};
  std::array<bool, kChooserCount> OrVisible = {};
  std::array<bool, kChooserCount> EditRangeVisible = {};
  std::string LastEditCaption = "0";

 private:
  [[nodiscard]] static std::size_t At(std::int16_t index) { return static_cast<std::size_t>(index); }
};

/// Everything on stage. The ranges are "Button Shove", with AA full and AKs half, and "Tight", with AA, KK and QQ.
class DialogStage {
 public:
  DialogStage() {
    Program.Write("Button Shove.txt", TextWith("AA", "AKs"));
    Program.Write("Tight.txt", TextWith("AA KK QQ"));
    Dialogs.Attach(Main);
  }

  /// The Range Manager, shown.
  ManagerForm& OpenManager() {
    Main.ShowManager();
    return *Dialogs.LoadedManager();
  }

  /// The New Range dialog, opened by the link of a chooser.
  NewRangeForm& OpenNewRange(std::int16_t chooser = 0) {
    ClickNewRange(Main, chooser);
    return *Dialogs.LoadedNewRange();
  }

  TemporaryProgram Program;
  bool ShiftHeld = false;
  MessageDialogs Boxes;
  ShiftWatch Shift{[this] { return ShiftHeld; }};
  RangeDialogs Dialogs{Program.Folder(), Boxes, Boxes, Shift};
  StagedMain Main{Program.Folder(), Dialogs};
};

/// A click of the left mouse button in the middle of the control, sent the way of the window's own events, so that it
/// goes to whatever lies in front there.
inline void ClickOn(QWidget& control, Qt::KeyboardModifiers held = {}) {
  QWidget* window = control.window();
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, held, control.mapTo(window, control.rect().center()));
}

inline void ClickOn(const FormControls& controls, std::string_view name, std::int16_t index = kNoIndex) {
  ClickOn(controls.Get<QWidget>(name, index));
}

inline void ClickCell(const FormControls& controls, std::string_view label) {
  ClickOn(controls, "lblCards", HandIndex(label));
}

}  // namespace quillon
