#include "study/window/study_work.h"

#include <QElapsedTimer>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

#include "testing/bring_to_front.h"
#include "testing/heard_announcements.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

// Work of this many steps of a millisecond each.
class Work : public testing::Test {
 protected:
  Work() { Page.show(); }

  void Start(int steps) {
    Steps = 0;
    Row.Start(
        QStringLiteral("Counting"),
        [this, steps]() -> std::optional<double> {
          if (++Steps > steps) return std::nullopt;
          QTest::qSleep(1);
          return static_cast<double>(Steps) / steps;
        },
        [this] { ++Ends; });
  }

  [[nodiscard]] QPushButton& Button() const { return *Row.findChild<QPushButton*>(); }
  [[nodiscard]] QProgressBar& Bar() const { return *Row.findChild<QProgressBar*>(); }
  [[nodiscard]] std::string Text() const { return FromQt(Row.findChild<QLabel*>()->text()); }

  QWidget Page;
  StudyWork& Row = *new StudyWork(&Page);
  int Steps = 0;
  int Ends = 0;
};

TEST_F(Work, ThatEndsAtOnceShowsNothing) {
  Start(3);
  EXPECT_EQ(Ends, 1);
  EXPECT_EQ(Steps, 4);
  EXPECT_FALSE(Row.isVisible());
  EXPECT_FALSE(Row.HasWork());
}

TEST_F(Work, ThatTakesLongerShowsHowFarItIs) {
  const HeardAnnouncements heard;
  Start(200);
  EXPECT_EQ(Ends, 0);
  EXPECT_TRUE(Row.isVisible());
  EXPECT_EQ(Text(), "Counting...");
  EXPECT_EQ(Bar().accessibleName(), QStringLiteral("Counting"));
  EXPECT_THAT(heard.Texts(), testing::ElementsAre("Counting..."));
  const int before = Bar().value();
  EXPECT_GT(before, 0);
  ASSERT_TRUE(QTest::qWaitFor([&] { return Bar().value() > before; }));
  ASSERT_TRUE(QTest::qWaitFor([&] { return Ends == 1; }));
  EXPECT_FALSE(Row.isVisible());
}

TEST_F(Work, CanBeStoppedAndGoneOnWith) {
  Start(200);
  Button().click();
  EXPECT_EQ(Text(), "Stopped");
  const int steps = Steps;
  QTest::qWait(40);
  EXPECT_EQ(Steps, steps);
  Button().click();
  EXPECT_EQ(Text(), "Counting...");
  ASSERT_TRUE(QTest::qWaitFor([&] { return Ends == 1; }));
}

TEST_F(Work, IsStoppedByEscape) {
  BringToFront(Page);
  Start(200);
  for (int times = 0; times < 2; ++times) {
    QTest::keyClick(Page.windowHandle(), Qt::Key_Escape);
    EXPECT_EQ(Text(), "Stopped");
  }
}

TEST_F(Work, RestsWhileItsPageIsHidden) {
  Start(200);
  Page.hide();
  const int steps = Steps;
  QTest::qWait(40);
  EXPECT_EQ(Steps, steps);
  Page.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return Ends == 1; }));
}

TEST_F(Work, StaysStoppedWhileItsPageIsHiddenAndShownAgain) {
  Start(200);
  Button().click();
  const int steps = Steps;
  Page.hide();
  Page.show();
  QTest::qWait(40);
  EXPECT_EQ(Steps, steps);
}

TEST_F(Work, GivesWayToOtherWork) {
  Start(200);
  Button().click();
  Start(2);
  EXPECT_EQ(Ends, 1) << "the second";
  QTest::qWait(40);
  EXPECT_EQ(Steps, 3);
  EXPECT_EQ(Ends, 1);
  EXPECT_FALSE(Row.isVisible());
}

}  // namespace
}  // namespace quillon
