#include "ranges/dialogs/grid_painting.h"

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "testing/dialog_stage.h"
#include "testing/heard_announcements.h"
#include "testing/range_dialog_messages.h"

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const InputQuestion kShareQuestion = {"What percentage of all hands, the best first?", "Top x%", ""};

Message NotARange(const std::string& marked) {
  return {.title = "This Is Not a Range", .text = marked, .icon = MessageIcon::kExclamation, .columns = true};
}

void CopyToClipboard(const char* text) {
  QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
}
std::string Clipboard() {
  return FromQt(QGuiApplication::clipboard()->text());
}

// What a grid can do in either dialog.
template <typename Form>
class PaintedForm : public testing::Test {
 protected:
  [[nodiscard]] const auto& Controls() const { return Dialog().Controls(); }
  [[nodiscard]] std::string Grid() const { return RangeTextFromGrid(Dialog().Grid().Colors()); }
  [[nodiscard]] std::string Caption(std::string_view label) const {
    return FromQt(Dialog().template findChild<Label*>(ToQt(label))->Text());
  }
  [[nodiscard]] std::string Summary() const {
    return FromQt(Controls().template Get<QPlainTextEdit>("txtRangeAbbr").toPlainText());
  }
  void Click(std::string_view label) const { ClickCell(Controls(), label); }
  void CheckHalf() const { ClickOn(Controls(), "chkHalf"); }
  void Press(Qt::Key key, Qt::KeyboardModifiers held = Qt::ControlModifier) const {
    QTest::keyClick(Dialog().windowHandle(), key, held);
  }
  void Undo() const { Press(Qt::Key_Z); }
  void Redo() const { Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
  void Paste(const char* text) const {
    CopyToClipboard(text);
    Press(Qt::Key_V);
  }

  [[nodiscard]] QMenu* Menu() const { return Dialog().template findChild<QMenu*>(); }
  void ClickRight(const QPoint& place) const { QTest::mouseClick(Dialog().windowHandle(), Qt::RightButton, {}, place); }
  [[nodiscard]] QPoint MiddleOf(std::string_view label) const {
    return Controls().ShapeAt("shapeCardBack", HandIndex(label)).geometry().center();
  }
  /// Opens the menu with the right button and chooses by the left one.
  void Choose(std::string_view text) const {
    ClickRight(MiddleOf("T9s"));
    ASSERT_NE(Menu(), nullptr);
    QMenu& menu = *Menu();
    for (QAction* action : menu.actions()) {
      if (!FromQt(action->text()).starts_with(text)) continue;
      QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
      QTest::qWait(0);  // the menu has gone
      return;
    }
    ADD_FAILURE() << text;
  }

  DialogStage Stage;

 private:
  [[nodiscard]] Form& Dialog() const {
    if constexpr (std::is_same_v<Form, ManagerForm>) {
      return *Stage.Dialogs.LoadedManager();
    } else {
      return *Stage.Dialogs.LoadedNewRange();
    }
  }
};

class PaintingTest : public PaintedForm<NewRangeForm> {
 protected:
  PaintingTest() { Come(Stage.OpenNewRange()); }

