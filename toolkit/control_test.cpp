#include "toolkit/control.h"

#include <QDialog>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>
#include <gtest/gtest.h>

#include "testing/bring_to_front.h"
#include "testing/expected_boxes.h"
#include "toolkit/frame.h"
#include "toolkit/label.h"
#include "toolkit/shape.h"
#include "toolkit/text_box.h"

namespace quillon {
namespace {

// A text box and one control of each use, on a frame that fills a form. Events go through the window, so geometry and
// focus decide who gets them.
class ControlTest : public testing::Test {
 public:
  ControlTest() {
    form.resize(400, 300);
    frame.setGeometry(0, 0, 400, 300);
    box.setGeometry(10, 10, 100, 20);
    Place(passive, ControlUse::kPassive, 40);
    Place(link, ControlUse::kLink, 70);
    Place(focusLink, ControlUse::kFocusLink, 100);
    Place(plainLink, ControlUse::kPlainLink, 130);
    BringToFront(form);
    box.setFocus();
  }

  void Press(const QWidget& control) const { QTest::mousePress(Window(), Qt::LeftButton, {}, MiddleOf(control)); }
  void Release(const QPoint& point) const { QTest::mouseRelease(Window(), Qt::LeftButton, {}, point); }
  void Click(const QWidget& control, Qt::MouseButton button = Qt::LeftButton) const {
    QTest::mouseClick(Window(), button, {}, MiddleOf(control));
  }
  void Key(Qt::Key key) const { QTest::keyClick(Window(), key); }
  [[nodiscard]] QWindow* Window() const { return form.windowHandle(); }
  [[nodiscard]] QPoint MiddleOf(const QWidget& control) const { return control.mapTo(&form, control.rect().center()); }

  QWidget form;
  Frame frame{&form};
  TextBox box{&frame};
  Label passive{&frame};
  Label link{&frame};
  Label focusLink{&frame};
  Label plainLink{&frame};

