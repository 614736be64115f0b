#include "toolkit/focus_mark.h"

#include <QImage>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTest>
#include <algorithm>
#include <gtest/gtest.h>

#include "testing/bring_to_front.h"
#include "toolkit/colors.h"
#include "toolkit/frame.h"
#include "toolkit/label.h"
#include "toolkit/picture.h"
#include "toolkit/placement.h"
#include "toolkit/shape.h"
#include "toolkit/text_box.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

class FocusMarkTest : public testing::Test {
 public:
  FocusMarkTest() {
    form.resize(400, 400);
    frame.setGeometry(0, 0, 400, 400);
    link.SetPlace(QRect(20, 20, 100, 20));
    link.SetText(QStringLiteral("Preflop Call"));
    picture.setGeometry(20, 60, 100, 30);
    memo.setGeometry(20, 110, 100, 40);
    list.setGeometry(20, 170, 100, 40);
    link.SetUse(ControlUse::kLink);
    picture.SetUse(ControlUse::kFocusLink);
    BringToFront(form);
    form.setFocus();
  }

  void Press(Qt::Key key) { QTest::keyClick(form.windowHandle(), key); }
  void Click(const QWidget& control) {
    QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, control.geometry().center());
  }
  [[nodiscard]] QImage Look() { return form.grab().toImage(); }

  QWidget form;
  Frame frame{&form};
  Label link{&frame};
  Picture picture{&frame};
  QPlainTextEdit memo{&frame};
  QListWidget list{&frame};
  FocusMark mark{form};
};

TEST_F(FocusMarkTest, GoesRoundWhateverTheKeyboardReaches) {
  for (QWidget* control : std::initializer_list<QWidget*>{&link, &picture, &memo, &list}) {
    control->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(mark.isVisible());
    EXPECT_EQ(mark.geometry(), control->geometry().adjusted(-3, -3, 3, 3));
  }
  form.setFocus(Qt::TabFocusReason);
  EXPECT_FALSE(mark.isVisible()) << "the window itself has no mark";
}

TEST_F(FocusMarkTest, StandsOutFromEveryColour) {
  link.setFocus(Qt::TabFocusReason);
  const QRect place = mark.geometry();
  for (int red = 0; red <= 255; red += 51) {
    for (int green = 0; green <= 255; green += 51) {
      for (int blue = 0; blue <= 255; blue += 51) {
        const QColor ground(red, green, blue);
        frame.SetBackColor(ground);
        const QImage look = Look();
        double best = 0;
        for (int depth = 0; depth < 3; ++depth)
          best = std::max(best, ContrastRatio(FromColor(look.pixelColor(place.left() + depth, place.center().y())),
                                              FromColor(ground)));
        EXPECT_GE(best, 3) << qPrintable(ground.name());
      }
    }
  }
}

TEST_F(FocusMarkTest, GoesThroughNoLetter) {
  const QRect letters = link.geometry();
  const QImage before = Look().copy(letters);
  link.setFocus(Qt::TabFocusReason);
  ASSERT_TRUE(mark.isVisible());
  EXPECT_EQ(Look().copy(letters), before);
}

TEST_F(FocusMarkTest, DoesNotComeFromTheMouse) {
  Click(picture);
  ASSERT_EQ(form.focusWidget(), &picture);
  EXPECT_FALSE(mark.isVisible());
}

TEST_F(FocusMarkTest, ComesWithAFocusThatIsGivenInAnswerToAKey) {
  QObject::connect(&link, &Control::Clicked, &form, [this] { list.setFocus(Qt::OtherFocusReason); });
  for (const bool byKey : {true, false, true}) {
    link.setFocus(Qt::TabFocusReason);
    if (byKey) {
      Press(Qt::Key_Return);
    } else {
      Click(link);
    }
    ASSERT_EQ(form.focusWidget(), &list);
    EXPECT_EQ(mark.isVisible(), byKey);
  }
}

TEST_F(FocusMarkTest, ComesWithAWindowThatAKeyHasOpened) {
  for (const bool byKey : {true, false}) {
    QWidget dialog;
    QListWidget first(&dialog);
    FocusMark itsMark(dialog);
    first.setFocus();
    const auto open = QObject::connect(&link, &Control::Clicked, &dialog, [&dialog] {
      dialog.show();
      dialog.activateWindow();
    });
    BringToFront(form);
    link.setFocus(Qt::TabFocusReason);
    if (byKey) {
      Press(Qt::Key_Return);
    } else {
      Click(link);
    }
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    EXPECT_EQ(itsMark.isVisible(), byKey);
    QObject::disconnect(open);
  }
}