  static void Come(QWidget& form) {
    form.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
  }
  [[nodiscard]] NewRangeForm& Form() const { return *Stage.Dialogs.LoadedNewRange(); }
  void Drop(const QPoint& place, const QMimeData& dragged, bool accepted) {
    QDragEnterEvent enter({1, 1}, Qt::MoveAction | Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&Form(), &enter);
    EXPECT_EQ(enter.isAccepted(), dragged.hasText());
    QDragMoveEvent move(place, Qt::MoveAction | Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&Form(), &move);
    EXPECT_EQ(move.isAccepted(), accepted);
    QDropEvent drop(place, Qt::MoveAction | Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&Form(), &drop);
    EXPECT_EQ(drop.isAccepted(), accepted);
    EXPECT_TRUE(!accepted || drop.dropAction() == Qt::CopyAction) << "it stays where it was";
    QTest::qWait(0);
  }
  void DropText(const QPoint& place, const char* text, bool accepted = true) {
    QMimeData dragged;
    dragged.setText(QString::fromUtf8(text));
    Drop(place, dragged, accepted);
  }
};

// ---- the menu

TEST_F(PaintingTest, TheMenuHasAllOfItWithItsKeys) {
  ClickRight(MiddleOf("AA"));
  std::vector<std::string> shown;
  for (const QAction* action : Menu()->actions())
    shown.push_back(FromQt(action->text() + action->shortcut().toString()) + (action->isEnabled() ? "" : " (off)"));
  EXPECT_THAT(shown, ElementsAre("CopyCtrl+C", "PasteCtrl+V", "", "Everything", "Clear", "Invert", "Top x%...", "",
                                 "UndoCtrl+Z (off)", "RedoCtrl+Shift+Z (off)"));
}

TEST_F(PaintingTest, UndoAndRedoAreOnOfferWhereThereIsAStep) {
  const auto offers = [this](const char* text) {
    ClickRight(MiddleOf("AA"));
    bool enabled = false;
    for (const QAction* action : Menu()->actions())
      enabled = enabled || (FromQt(action->text()).starts_with(text) && action->isEnabled());
    QTest::keyClick(Menu(), Qt::Key_Escape);
    QTest::qWait(0);
    return enabled;
  };
  Click("AA");
  EXPECT_TRUE(offers("Undo"));
  EXPECT_FALSE(offers("Redo"));
  Undo();
  EXPECT_FALSE(offers("Undo"));
  EXPECT_TRUE(offers("Redo"));
}

TEST_F(PaintingTest, TheMenuComesAllOverTheGridAndNowhereElse) {
  const QRect cell = Controls().ShapeAt("shapeCardBack", HandIndex("88")).geometry();
  const QRect grid = Controls().ShapeAt("shapeBlue").geometry();
  struct Case {
    const char* rule;
    QPoint place;
    bool comes;
  };
  for (const Case& c :
       {Case{"on a caption", cell.center(), true}, Case{"on the upper edge", cell.topLeft(), true},
        Case{"between cells", cell.bottomRight() + QPoint(1, 1), true}, Case{"on the margin", grid.topLeft(), true},
        Case{"beside the grid", grid.topLeft() - QPoint(1, 1), false}, Case{"on the form", {2, 2}, false}}) {
    ClickRight(c.place);
    EXPECT_EQ(Menu() != nullptr, c.comes) << c.rule;
    if (Menu() != nullptr) Menu()->close();
    QTest::qWait(0);
  }
}

TEST_F(PaintingTest, TheMenuComesByTheKeyboardWithItsFirstEntryMarked) {
  Click("AKs");
  Press(Qt::Key_F10, Qt::ShiftModifier);
  ASSERT_NE(Menu(), nullptr);
  QTest::keyClick(Menu(), Qt::Key_Return);
  EXPECT_EQ(Clipboard(), "AKs");
  QTest::qWait(0);

  // What the window system makes of the menu key.
  Label& cell = Controls().LabelAt("lblCards", 0);
  QContextMenuEvent event(QContextMenuEvent::Keyboard, cell.rect().center(), cell.mapToGlobal(cell.rect().center()));
  QCoreApplication::sendEvent(&cell, &event);
  EXPECT_NE(Menu(), nullptr);
}

// ---- copy and paste

TEST_F(PaintingTest, CopiesTheExactNotation) {
  Click("AA");
  CheckHalf();
  Click("AKs");
  Click("32o");
  for (const bool byKey : {true, false}) {
    CopyToClipboard("");
    if (byKey) {
      Press(Qt::Key_C);
    } else {
      Choose("Copy");
    }
    EXPECT_EQ(Clipboard(), "AA,AKs:0.5,32o:0.5");
  }
}

TEST_F(PaintingTest, PastesEachWeightWhateverMaybeSays) {
  Click("32o");
  CheckHalf();
  Paste("AA,AKs:0.5");
  EXPECT_EQ(Grid(), TextWith("AA", "AKs"));
  EXPECT_EQ(Caption("lblPercSelected"), "0.6% selected");
  EXPECT_EQ(Summary(), "Full: AA | Half: AKs");
  CopyToClipboard("KK, top 1%:50%, AA");
  Choose("Paste");
  EXPECT_EQ(Grid(), TextWith("AA KK", "AKs AQs"));
  Paste(" Full: QQ | Half: JJ\n");
  EXPECT_EQ(Grid(), TextWith("QQ", "JJ"));
  Paste("none");
  EXPECT_EQ(Grid(), TextWith(""));
}

TEST_F(PaintingTest, WhatCannotBeReadIsShownAndChangesNothing) {
  struct Case {
    const char* pasted;
    const char* marked;
  };
  Click("AA");
  for (const Case& c : {Case{"AKs, KXs+", "AKs, KXs+\r\n     ^ \"X\" is not a rank"},
                        Case{"KK:0.25", "KK:0.25\r\n^ the grid knows the weights 0, 0.5 and 1 only"},
                        Case{"", "\r\n^ there is no hand here; write \"none\" for an empty range"}}) {
    ExpectMessageBox(NotARange(c.marked));
    Paste(c.pasted);
    VerifyExpectedBoxes();
    Come(Form());
    ExpectMessageBox(NotARange(c.marked));
    DropText(MiddleOf("KK"), c.pasted);
    VerifyExpectedBoxes();
    Come(Form());
    EXPECT_EQ(Grid(), TextWith("AA"));
  }
  Undo();
  EXPECT_EQ(Grid(), TextWith("")) << "no step was made of them";
}

TEST_F(PaintingTest, TextBoxesKeepTheirKeys) {
  Click("AA");
  auto& name = Controls().Get<QLineEdit>("txtRangeName");
  name.setFocus();
  QTest::keyClicks(&name, QStringLiteral("Loose"));
  name.selectAll();
  Press(Qt::Key_C);
  EXPECT_EQ(Clipboard(), "Loose");
  Paste("KK");
  EXPECT_EQ(FromQt(name.text()), "KK");
  Undo();
  EXPECT_EQ(FromQt(name.text()), "Loose");
  Redo();
  EXPECT_EQ(FromQt(name.text()), "KK");

  auto& summary = Controls().Get<QPlainTextEdit>("txtRangeAbbr");
  summary.setFocus();
  summary.selectAll();
  Press(Qt::Key_C);
  EXPECT_EQ(Clipboard(), "AA");
  Paste("QQ");
  Undo();
  EXPECT_EQ(Grid(), TextWith("AA")) << "not the grid's while a box is read from";

  Controls().Get<QPushButton>("cmdOK").setFocus();
  Undo();
  EXPECT_EQ(Grid(), TextWith(""));
}

TEST_F(PaintingTest, ATextIsDroppedOnTheGrid) {
  DropText(MiddleOf("72o"), "AA,AKs:0.5");
  EXPECT_EQ(Grid(), TextWith("AA", "AKs"));
  DropText({2, 2}, "KK", false);
  EXPECT_EQ(Grid(), TextWith("AA", "AKs")) << "beside the grid";
  QMimeData picture;
  picture.setImageData(QImage(2, 2, QImage::Format_RGB32));
  Drop(MiddleOf("72o"), picture, false);
  EXPECT_EQ(Grid(), TextWith("AA", "AKs"));
}

// ---- whole grids

TEST_F(PaintingTest, WholeGridsSelectAsAClickDoes) {
  for (const bool half : {false, true}) {
    if (half) CheckHalf();
    const auto share = [half](const char* full, const char* halved) { return half ? halved : full; };
    Choose("Everything");
    EXPECT_EQ(Grid(), EveryHandAt(half ? 0.5 : 1));
    EXPECT_EQ(Caption("lblPercSelected"), share("100% selected", "50% selected"));
    Choose("Clear");
    EXPECT_EQ(Grid(), EveryHandAt(0));
    EXPECT_EQ(Summary(), "[None]");
    Choose("Invert");
    EXPECT_EQ(Grid(), EveryHandAt(half ? 0.5 : 1));
    Choose("Invert");
    EXPECT_EQ(Grid(), EveryHandAt(0));
    ExpectInputBox(kShareQuestion, "1%");
    Choose("Top x%...");
    VerifyExpectedBoxes();
    Come(Form());
    EXPECT_EQ(Grid(), half ? TextWith("", "AA AKs AQs") : TextWith("AA AKs AQs"));
  }
}

TEST_F(PaintingTest, AShareThatIsNoneIsRefusedAndCancelIsSilent) {
  Click("22");
  ExpectInputBoxCancelled(kShareQuestion);
  Choose("Top x%...");
  VerifyExpectedBoxes();
  Come(Form());
  ExpectInputBox(kShareQuestion, "15, AKs");
  ExpectMessageBox({.title = "Top x%",
                    .text = "A share is a number from 0 to 100, such as 15 or 12.5.",
                    .icon = MessageIcon::kExclamation});
  Choose("Top x%...");
  VerifyExpectedBoxes();
  EXPECT_EQ(Grid(), TextWith("22"));
}

TEST_F(PaintingTest, ShiftIsNotReadAndStaysForTheNextClick) {
  Stage.ShiftHeld = true;
  QTest::keyPress(Form().windowHandle(), Qt::Key_Shift, Qt::ShiftModifier);
  CopyToClipboard("KQs");
  Choose("Paste");
  EXPECT_EQ(Grid(), TextWith("KQs")) << "no sweep";
  Click("QQ");
  EXPECT_EQ(Grid(), TextWith("AA KK QQ KQs")) << "a sweep";
  Stage.ShiftHeld = false;
  QTest::keyRelease(Form().windowHandle(), Qt::Key_Shift);
}

TEST_F(PaintingTest, AScreenReaderHearsWhatIsSelectedThen) {
  const HeardAnnouncements heard;
  Paste("AA");
  Choose("Everything");
  Undo();
  Press(Qt::Key_C);
  EXPECT_THAT(heard.Texts(), ElementsAre("0.5% selected", "100% selected", "0.5% selected", "Copied."));
}

// ---- steps

TEST_F(PaintingTest, StepsGoBackAndForth) {
  Click("AA");
  Stage.ShiftHeld = true;
  QTest::keyPress(Form().windowHandle(), Qt::Key_Shift, Qt::ShiftModifier);
  Click("AJs");
  Stage.ShiftHeld = false;
  QTest::keyRelease(Form().windowHandle(), Qt::Key_Shift);
  CheckHalf();
  Click("AJs");
  Click("AJs");
  Paste("22");
  Choose("Clear");
  Choose("Clear");  // no step: it is clear
  const std::vector<std::string> steps = {"", "22", "AA AKs AQs|AJs", "AA AKs AQs", "AA AKs AQs AJs", "AA", ""};
  const auto text = [](const std::string& step) {
    const auto bar = step.find('|');
    return bar == std::string::npos ? TextWith(step) : TextWith(step.substr(0, bar), step.substr(bar + 1));
  };
  for (std::size_t i = 0; i < steps.size(); ++i) {
    EXPECT_EQ(Grid(), text(steps[i])) << i;
    if (i + 1 < steps.size()) Undo();
  }
  Undo();
  EXPECT_EQ(Grid(), TextWith("")) << "there is no step before";
  for (std::size_t i = steps.size() - 1; i-- > 0;) {
    Redo();
    EXPECT_EQ(Grid(), text(steps[i])) << i;
  }
  EXPECT_EQ(Caption("lblPercSelected"), "0% selected");
  Choose("Undo");
  EXPECT_EQ(Summary(), "22");
  Click("33");
  Redo();
  EXPECT_EQ(Grid(), TextWith("22", "33")) << "a click ends the way forth";
}

TEST_F(PaintingTest, AProposalIsOneStep) {
  Click("22");
  Form().Propose(std::vector<std::int16_t>{0, 14, 168});
  EXPECT_EQ(Grid(), TextWith("AA KK"));
  Controls().Get<QPushButton>("cmdOK").setFocus();
  Undo();
  EXPECT_EQ(Grid(), TextWith("22"));
  Redo();
  EXPECT_EQ(Grid(), TextWith("AA KK"));
}

// ---- the Range Manager

class ManagerPaintingTest : public PaintedForm<ManagerForm> {
 protected:
  ManagerPaintingTest() {
    Stage.Program.Write("Loose.txt", RangeWith({{"AA", 1}, {"QQ", 0.25}, {"22", 0.5}}));
    Stage.OpenManager();
  }
  [[nodiscard]] ManagerForm& Form() const { return *Stage.Dialogs.LoadedManager(); }
  void Select(std::string_view name) const { Form().RangeList().SelectEntry(name); }
  void ClickOk() const { ClickOn(Controls(), "cmdOK"); }
};

TEST_F(ManagerPaintingTest, KeysAreHeardWhileTheListHasTheFocus) {
  Controls().Get<QListWidget>("lstRanges").setFocus();
  Press(Qt::Key_C);
  EXPECT_EQ(Clipboard(), "AA,AKs:0.5");
  Paste("KK");
  EXPECT_EQ(Grid(), TextWith("KK"));
  EXPECT_EQ(Caption("lblRangeInfo"), "0.5% selected");
  EXPECT_EQ(Summary(), "KK");
  Undo();
  EXPECT_EQ(Grid(), TextWith("AA", "AKs"));
}

TEST_F(ManagerPaintingTest, APasteIsAChangeThatOkAsksAboutUnlessItIsUndone) {
  Paste("KK");
  EXPECT_EQ(Stage.FileText("Button Shove"), TextWith("AA", "AKs"));
  ExpectMessageBox(AskToSave("Button Shove"), MessageAnswer::kCancel);
  ClickOk();
  VerifyExpectedBoxes();
  Form().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Form()));
  Undo();
  ClickOk();
  EXPECT_EQ(Stage.Dialogs.LoadedManager(), nullptr) << "closed without a question";
}