 private:
  static void Place(Label& label, ControlUse use, int top) {
    label.SetPlace(QRect(10, top, 100, 20));
    label.SetUse(use);
  }
};

TEST_F(ControlTest, IsClickedWithPressAndReleaseOverIt) {
  const QSignalSpy clicks(&link, &Control::Clicked);
  const QSignalSpy presses(&link, &Control::Pressed);
  const QSignalSpy releases(&link, &Control::Released);

  Press(link);
  EXPECT_EQ(presses.count(), 1);
  EXPECT_EQ(clicks.count(), 0);
  Release(MiddleOf(link));
  EXPECT_EQ(releases.count(), 1);
  EXPECT_EQ(clicks.count(), 1);
}

TEST_F(ControlTest, IsNotClickedWhereTheMouseLeavesItBeforeTheRelease) {
  const QSignalSpy clicks(&link, &Control::Clicked);
  const QSignalSpy otherClicks(&focusLink, &Control::Clicked);
  const QSignalSpy releases(&link, &Control::Released);

  Press(link);
  Release(MiddleOf(focusLink));

  EXPECT_EQ(releases.count(), 1);
  EXPECT_EQ(clicks.count(), 0);
  EXPECT_EQ(otherClicks.count(), 0);
}

TEST_F(ControlTest, HearsTheLeftButtonOnly) {
  const QSignalSpy clicks(&link, &Control::Clicked);
  const QSignalSpy presses(&link, &Control::Pressed);

  Click(link, Qt::RightButton);
  Click(link, Qt::MiddleButton);

  EXPECT_EQ(presses.count(), 0);
  EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ControlTest, CountsADoubleClickAsTwo) {
  const QSignalSpy clicks(&link, &Control::Clicked);

  QTest::mouseDClick(Window(), Qt::LeftButton, {}, MiddleOf(link));

  EXPECT_EQ(clicks.count(), 2);
}

TEST_F(ControlTest, IsClickedThroughAShapeThatLiesOverIt) {
  Shape shape(ControlKind::kRoundedShape, &frame);
  shape.SetFill(Qt::red);
  shape.setGeometry(0, 0, 400, 300);
  shape.show();
  const QSignalSpy clicks(&link, &Control::Clicked);

  Click(link);

  EXPECT_EQ(clicks.count(), 1);
}

TEST_F(ControlTest, HearsTheMouseMoveAndTheFrameBehindItDoesNot) {
  QTest::mouseMove(Window(), QPoint(300, 200));
  const QSignalSpy moves(&passive, &Control::MouseMoved);
  const QSignalSpy frameMoves(&frame, &Control::MouseMoved);

  QTest::mouseMove(Window(), MiddleOf(passive));
  EXPECT_EQ(moves.count(), 1);
  EXPECT_EQ(frameMoves.count(), 0);

  QTest::mouseMove(Window(), QPoint(300, 250));
  EXPECT_EQ(moves.count(), 1);
  EXPECT_EQ(frameMoves.count(), 1);
}

TEST_F(ControlTest, ShowsTheHandWhereItIsALink) {
  EXPECT_EQ(passive.cursor().shape(), Qt::ArrowCursor);
  EXPECT_EQ(link.cursor().shape(), Qt::PointingHandCursor);
  EXPECT_EQ(focusLink.cursor().shape(), Qt::PointingHandCursor);
  EXPECT_EQ(plainLink.cursor().shape(), Qt::ArrowCursor);

  link.SetUse(ControlUse::kPassive);
  EXPECT_EQ(link.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ControlTest, LeavesTheFocusInTheBoxThatIsBeingTypedIntoUnlessItIsAskedTo) {
  for (const Label* control : {&passive, &link, &plainLink}) {
    Click(*control);
    EXPECT_TRUE(box.hasFocus());
  }
  Click(focusLink);
  EXPECT_TRUE(focusLink.hasFocus()) << "asked to";
}

TEST_F(ControlTest, IsReachedByTabWhereItCanBeClicked) {
  for (const Label* next : {&link, &focusLink, &plainLink}) {
    Key(Qt::Key_Tab);
    EXPECT_TRUE(next->hasFocus());
  }
  Key(Qt::Key_Tab);
  EXPECT_TRUE(box.hasFocus());
  link.SetUse(ControlUse::kPassive);
  Key(Qt::Key_Tab);
  EXPECT_TRUE(focusLink.hasFocus()) << "the other one is no longer clickable";
}

TEST_F(ControlTest, IsClickedByEnterAndSpaceOnceEach) {
  const QSignalSpy clicks(&link, &Control::Clicked);
  link.setFocus(Qt::TabFocusReason);

  int count = 0;
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    Key(key);
    EXPECT_EQ(clicks.count(), ++count);
  }
  Key(Qt::Key_A);
  Key(Qt::Key_Escape);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
  QCoreApplication::sendEvent(&link, &held);
  link.SetUse(ControlUse::kPassive);
  QTest::keyClick(&link, Qt::Key_Return);
  EXPECT_EQ(clicks.count(), count);
}

TEST_F(ControlTest, IsNotClickedByAReleaseOfAPressFromElsewhere) {
  const QSignalSpy clicks(&link, &Control::Clicked);
  QTest::mouseRelease(&link, Qt::LeftButton);
  EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ControlTest, TellsThatTheKeyboardReachedItButNotThatTheMouseDid) {
  const QSignalSpy byKeyboard(&link, &Control::FocusReached);
  const QSignalSpy byMouse(&focusLink, &Control::FocusReached);

  Key(Qt::Key_Tab);
  EXPECT_EQ(byKeyboard.count(), 1);
  Click(focusLink);
  EXPECT_EQ(byMouse.count(), 0);
}

// Losing the focus may open a box, which then takes the press; the button must not stay down.
TEST_F(ControlTest, IsNotPressedWhereABoxComesUpInBetween) {
  const QSignalSpy presses(&focusLink, &Control::Pressed);
  const QSignalSpy clicks(&focusLink, &Control::Clicked);
  const auto complain = QObject::connect(&box, &TextBox::FocusLost, &form, [] { QDialog().exec(); });
  for (const bool over : {true, false}) {
    BringToFront(form);
    box.setFocus();
    ExpectDialog([&](QDialog& dialog) {
      if (over) Release(MiddleOf(focusLink));
      dialog.accept();
    });
    if (over) {
      Press(focusLink);
    } else {
      Click(focusLink);
    }
    VerifyExpectedBoxes();
    EXPECT_EQ(presses.count(), 0);
    EXPECT_EQ(clicks.count(), 0);
    EXPECT_EQ(form.focusWidget(), &focusLink);
  }
  QObject::disconnect(complain);
  BringToFront(form);
  Click(focusLink);
  EXPECT_EQ(clicks.count(), 1);
}

TEST_F(ControlTest, IsNotUnderTheMouseOnceItsScreenIsGone) {
  QTest::mouseMove(Window(), QPoint(300, 200));
  QTest::mouseMove(Window(), MiddleOf(link));
  EXPECT_TRUE(link.underMouse());

  frame.hide();

  EXPECT_FALSE(link.underMouse());
}

}  // namespace
}  // namespace quillon
