#include "toolkit/wheel_focus.h"

#include <QComboBox>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "testing/bring_to_front.h"

namespace quillon {
namespace {

void Roll(QWidget& list) {
  QWheelEvent wheel(QPointF(5, 5), list.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&list, &wheel);
}

class WheelFocusTest : public testing::Test {
 public:
  WheelFocusTest() {
    for (int i = 0; i < 50; ++i) {
      box.addItem(QString::number(i));
      list.addItem(QString::number(i));
    }
    list.setGeometry(0, 40, 100, 100);
    TurnByWheelWithFocusOnly(box);
    TurnByWheelWithFocusOnly(list);
    BringToFront(form);
    form.setFocus();
  }

  QWidget form;
  QComboBox box{&form};
  QListWidget list{&form};
};

TEST_F(WheelFocusTest, ChoosesNothingAndScrollsNothingWithoutIt) {
  Roll(box);
  Roll(*list.viewport());
  EXPECT_EQ(box.currentIndex(), 0);
  EXPECT_EQ(list.verticalScrollBar()->value(), 0);
  EXPECT_TRUE(form.hasFocus());
}

TEST_F(WheelFocusTest, TurnsTheListThatHasIt) {
  box.setFocus();
  Roll(box);
  EXPECT_EQ(box.currentIndex(), 1);
  list.setFocus();
  Roll(*list.viewport());
  EXPECT_GT(list.verticalScrollBar()->value(), 0);
}

}  // namespace
}  // namespace quillon