TEST_F(FocusMarkTest, ReturnsWithTheWindow) {
  for (const bool marked : {true, false}) {
    if (marked) {
      picture.setFocus(Qt::TabFocusReason);
    } else {
      form.setFocus();
      Click(picture);
    }
    ASSERT_EQ(mark.isVisible(), marked);
    QWidget other;
    BringToFront(other);
    EXPECT_FALSE(mark.isVisible());
    BringToFront(form);
    EXPECT_EQ(mark.isVisible(), marked);
  }
}

TEST_F(FocusMarkTest, FollowsItsControlAndStaysInFront) {
  link.setFocus(Qt::TabFocusReason);
  frame.move(30, 30);
  EXPECT_EQ(mark.geometry(), QRect(47, 47, 106, 26));
  frame.raise();
  EXPECT_EQ(form.childAt(48, 48), &frame) << "the mouse goes through it";
  EXPECT_EQ(form.children().last(), &mark) << "and it is in front";
  frame.hide();
  EXPECT_FALSE(mark.isVisible());
}

TEST_F(FocusMarkTest, LeavesThePanelOfItsWindowWhole) {
  Frame panel(&frame);
  panel.SetBackColor(Qt::red);
  panel.setGeometry(20, 40, 60, 60);
  mark.StayBehind(panel);
  link.setFocus(Qt::TabFocusReason);
  panel.raise();
  const QImage marked = Look();
  EXPECT_NE(marked.pixelColor(30, 41), QColor(Qt::red));
  panel.show();
  for (const QPoint& place : {QPoint(20, 40), QPoint(120, 60)}) {
    panel.move(place);
    const QImage look = Look();
    EXPECT_EQ(look.copy(panel.geometry()), panel.grab().toImage());
    EXPECT_EQ(look.pixel(18, 30), marked.pixel(18, 30)) << "the rest of the mark stays";
  }
  EXPECT_EQ(Look().pixel(30, 41), marked.pixel(30, 41));
  panel.hide();
  EXPECT_EQ(Look(), marked);
}

TEST_F(FocusMarkTest, ReturnsToWhatHadTheFocusBeforeNobodyHadIt) {
  for (const bool marked : {true, false}) {
    form.setFocus(Qt::OtherFocusReason);
    picture.setFocus(marked ? Qt::TabFocusReason : Qt::MouseFocusReason);
    form.setFocus(Qt::OtherFocusReason);
    EXPECT_FALSE(mark.isVisible());
    picture.setFocus(Qt::ActiveWindowFocusReason);
    EXPECT_EQ(mark.isVisible(), marked);
  }
}

TEST_F(FocusMarkTest, StaysInTheWindow) {
  picture.setGeometry(297, 60, 100, 30);
  picture.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(mark.geometry(), QRect(294, 57, 106, 36));
}

TEST_F(FocusMarkTest, LiesInTheMarginOfATextWithoutAFrame) {
  memo.setFrameShape(QFrame::NoFrame);
  memo.setReadOnly(true);
  memo.setPlainText(QStringLiteral("Pot Size: 150"));
  for (const double scale : {0.75, 1.0, 1.5, 3.0}) {
    ShowAtScale(scale);
    form.setFocus();
    memo.document()->setDocumentMargin(LinePixels(4));
    const int margin = LinePixels(4);
    const QRect text = memo.geometry().adjusted(margin, margin, -margin, -margin);
    const QImage before = Look();
    memo.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(mark.geometry(), memo.geometry()) << scale;
    EXPECT_EQ(Look().copy(text), before.copy(text)) << "not through its letters at " << scale;
    EXPECT_NE(Look(), before) << scale;
  }
  ShowAtScale(1);
}

TEST_F(FocusMarkTest, GoesRoundAWholeCell) {
  Shape square(ControlKind::kShape, &frame);
  square.setGeometry(16, 14, 108, 30);
  link.SetMarkedPlace(square);
  link.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(mark.geometry(), square.geometry().adjusted(-3, -3, 3, 3));
}

TEST_F(FocusMarkTest, LeavesABoxThatItsFormMarksToTheForm) {
  TextBox amount(&frame);
  TextBox name(&frame);
  name.setFrame(true);
  for (TextBox* box : {&amount, &name}) {
    box->show();
    box->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(mark.isVisible(), box == &name);
  }
}

}  // namespace
}  // namespace quillon
