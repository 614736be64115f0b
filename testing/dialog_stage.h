#pragma once

// A program folder with some ranges, a main window with nothing but the four choosers, and the dialogs themselves, with
// real boxes ("testing/expected_boxes.h").

#include <QPlainTextEdit>
#include <QTest>
#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <numeric>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "hand/hand_classes.h"
#include "ranges/dialogs/range_dialogs.h"
#include "ranges/range_text.h"
#include "testing/bring_to_front.h"
#include "testing/expected_boxes.h"
#include "testing/fault_of.h"
#include "testing/range_texts.h"
#include "testing/temporary_program.h"
#include "toolkit/message_dialogs.h"
#include "toolkit/text.h"

namespace quillon {

inline constexpr auto kStagedRows = [] {
  std::array<ControlRow, 1 + 4 * kChooserCount> rows{};
  auto row = rows.begin();
  *row++ = {.Name = "lblLastEdit", .Text = "0", .Place = {0, 0, 300, 300}, .Hidden = true};
  for (std::int16_t i = 0; i < kChooserCount; ++i) {
    const auto top = static_cast<float>(600 * i);
    *row++ = {.Name = "cmboRanges", .Index = i, .Kind = ControlKind::kChooser, .Place = {0, top, 3000, 300}};
    *row++ = {.Name = "lblOr", .Index = i, .Place = {3300, top, 300, 300}};
    for (const std::string_view link : {"lblEditRange", "lblNewRange"})
      *row++ = {.Name = link, .Index = i, .Place = {3900, top, 300, 300}, .Use = ControlUse::kLink};
  }
  return rows;
}();
inline constexpr std::array kStagedLayout = {
    ControlTable{.Container = {}, .Font = {.Family = "Arial", .Points = 9}, .Rows = kStagedRows}};

/// The main window as seen by the dialogs.
class StagedMain : public QWidget {
 public:
  StagedMain() { setCursor(Qt::WaitCursor); }

  [[nodiscard]] bool HasDefaultPointer() const { return cursor().shape() == Qt::ArrowCursor; }
  [[nodiscard]] bool OffersEdit(std::int16_t index) const {
    const bool edit = !Controls.LabelAt("lblEditRange", index).isHidden();
    EXPECT_EQ(edit, !Controls.LabelAt("lblOr", index).isHidden()) << index;
    return edit;
  }

  LayoutControls<kStagedLayout> Controls{*this};
};

/// AA, AKs, AQs and so on: as good an order as any for this stage.
[[nodiscard]] inline HandOrder IndexOrder() {
  HandOrder order{};
  std::iota(order.begin(), order.end(), std::int16_t{0});
  return order;
}

/// The whole stage. The ranges are "Button Shove", with AA full and AKs half, and "Tight", with AA, KK and QQ.
class DialogStage {
 public:
  DialogStage() {
    Program.Write("Button Shove.txt", TextWith("AA", "AKs"));
    Program.Write("Tight.txt", TextWith("AA KK QQ"));
    // Whenever all lists are filled, so is the first one.
    QObject::connect(&List(0), &FormChooser::Clicked, &Main, [this] { ++Refreshes; });
  }

  /// The Range Manager, shown.
  ManagerForm& OpenManager() {
    Dialogs.ShowManager();
    return *Dialogs.LoadedManager();
  }

  /// The New Range dialog, opened by a chooser's link.
  NewRangeForm& OpenNewRange(std::int16_t chooser = 0) {
    Main.Controls.LabelAt("lblNewRange", chooser).Click();
    return *Dialogs.LoadedNewRange();
  }

  void ClickEdit(std::int16_t chooser) const { Main.Controls.LabelAt("lblEditRange", chooser).Click(); }

  [[nodiscard]] FormChooser& List(std::int16_t index) const { return Dialogs.Choosers().List(index); }
  [[nodiscard]] std::string Chosen(std::int16_t index) const { return List(index).CurrentText(); }
  [[nodiscard]] std::string FileText(std::string_view name) const { return LoadRangeText(Program.Folder(), name); }

  TemporaryProgram Program;
  bool ShiftHeld = false;
  int Refreshes = 0;
  MessageDialogs Boxes;
  ShiftWatch Shift{[this] { return ShiftHeld; }};
  StagedMain Main;
  RangeDialogs Dialogs{
      Main,
      Main.Controls,
      {.Folder = Program.Folder(), .Messages = Boxes, .Ask = AskForLine, .Shift = Shift, .BestFirst = IndexOrder}};
};

/// A click of the left mouse button in the middle of the control, sent to its window, so that whatever is in front
/// there gets it.
inline void ClickOn(QWidget& control, Qt::KeyboardModifiers held = {}) {
  QWidget* window = control.window();
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, held, control.mapTo(window, control.rect().center()));
}

template <typename Controls>
void ClickOn(const Controls& controls, typename Controls::template Key<QWidget> name, std::int16_t index = kNoIndex) {
  ClickOn(controls.template Get<QWidget>(name, index));
}

template <typename Controls>
void ClickCell(const Controls& controls, std::string_view label) {
  ClickOn(controls, "lblCards", HandIndex(label));
}

/// A test of one of the two dialogs, once opened.
template <typename Dialog>
class DialogFormTest : public testing::Test {
 protected:
  using DialogControls = std::remove_cvref_t<decltype(std::declval<Dialog>().Controls())>;
  static constexpr bool kIsManager = std::is_same_v<Dialog, ManagerForm>;

  [[nodiscard]] Dialog* Loaded() const {
    if constexpr (kIsManager) {
      return Stage.Dialogs.LoadedManager();
    } else {
      return Stage.Dialogs.LoadedNewRange();
    }
  }
  [[nodiscard]] Dialog& Form() const { return *Loaded(); }
  [[nodiscard]] bool IsClosed() const { return Loaded() == nullptr; }
  [[nodiscard]] const DialogControls& Controls() const { return Form().Controls(); }

  void Click(typename DialogControls::template Key<QWidget> name) const { ClickOn(Controls(), name); }
  void Cell(std::string_view label) const { ClickCell(Controls(), label); }
  void Press(Qt::Key key, Qt::KeyboardModifiers held = {}) const { QTest::keyClick(Form().windowHandle(), key, held); }
  /// Presses Shift until ShiftUp.
  void ShiftDown() {
    Stage.ShiftHeld = true;
    QTest::keyPress(Form().windowHandle(), Qt::Key_Shift, Qt::ShiftModifier);
  }
  void ShiftUp() {
    Stage.ShiftHeld = false;
    QTest::keyRelease(Form().windowHandle(), Qt::Key_Shift);
  }
  /// As when the user returns from another window.
  void ComeToFront() const { BringToFront(Form()); }

  [[nodiscard]] std::string GridText() const { return RangeTextFromGrid(Form().Grid().Colors()); }
  [[nodiscard]] std::string Share() const {
    return FromQt(Controls().LabelAt(kIsManager ? "lblRangeInfo" : "lblPercSelected").Text());
  }
  [[nodiscard]] std::string Summary() const {
    return FromQt(Controls().template Get<QPlainTextEdit>("txtRangeAbbr").toPlainText());
  }
  [[nodiscard]] std::string FileText(std::string_view name) const { return Stage.FileText(name); }

  DialogStage Stage;
};

}  // namespace quillon
