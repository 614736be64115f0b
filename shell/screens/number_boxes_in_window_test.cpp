#include <array>

#include "testing/main_stage.h"

namespace quillon {
namespace {

const Message kProblem = {.title = "Problem",
                          .text =
                              "There was a problem processing your expression: \r\n\r\n"
                              "Only addition (+) and subtract (-) are supported",
                          .icon = MessageIcon::kInformation};

using NumberBoxesInWindow = MainFormTest;

TEST_F(NumberBoxesInWindow, ASumIsWorkedOutAtEnterAndWhenTheBoxIsLeft) {
  Open(kCallNav);
  for (const auto& [typed, becomes] : std::vector<std::pair<std::string_view, std::string_view>>{
           {"=735+220-178", "777"}, {"=", "0"}, {"12.50", "12.50"}, {"35 dollars", "35 dollars"}, {"", ""}}) {
    Type(0, typed);
    EXPECT_EQ(BoxText(0), typed) << "it stays while it is typed";
    Press(Qt::Key_Return);
    EXPECT_EQ(BoxText(0), becomes);
    Type(1, typed);
    Press(Qt::Key_Tab);
    EXPECT_EQ(BoxText(1), becomes);
  }
}

TEST_F(NumberBoxesInWindow, ABadSumIsReportedAndStays) {
  Open(kRaiseNav);
  Type(2, "=1 + 2");
  ExpectMessageBox(kProblem);
  Press(Qt::Key_Enter);
  VerifyExpectedBoxes();
  EXPECT_EQ(BoxText(2), "=1 + 2");

  ComeToFront();
  ExpectMessageBox(kProblem);
  Press(Qt::Key_Tab);
  VerifyExpectedBoxes();
  EXPECT_EQ(BoxText(2), "=1 + 2");
  EXPECT_EQ(Form.focusWidget(), &Get("txtNumber", 3)) << "the focus has moved on";
}

TEST_F(NumberBoxesInWindow, EnterPutsTheCaretBehindTheText) {
  Open(kCallNav);
  Type(0, "=735+220-178");
  Press(Qt::Key_Home);
  Press(Qt::Key_Return);
  const auto& box = Get<QLineEdit>("txtNumber", 0);
  EXPECT_EQ(box.cursorPosition(), 3);
  EXPECT_FALSE(box.hasSelectedText());
  EXPECT_EQ(Form.focusWidget(), &box);
}

TEST_F(NumberBoxesInWindow, TheBorderIsThickWhileTheUserIsIn) {
  for (const std::int16_t link : {kCallNav, kRaiseNav}) {
    Open(link);
    const std::int16_t first = link == kCallNav ? 0 : 2;
    const std::int16_t last = link == kCallNav ? 1 : 4;
    for (std::int16_t i = first; i <= last; ++i) {
      const auto& border = Get<Shape>("ShapeBorder", i);
      EXPECT_EQ(border.LineWidth(), i == first ? 1 : 3) << "Tab goes on to the next box";
      Click("txtNumber", i);
      EXPECT_EQ(border.LineWidth(), 3) << i;
      Press(Qt::Key_Tab);
      EXPECT_EQ(border.LineWidth(), 1) << i;
    }
  }
}

TEST_F(NumberBoxesInWindow, TheMouseLeavesABoxByAnotherBoxOrList) {
  Open(kCallNav);
  Type(0, "=1+1");
  Click("txtNumber", 1);
  EXPECT_EQ(BoxText(0), "2");
  Type(1, "=2+2");
  Get<QComboBox>("cmboRanges", 0).setFocus(Qt::MouseFocusReason);
  EXPECT_EQ(BoxText(1), "4");
}

TEST_F(NumberBoxesInWindow, ARunThatEndsBehindAnotherWindowLeavesTheBox) {
  EnterEquity("Tight");
  DuringRun("50%", [this] {
    Open(kCallNav);
    Type(0, "=1+1");
    Click("lblRangeManager");
    ASSERT_TRUE(QTest::qWaitForWindowActive(Dialogs.LoadedManager()));
  });
  Click("cmdPreflopEV", 2);
  EXPECT_EQ(Screen(), "ALL IN Grid");
  EXPECT_EQ(BoxText(0), "2");
  EXPECT_EQ(Get<Shape>("ShapeBorder", 0).LineWidth(), 1);
}

TEST_F(NumberBoxesInWindow, AnyChangeHidesTheResults) {
  for (std::int16_t i = 0; i < 5; ++i) {
    SCOPED_TRACE(i);
    RunEquity("Tight");
    ASSERT_TRUE(Shows("lblNav", kGridNav));
    Open(i < 2 ? kCallNav : kRaiseNav);
    Click("txtNumber", i);
    TypeKeys("7");
    EXPECT_FALSE(Shows("lblNav", kGridNav));
    EXPECT_TRUE(Shows("lblNoResults"));
    EXPECT_EQ(Caption("lblNoResults"), "There are no results to display at this time.");
  }
}

TEST_F(NumberBoxesInWindow, TheOpponentsOddsFollowTheThirdAmountAlone) {
  const auto odds = [this] { return Caption("lblHisOdds") + ", " + Caption("lblHisBEP"); };
  EXPECT_EQ(odds(), "X:1, 0%");
  Open(kRaiseNav);
  Type(2, "100");
  Type(3, "0");
  EXPECT_EQ(odds(), "X:1, 0%");
  Type(4, "50");
  EXPECT_EQ(odds(), "3 : 1, 25%");
  Type(2, "400");
  EXPECT_EQ(odds(), "3 : 1, 25%") << "stale until the third changes";
  Type(4, "=50");
  EXPECT_EQ(odds(), "N/A, N/A") << "an unevaluated sum counts as 0";
  Press(Qt::Key_Return);
  EXPECT_EQ(odds(), "9 : 1, 10%");
}

// P + C + 2H = 0 gives odds of -1, a division by zero.
TEST_F(NumberBoxesInWindow, OddsOfMinusOneEndTheProgram) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  Open(kRaiseNav);
  Type(2, "100");
  EXPECT_EXIT(Type(4, "-50"), testing::ExitedWithCode(EXIT_FAILURE), "Run-time error '11': Division by zero");
}

}  // namespace
}  // namespace quillon
