// The study window as the main window opens it and reports analyses to it.

#include <QPushButton>
#include <gmock/gmock.h>

#include "study/window/limits_page.h"
#include "testing/main_stage.h"

namespace quillon {
namespace {

using testing::HasSubstr;
using testing::Not;

class StudyInWindow : public MainFormTest {
 protected:
  /// The window's line about its situation.
  [[nodiscard]] std::string About() const { return FromQt(Study().findChild<QLabel*>()->text()); }
  [[nodiscard]] StudyForm& Study() const { return *Form.Study().Loaded(); }
};

TEST_F(StudyInWindow, OpensByKeyAboutTheLastFinishedAnalysis) {
  EXPECT_EQ(Form.Study().Loaded(), nullptr);
  RunCall("110", "90", "Tight");
  Press(Qt::Key_T, Qt::ControlModifier);
  ASSERT_NE(Form.Study().Loaded(), nullptr);
  EXPECT_TRUE(Study().isVisible());
  EXPECT_EQ(About(), "Preflop Call: pot 110, 90 to call; he plays \"Tight\"");
  EXPECT_TRUE(Form.isEnabled());

  ComeToFront();
  RunRaise("150", "50", "400", "Everything", "Tight");
  EXPECT_THAT(About(), HasSubstr("Preflop Call")) << "it keeps its own";
  Press(Qt::Key_T, Qt::ControlModifier);
  EXPECT_THAT(About(), HasSubstr("Preflop Call")) << "and reopens unchanged";
  Study().close();
  ComeToFront();
  Press(Qt::Key_T, Qt::ControlModifier);
  EXPECT_THAT(About(), HasSubstr("Preflop Raise")) << "an opened window is about the last analysis";
}

TEST_F(StudyInWindow, IsAboutTheResultsThatAreAskedAbout) {
  RunCall("110", "90", "Tight");
  Press(Qt::Key_T, Qt::ControlModifier);
  ComeToFront();
  RunRaise("150", "50", "400", "Everything", "Tight");
  Form.ShowStudy(StudyTopic::kLimits, HandIndex("T9s"));
  EXPECT_THAT(About(), HasSubstr("Preflop Raise"));
  EXPECT_EQ(FromQt(Study().focusWidget()->accessibleName()), "T9s");
}

// Asking about another hand, or closing the window, loses nothing that was typed on another page.
TEST_F(StudyInWindow, KeepsWhatWasTypedAboutTheSameAnalysis) {
  RunRaise("150", "50", "400", "Everything", "Tight");
  Form.ShowStudy(StudyTopic::kBalanced);
  auto* const pot = Study().Page(StudyTopic::kBalanced)->findChild<QLineEdit*>();
  ASSERT_NE(pot, nullptr);
  pot->setText(QStringLiteral("175"));
  Form.ShowStudy(StudyTopic::kHowFar, HandIndex("K9o"));
  Study().close();
  ComeToFront();
  Press(Qt::Key_T, Qt::ControlModifier);
  Form.ShowStudy(StudyTopic::kBalanced);
  EXPECT_EQ(FromQt(pot->text()), "175");
  RunRaise("150", "50", "300", "Everything", "Tight");
  Form.ShowStudy(StudyTopic::kBalanced);
  EXPECT_EQ(FromQt(pot->text()), "150") << "another situation has amounts of its own";
}

// An offer is for the last finished analysis, even if it finished while the window was closed.
TEST_F(StudyInWindow, OffersNothingWhereItIsAboutTheLastAnalysis) {
  RunCall("110", "90", "Tight");
  Press(Qt::Key_T, Qt::ControlModifier);
  ComeToFront();
  RunCall("110", "80", "Tight");
  const QPushButton* const follow = Study().findChild<QPushButton*>();
  EXPECT_TRUE(follow->isVisible());
  Study().close();
  ComeToFront();
  RunCall("110", "90", "Tight");
  Press(Qt::Key_T, Qt::ControlModifier);
  EXPECT_THAT(About(), HasSubstr("90 to call"));
  EXPECT_FALSE(follow->isVisible());
}

TEST_F(StudyInWindow, HearsOfNoRunThatWasStopped) {
  RunCall("110", "90", "Tight");
  DuringRun("50%", [this] { Press(Qt::Key_Escape); });
  RunCall("110", "80", "Tight");
  Press(Qt::Key_T, Qt::ControlModifier);
  EXPECT_THAT(About(), HasSubstr("90 to call"));
}

TEST_F(StudyInWindow, SavesTheRangeToCallWithAndChoosesIt) {
  RunRaise("150", "50", "400", "Everything", "Tight");
  Form.ShowStudy(StudyTopic::kBalanced);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Study()));
  QPushButton* save = nullptr;
  for (QPushButton* button : Study().findChildren<QPushButton*>()) {
    if (button->text() == QStringLiteral("Save his range...")) save = button;
  }
  ASSERT_NE(save, nullptr);
  ASSERT_TRUE(QTest::qWaitFor([&] { return save->isEnabled(); }));
  ExpectInputBox({"What do you want to call the new range?", "Pick a Name", "Balanced call"}, "His best");
  ExpectMessageBox({.title = "Quillon",
                    .text = "The range \"His best\" was saved successfully!",
                    .icon = MessageIcon::kInformation,
                    .buttons = MessageButtons::kOk});
  save->setFocus(Qt::TabFocusReason);
  QTest::keyClick(Study().windowHandle(), Qt::Key_Space);
  EXPECT_EQ(FromQt(Get<QComboBox>("cmboRanges", 2).currentText()), "His best");
  EXPECT_EQ(FromQt(Get<QComboBox>("cmboRanges", 1).currentText()), "Everything");
}

TEST_F(StudyInWindow, HasItsPlaceStoredWhenTheMainWindowCloses) {
  Press(Qt::Key_T, Qt::ControlModifier);
  Study().resize(1000, 700);
  ComeToFront();
  Press(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_EQ(Ends, 1);
  EXPECT_THAT(Settings(), HasSubstr("[Study]"));
  EXPECT_THAT(Settings(), HasSubstr("Width=15000\r\n"));
}

TEST_F(StudyInWindow, HasItsPlaceStoredOnceWhereItWasClosedBefore) {
  Press(Qt::Key_T, Qt::ControlModifier);
  Study().close();
  EXPECT_THAT(Settings(), HasSubstr("[Study]"));
  WriteSettings("");
  ComeToFront();
  Press(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_THAT(Settings(), Not(HasSubstr("[Study]")));
}

TEST_F(StudyInWindow, LeavesTheSettingsAloneWhereItWasNeverOpen) {
  Press(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_THAT(Settings(), Not(HasSubstr("[Study]")));
}

}  // namespace
}  // namespace quillon
