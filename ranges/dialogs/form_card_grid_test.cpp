#include "toolkit/form_card_grid.h"

#include <QAccessible>
#include <QCheckBox>
#include <gtest/gtest.h>
#include <vector>

#include "ranges/range_text.h"
#include "testing/dialog_stage.h"
#include "toolkit/colors.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

class FormCardGridTest : public DialogFormTest<NewRangeForm> {
 protected:
  FormCardGridTest() { Stage.OpenNewRange(); }

  [[nodiscard]] Rgb CaptionColor(std::string_view label) const {
    return FromColor(Form().Controls().LabelAt("lblCards", HandIndex(label)).TextColor());
  }
  [[nodiscard]] Qt::CheckState State(std::string_view label) const {
    Label& cell = Form().Controls().LabelAt("lblCards", HandIndex(label));
    const QAccessible::State state = QAccessible::queryAccessibleInterface(&cell)->state();
    if (state.checkStateMixed) return Qt::PartiallyChecked;
    return state.checked ? Qt::Checked : Qt::Unchecked;
  }
};

TEST_F(FormCardGridTest, CellsStandBesideEachOtherInsideTheFittedFrame) {
  const FormCardGrid& grid = Form().Grid();
  EXPECT_EQ(grid.SquarePlace(0), (TwipRect{1360, 940, 405, 405}));
  EXPECT_EQ(grid.SquarePlace(14), (TwipRect{1790, 1370, 405, 405}));
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    EXPECT_EQ(Form().Controls().ShapeAt("shapeCardBack", index).geometry(), PixelPlace(grid.SquarePlace(index)));
    EXPECT_EQ(Form().Controls().LabelAt("lblCards", index).Text(), ToQt(HandLabel(index)));
  }
  const Shape& frame = Form().Controls().ShapeAt("shapeBlue");
  EXPECT_EQ(frame.geometry(), PixelPlace({1260, 840, 5765, 5765}));
  EXPECT_FALSE(frame.isVisible());
}

TEST_F(FormCardGridTest, EveryCellCanBeClickedOnItsCaptionAndOnItsEdge) {
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const QRect square = Form().Controls().ShapeAt("shapeCardBack", index).geometry();
    QTest::mouseClick(Form().windowHandle(), Qt::LeftButton, {}, square.center() + QPoint(0, 4));
  }
  EXPECT_EQ(GridText(), EveryHandAt(1));
}

TEST_F(FormCardGridTest, AClickSelectsAndAFurtherOneClears) {
  Cell("AKs");
  EXPECT_EQ(GridText(), TextWith("AKs"));
  EXPECT_EQ(CaptionColor("AKs"), kCaptionOnFullColor);
  Cell("AKs");
  EXPECT_EQ(GridText(), TextWith(""));
  EXPECT_EQ(CaptionColor("AKs"), kCaptionColor);
}

TEST_F(FormCardGridTest, HalfWeightFollowsTheCheckBoxAndNeverTurnsToFull) {
  Cell("KK");
  Click("chkHalf");
  Cell("AA");
  EXPECT_EQ(GridText(), TextWith("KK", "AA"));
  EXPECT_EQ(CaptionColor("AA"), kCaptionColor);
  Cell("AA");
  Cell("KK");
  EXPECT_EQ(GridText(), TextWith(""));
}

TEST_F(FormCardGridTest, TheFirstClickUnderAShiftPressSweepsAndTheSecondDoesNot) {
  ShiftDown();
  Cell("AJs");
  EXPECT_EQ(GridText(), TextWith("AKs AQs AJs"));
  Cell("88");
  EXPECT_EQ(GridText(), TextWith("AKs AQs AJs 88"));
  ShiftUp();
  ShiftDown();
  Cell("AJs");
  EXPECT_EQ(GridText(), TextWith("88"));
  ShiftUp();
}

TEST_F(FormCardGridTest, ARepeatOfAHeldShiftKeyIsNoNewPress) {
  ShiftDown();
  Cell("AJs");
  QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Shift, Qt::ShiftModifier, QString(), true);
  QCoreApplication::sendEvent(&Form(), &repeat);
  Cell("A5s");
  EXPECT_EQ(GridText(), TextWith("AKs AQs AJs A5s"));
  ShiftUp();
}

// From a source without times, such as a keyboard on the screen.
TEST_F(FormCardGridTest, EachOfTheTwoShiftKeysIsAPress) {
  const auto press = [this](quint32 scanCode, quint32 symbol) {
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Shift, Qt::ShiftModifier, scanCode, symbol, 0);
    QCoreApplication::sendEvent(&Form(), &event);
  };
  Stage.ShiftHeld = true;
  press(0x2A, 0xFFE1);
  Cell("AJs");
  press(0x36, 0xFFE2);
  Cell("QQ");
  EXPECT_EQ(GridText(), TextWith("AA KK QQ AKs AQs AJs"));
}

// Both Shift keys: one pressed while another program had the keyboard and still held, and one pressed and released
// here. The window system's event reaches the window and then the control in it.
TEST_F(FormCardGridTest, AReleaseThatComesTwiceIsOneRelease) {
  const auto send = [this](QEvent::Type type, quint64 when) {
    for (int i = 0; i < 2; ++i) {
      QKeyEvent event(type, Qt::Key_Shift, Qt::ShiftModifier);
      event.setTimestamp(when);
      QCoreApplication::sendEvent(&Form(), &event);
    }
  };
  Stage.ShiftHeld = true;
  Cell("AJs");
  EXPECT_EQ(GridText(), TextWith("AKs AQs AJs"));
  send(QEvent::KeyPress, 1000);
  Cell("QQ");
  EXPECT_EQ(GridText(), TextWith("AA KK QQ AKs AQs AJs"));
  send(QEvent::KeyRelease, 2000);
  Cell("A5s");
  EXPECT_EQ(GridText(), TextWith("AA KK QQ AKs AQs AJs A5s")) << "the held press has been used up";
}

TEST_F(FormCardGridTest, ArrowKeysGoFromCellToCellAndEnterOrSpacePressesIt) {
  Form().Controls().LabelAt("lblCards", 0).setFocus(Qt::TabFocusReason);
  Press(Qt::Key_Right);
  Press(Qt::Key_Down);
  Press(Qt::Key_Space);
  EXPECT_EQ(GridText(), TextWith("KK"));
  Press(Qt::Key_Left);
  Press(Qt::Key_Return);
  EXPECT_EQ(GridText(), TextWith("KK AKo"));
  Press(Qt::Key_Up);
  Press(Qt::Key_Enter);
  EXPECT_EQ(GridText(), TextWith("AA KK AKo"));
}

TEST_F(FormCardGridTest, TabComesBackToTheCellItLeft) {
  Form().Controls().LabelAt("lblCards", 0).setFocus(Qt::TabFocusReason);
  Press(Qt::Key_Right);
  Press(Qt::Key_Tab);
  EXPECT_EQ(Form().focusWidget()->objectName(), QStringLiteral("txtRangeAbbr"));
  Press(Qt::Key_Backtab);
  EXPECT_EQ(Form().focusWidget()->objectName(), QStringLiteral("lblCards(1)"));
}

TEST_F(FormCardGridTest, AScreenReaderLearnsWhatTheColourTells) {
  EXPECT_EQ(State("AA"), Qt::Unchecked);
  Cell("AA");
  Click("chkHalf");
  Cell("KK");
  EXPECT_EQ(State("AA"), Qt::Checked);
  EXPECT_EQ(State("KK"), Qt::PartiallyChecked);
}

}  // namespace
}  // namespace quillon
