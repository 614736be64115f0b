#include "ranges/dialogs/grid_painting.h"

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "testing/dialog_stage.h"
#include "testing/heard_announcements.h"
#include "testing/opened_menu.h"
#include "testing/range_dialog_messages.h"

namespace quillon {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;

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
template <typename Dialog>
class PaintedForm : public DialogFormTest<Dialog> {
 protected:
  void PressControl(Qt::Key key) const { this->Press(key, Qt::ControlModifier); }
  void Undo() const { PressControl(Qt::Key_Z); }
  void Redo() const { this->Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
  void Paste(const char* text) const {
    CopyToClipboard(text);
    PressControl(Qt::Key_V);
  }
  [[nodiscard]] QPoint MiddleOf(std::string_view label) const {
    return this->Controls().ShapeAt("shapeCardBack", HandIndex(label)).geometry().center();
  }
  void Choose(std::string_view text) const { ChooseInMenu(this->Form(), MiddleOf("T9s"), text); }
};

class PaintingTest : public PaintedForm<NewRangeForm> {
 protected:
  PaintingTest() {
    Stage.OpenNewRange();
    ComeToFront();
  }

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

TEST_F(PaintingTest, TheMenuHasAllOfItWithItsKeysAndTheStepsThereAre) {
  const auto entries = [this] {
    OpenMenu(Form(), MiddleOf("AA"));
    const std::vector<std::string> shown = MenuEntries(Form());
    CloseMenu(Form());
    return shown;
  };
  EXPECT_THAT(entries(), ElementsAre("CopyCtrl+C", "PasteCtrl+V", "", "Everything", "Clear", "Invert", "Top x%...", "",
                                     "UndoCtrl+Z (off)", "RedoCtrl+Shift+Z (off)"));
  Cell("AA");
  EXPECT_THAT(entries(), AllOf(Contains("UndoCtrl+Z"), Contains("RedoCtrl+Shift+Z (off)")));
  Undo();
  EXPECT_THAT(entries(), AllOf(Contains("UndoCtrl+Z (off)"), Contains("RedoCtrl+Shift+Z")));
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
    OpenMenu(Form(), c.place);
    EXPECT_EQ(OpenedMenu(Form()) != nullptr, c.comes) << c.rule;
    if (OpenedMenu(Form()) != nullptr) CloseMenu(Form());
  }
  QWidget panel(&Form());
  panel.setGeometry(cell);
  panel.show();
  OpenMenu(Form(), cell.center());
  EXPECT_EQ(OpenedMenu(Form()), nullptr) << "over what is in front of the grid";
}

TEST_F(PaintingTest, TheMenuComesByTheKeyboardWithItsFirstEntryMarked) {
  Cell("AKs");
  Press(Qt::Key_F10);
  ASSERT_EQ(OpenedMenu(Form()), nullptr);
  Press(Qt::Key_F10, Qt::ShiftModifier);
  ASSERT_NE(OpenedMenu(Form()), nullptr);
  QTest::keyClick(OpenedMenu(Form()), Qt::Key_Return);
  EXPECT_EQ(Clipboard(), "AKs");
  QTest::qWait(0);

  // The window system's context menu event for the menu key.
  Label& cell = Controls().LabelAt("lblCards", 0);
  QContextMenuEvent event(QContextMenuEvent::Keyboard, cell.rect().center(), cell.mapToGlobal(cell.rect().center()));
  QCoreApplication::sendEvent(&cell, &event);
  EXPECT_NE(OpenedMenu(Form()), nullptr);
}

// ---- copy and paste

TEST_F(PaintingTest, CopiesTheExactNotation) {
  Cell("AA");
  Click("chkHalf");
  Cell("AKs");
  Cell("32o");
  for (const bool byKey : {true, false}) {
    CopyToClipboard("");
    if (byKey) {
      PressControl(Qt::Key_C);
    } else {
      Choose("Copy");
    }
    EXPECT_EQ(Clipboard(), "AA,AKs:0.5,32o:0.5");
  }
}

TEST_F(PaintingTest, PastesEachWeightWhateverMaybeSays) {
  Cell("32o");
  Click("chkHalf");
  Paste("AA,AKs:0.5");
  EXPECT_EQ(GridText(), TextWith("AA", "AKs"));
  EXPECT_EQ(Share(), "0.6% selected");
  EXPECT_EQ(Summary(), "Full: AA | Half: AKs");
  CopyToClipboard("KK, top 1%:50%, AA");
  Choose("Paste");
  EXPECT_EQ(GridText(), TextWith("AA KK", "AKs AQs"));
  Paste(" Full: QQ | Half: JJ\n");
  EXPECT_EQ(GridText(), TextWith("QQ", "JJ"));
  Paste("none");
  EXPECT_EQ(GridText(), TextWith(""));
}

TEST_F(PaintingTest, WhatCannotBeReadIsShownAndChangesNothing) {
  struct Case {
    const char* pasted;
    const char* marked;
  };
  Cell("AA");
  for (const Case& c : {Case{"AKs, KXs+", "AKs, KXs+\r\n     ^ \"X\" is not a rank"},
                        Case{"KK:0.25", "KK:0.25\r\n^ the grid knows the weights 0, 0.5 and 1 only"},
                        Case{"", "\r\n^ there is no hand here; write \"none\" for an empty range"}}) {
    ExpectMessageBox(NotARange(c.marked));
    Paste(c.pasted);
    VerifyExpectedBoxes();
    ComeToFront();
    ExpectMessageBox(NotARange(c.marked));
    DropText(MiddleOf("KK"), c.pasted);
    VerifyExpectedBoxes();
    ComeToFront();
    EXPECT_EQ(GridText(), TextWith("AA"));
  }
  Undo();
  EXPECT_EQ(GridText(), TextWith("")) << "they are not a step";
}

TEST_F(PaintingTest, TextBoxesKeepTheirKeys) {
  Cell("AA");
  auto& name = Controls().Get<QLineEdit>("txtRangeName");
  name.setFocus();
  QTest::keyClicks(&name, QStringLiteral("Loose"));
  name.selectAll();
  PressControl(Qt::Key_C);
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
  PressControl(Qt::Key_C);
  EXPECT_EQ(Clipboard(), "AA");
  Paste("QQ");
  Undo();
  EXPECT_EQ(GridText(), TextWith("AA")) << "not for the grid while a read-only box has the focus";

  Controls().Get<QPushButton>("cmdOK").setFocus();
  Undo();
  EXPECT_EQ(GridText(), TextWith(""));
}

TEST_F(PaintingTest, ATextIsDroppedOnTheGrid) {
  DropText(MiddleOf("72o"), "AA,AKs:0.5");
  EXPECT_EQ(GridText(), TextWith("AA", "AKs"));
  DropText({2, 2}, "KK", false);
  EXPECT_EQ(GridText(), TextWith("AA", "AKs")) << "beside the grid";
  QMimeData picture;
  picture.setImageData(QImage(2, 2, QImage::Format_RGB32));
  Drop(MiddleOf("72o"), picture, false);
  EXPECT_EQ(GridText(), TextWith("AA", "AKs"));
}

// ---- whole grids

TEST_F(PaintingTest, WholeGridsSelectAsAClickDoes) {
  for (const bool half : {false, true}) {
    if (half) Click("chkHalf");
    const auto share = [half](const char* full, const char* halved) { return half ? halved : full; };
    Choose("Everything");
    EXPECT_EQ(GridText(), EveryHandAt(half ? 0.5 : 1));
    EXPECT_EQ(Share(), share("100% selected", "50% selected"));
    Choose("Clear");
    EXPECT_EQ(GridText(), EveryHandAt(0));
    EXPECT_EQ(Summary(), "[None]");
    Choose("Invert");
    EXPECT_EQ(GridText(), EveryHandAt(half ? 0.5 : 1));
    Choose("Invert");
    EXPECT_EQ(GridText(), EveryHandAt(0));
    ExpectInputBox(kShareQuestion, "1%");
    Choose("Top x%...");
    VerifyExpectedBoxes();
    ComeToFront();
    EXPECT_EQ(GridText(), half ? TextWith("", "AA AKs AQs") : TextWith("AA AKs AQs"));
  }
}

TEST_F(PaintingTest, AShareThatIsNoneIsRefusedAndCancelIsSilent) {
  Cell("22");
  ExpectInputBoxCancelled(kShareQuestion);
  Choose("Top x%...");
  VerifyExpectedBoxes();
  ComeToFront();
  ExpectInputBox(kShareQuestion, "15, AKs");
  ExpectMessageBox({.title = "Top x%",
                    .text = "A share is a number from 0 to 100, such as 15 or 12.5.",
                    .icon = MessageIcon::kExclamation});
  Choose("Top x%...");
  VerifyExpectedBoxes();
  EXPECT_EQ(GridText(), TextWith("22"));
}

TEST_F(PaintingTest, ShiftIsNotReadAndStaysForTheNextClick) {
  ShiftDown();
  CopyToClipboard("KQs");
  Choose("Paste");
  EXPECT_EQ(GridText(), TextWith("KQs")) << "no sweep";
  Cell("QQ");
  EXPECT_EQ(GridText(), TextWith("AA KK QQ KQs")) << "a sweep";
  ShiftUp();
}

TEST_F(PaintingTest, AScreenReaderHearsWhatIsSelectedThen) {
  const HeardAnnouncements heard;
  Paste("AA");
  Choose("Everything");
  Undo();
  PressControl(Qt::Key_C);
  EXPECT_THAT(heard.Texts(), ElementsAre("0.5% selected", "100% selected", "0.5% selected", "Copied."));
}

// ---- steps

TEST_F(PaintingTest, StepsGoBackAndForth) {
  Cell("AA");
  ShiftDown();
  Cell("AJs");
  ShiftUp();
  Click("chkHalf");
  Cell("AJs");
  Cell("AJs");
  Paste("22");
  Choose("Clear");
  Choose("Clear");  // no step: it is already clear
  const std::vector<std::string> steps = {"", "22", "AA AKs AQs|AJs", "AA AKs AQs", "AA AKs AQs AJs", "AA", ""};
  const auto text = [](const std::string& step) {
    const auto bar = step.find('|');
    return bar == std::string::npos ? TextWith(step) : TextWith(step.substr(0, bar), step.substr(bar + 1));
  };
  for (std::size_t i = 0; i < steps.size(); ++i) {
    EXPECT_EQ(GridText(), text(steps[i])) << i;
    if (i + 1 < steps.size()) Undo();
  }
  Undo();
  EXPECT_EQ(GridText(), TextWith("")) << "there is no step before";
  for (std::size_t i = steps.size() - 1; i-- > 0;) {
    Redo();
    EXPECT_EQ(GridText(), text(steps[i])) << i;
  }
  EXPECT_EQ(Share(), "0% selected");
  Choose("Undo");
  EXPECT_EQ(Summary(), "22");
  Cell("33");
  Redo();
  EXPECT_EQ(GridText(), TextWith("22", "33")) << "a click ends redoing";
}

TEST_F(PaintingTest, AProposalIsOneStep) {
  Cell("22");
  Form().Propose(std::vector<std::int16_t>{0, 14, 168});
  EXPECT_EQ(GridText(), TextWith("AA KK"));
  Controls().Get<QPushButton>("cmdOK").setFocus();
  Undo();
  EXPECT_EQ(GridText(), TextWith("22"));
  Redo();
  EXPECT_EQ(GridText(), TextWith("AA KK"));
}

// ---- the Range Manager

class ManagerPaintingTest : public PaintedForm<ManagerForm> {
 protected:
  ManagerPaintingTest() {
    Stage.Program.Write("Loose.txt", RangeWith({{"AA", 1}, {"QQ", 0.25}, {"22", 0.5}}));
    Stage.OpenManager();
  }
  void Select(std::string_view name) const { Form().RangeList().SelectEntry(name); }
};

TEST_F(ManagerPaintingTest, KeysAreHeardWhileTheListHasTheFocus) {
  Controls().Get<QListWidget>("lstRanges").setFocus();
  PressControl(Qt::Key_C);
  EXPECT_EQ(Clipboard(), "AA,AKs:0.5");
  Paste("KK");
  EXPECT_EQ(GridText(), TextWith("KK"));
  EXPECT_EQ(Share(), "0.5% selected");
  EXPECT_EQ(Summary(), "KK");
  Undo();
  EXPECT_EQ(GridText(), TextWith("AA", "AKs"));
}

TEST_F(ManagerPaintingTest, APasteIsAChangeThatOkAsksAboutUnlessItIsUndone) {
  Paste("KK");
  EXPECT_EQ(Stage.FileText("Button Shove"), TextWith("AA", "AKs"));
  ExpectMessageBox(AskToSave("Button Shove"), MessageAnswer::kCancel);
  Click("cmdOK");
  VerifyExpectedBoxes();
  ComeToFront();
  Undo();
  Click("cmdOK");
  EXPECT_TRUE(IsClosed()) << "closed without a question";
}

TEST_F(ManagerPaintingTest, WhatShowsARangeForgetsTheSteps) {
  for (const bool another : {true, false}) {
    Paste("KK");
    if (another) {
      Select("Tight");
    } else {
      Stage.Dialogs.RefreshLists();
    }
    const std::string shown = GridText();
    Undo();
    EXPECT_EQ(GridText(), shown);
    Redo();
    EXPECT_EQ(GridText(), shown);
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
  EXPECT_THAT(heard.Texts(), ElementsAre(note)) << "the same range is not news";
  Form().hide();
  Stage.OpenManager();
  EXPECT_THAT(heard.Texts(), ElementsAre(note, note)) << "it opens with that range";

  ExpectMessageBox(Saved("Loose"));
  Click("imgSave");
  VerifyExpectedBoxes();
  EXPECT_EQ(tip("AA"), "") << "now they are gone";
}

}  // namespace
}  // namespace quillon
