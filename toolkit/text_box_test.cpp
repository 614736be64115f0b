#include "toolkit/text_box.h"

#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include "testing/bring_to_front.h"

namespace quillon {
namespace {

class TextBoxTest : public testing::Test {
 public:
  TextBoxTest() {
    form.resize(300, 200);
    box.setGeometry(10, 10, 100, 20);
    other.setGeometry(10, 40, 100, 20);
    other.setFocus();
    BringToFront(form);
  }

  QWidget form;
  TextBox box{&form};
  TextBox other{&form};
  QSignalSpy got{&box, &TextBox::FocusGot};
  QSignalSpy lost{&box, &TextBox::FocusLost};
};

TEST_F(TextBoxTest, TellsWhenItGetsAndLosesTheFocus) {
  QTest::mouseClick(&box, Qt::LeftButton);
  box.setFocus(Qt::MouseFocusReason);
  EXPECT_EQ(got.count(), 1);
  EXPECT_EQ(lost.count(), 0);

  QTest::keyClick(&box, Qt::Key_Tab);
  EXPECT_TRUE(other.hasFocus());
  EXPECT_EQ(got.count(), 1);
  EXPECT_EQ(lost.count(), 1);

  box.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(got.count(), 2);
}

TEST_F(TextBoxTest, StaysInTheMiddleOfItsWorkWhileAnotherWindowIsInFront) {
  box.setFocus(Qt::TabFocusReason);
  QWidget window;
  BringToFront(window);
  BringToFront(form);

  EXPECT_TRUE(box.hasFocus());
  EXPECT_EQ(got.count(), 1);
  EXPECT_EQ(lost.count(), 0);
}

TEST_F(TextBoxTest, StaysInTheMiddleOfItsWorkUnderAMenu) {
  box.setFocus(Qt::TabFocusReason);
  QMenu menu;
  menu.addAction(QStringLiteral("Copy"));
  menu.popup({});
  QCoreApplication::processEvents();
  menu.close();
  QCoreApplication::processEvents();

  EXPECT_EQ(got.count(), 1);
  EXPECT_EQ(lost.count(), 0);
}

TEST_F(TextBoxTest, CanBeLeftWhileAnotherWindowIsInFrontAndIsLeftOnce) {
  box.setFocus(Qt::TabFocusReason);
  QWidget window;
  BringToFront(window);
  other.setFocus();
  EXPECT_EQ(lost.count(), 0);

  box.Leave();
  EXPECT_EQ(lost.count(), 1);
  box.Leave();  // editing has ended already
  BringToFront(form);
  EXPECT_EQ(got.count(), 1);
  EXPECT_EQ(lost.count(), 1);
}

TEST_F(TextBoxTest, TellsOfEnterAndReturnAndOfNoOtherKey) {
  const QSignalSpy enters(&box, &TextBox::EnterPressed);

  QTest::keyClick(&box, Qt::Key_1);
  EXPECT_EQ(enters.count(), 0);
  QTest::keyClick(&box, Qt::Key_Return);
  QTest::keyClick(&box, Qt::Key_Enter);
  EXPECT_EQ(enters.count(), 2);
  EXPECT_EQ(box.text(), QStringLiteral("1"));
}

}  // namespace
}  // namespace quillon