TEST_F(ManagerPaintingTest, WhatShowsARangeForgetsTheSteps) {
  for (const bool another : {true, false}) {
    Paste("KK");
    if (another) {
      Select("Tight");
    } else {
      Stage.Dialogs.RefreshLists();
    }
    const std::string shown = Grid();
    Undo();
    EXPECT_EQ(Grid(), shown);
    Redo();
    EXPECT_EQ(Grid(), shown);
  }
}

TEST_F(ManagerPaintingTest, WeightsThatASaveWouldDropAreTold) {
  const std::string note =
      "The range \"Loose\" has weights that the grid cannot show, and saving drops them:\r\nQQ:0.25";
  const auto tip = [this](std::string_view cell) {
    return LinesFromQt(Controls().LabelAt("lblCards", HandIndex(cell)).toolTip());
  };
  const HeardAnnouncements heard;
  EXPECT_EQ(tip("AA"), "");
  Select("Loose");
  for (const std::string_view cell : {"AA", "QQ", "32o"}) {
    EXPECT_EQ(tip(cell), note);
    Label& label = Controls().LabelAt("lblCards", HandIndex(cell));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Description), QString())
        << "not said again at each cell";
  }
  EXPECT_THAT(heard.Texts(), ElementsAre(note));

  Stage.Dialogs.RefreshLists();
  EXPECT_THAT(heard.Texts(), ElementsAre(note)) << "the same again is no news";
  Form().hide();
  Stage.OpenManager();
  EXPECT_THAT(heard.Texts(), ElementsAre(note, note)) << "it comes up with that range";

  ExpectMessageBox(Saved("Loose"));
  ClickOn(Controls(), "imgSave");
  VerifyExpectedBoxes();
  EXPECT_EQ(tip("AA"), "") << "now they are gone";
}

}  // namespace
}  // namespace quillon
