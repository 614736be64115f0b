#include "study/window/balanced_page.h"

#include <QTabWidget>
#include <gmock/gmock.h>

#include "ranges/range_files.h"
#include "testing/heard_announcements.h"
#include "testing/sample_analysis.h"
#include "testing/study_stage.h"

namespace quillon {
namespace {

using testing::HasSubstr;

class BalancedRanges : public StudyStage {
 protected:
  void OpenPage(const Analysis& analysis) {
    Open();
    Form.Follow(analysis);
    Form.ShowPage(StudyTopic::kBalanced);
    WaitForTheEnd();
  }

  void WaitForTheEnd() const { FinishWork(*Page().findChild<StudyWork*>()); }

  [[nodiscard]] BalancedPage& Page() const { return *Form.findChild<BalancedPage*>(); }
  [[nodiscard]] TextBox& Box(int index) const { return *Page().findChildren<TextBox*>().at(index); }
  [[nodiscard]] QCheckBox& OnlyHis() const { return *Page().findChild<QCheckBox*>(); }
  [[nodiscard]] ClassGridView& Grid(int index) const { return *Page().findChildren<ClassGridView*>().at(index); }

  void Type(int box, std::string_view text) {
    Box(box).setFocus(Qt::TabFocusReason);
    Box(box).selectAll();
    for (const char key : text)
      QTest::keyClick(&Box(box), key);
    Press(Qt::Key_Return);
    WaitForTheEnd();
  }

  // Every cell of both grids and the words match the answer.
  void ExpectAnswerTo(const BalanceQuestion& question) const {
    const Equilibrium found = FindEquilibrium(Hands(), question).value();
    const ClassCells shove = PlayedCells(BalanceSide::kShove, found.Shove, question.OwnHands);
    const ClassCells call = PlayedCells(BalanceSide::kCall, found.Call, question.HisHands);
    for (std::int16_t i = 0; i < kHandClassCount; ++i) {
      const auto at = static_cast<std::size_t>(i);
      ASSERT_EQ(FromQt(Grid(0).Cell(i).accessibleDescription()), shove.at(at).Words) << HandLabel(i);
      ASSERT_EQ(FromQt(Grid(1).Cell(i).accessibleDescription()), call.at(at).Words) << HandLabel(i);
    }
    EXPECT_THAT(Texts(), HasSubstr("Shove: " + NumberText(PercentOfHands(found.Shove)) + "% of hands"));
    EXPECT_THAT(Texts(), HasSubstr("Call the shove: " + NumberText(PercentOfHands(found.Call)) + "% of hands"));
    EXPECT_THAT(Texts(), HasSubstr(BalanceWords(found)));
  }

  BalanceQuestion Raise{.Pot = 150, .Call = 50, .Shove = 62.5};
};

TEST_F(BalancedRanges, AreThoseOfTheSituation) {
  const HeardAnnouncements heard;
  OpenPage(sample::RaiseState());
  Raise.HisHands = RangeWeightsOf(sample::RaiseState().RangeText);
  EXPECT_TRUE(OnlyHis().isChecked());
  ExpectAnswerTo(Raise);
  EXPECT_THAT(heard.Texts().back(), HasSubstr("% of hands. Call the shove: "));

  OnlyHis().click();
  WaitForTheEnd();
  Raise.HisHands = AllHands();
  ExpectAnswerTo(Raise);
}

TEST_F(BalancedRanges, AreThoseOfTypedAmountsBeforeAnyAnalysis) {
  Open();
  Form.ShowPage(StudyTopic::kBalanced);
  EXPECT_THAT(Texts(), HasSubstr("Type the pot."));
  EXPECT_TRUE(Box(0).hasFocus()) << "three amounts are missing";
  EXPECT_FALSE(OnlyHis().isEnabled()) << "he has no range yet";
  Type(0, "150");
  Type(1, "50");
  Type(2, "62.5");
  Raise.HisHands = AllHands();
  ExpectAnswerTo(Raise);
}

TEST_F(BalancedRanges, TakeTheAmountsOfTheFirstAnalysis) {
  Open();
  Form.ShowPage(StudyTopic::kBalanced);
  Type(0, "7");
  Form.Offer(sample::RaiseState());
  EXPECT_EQ(Box(0).text(), QStringLiteral("150"));
}

TEST_F(BalancedRanges, TellTheHandOfBothGrids) {
  OpenPage(sample::RaiseState());
  const auto words = [this](int grid, std::string_view hand) {
    return FromQt(Grid(grid).Cell(HandIndex(hand)).accessibleDescription());
  };
  EXPECT_THAT(Texts(), HasSubstr("AA: " + words(0, "AA") + ", " + words(1, "AA")));
  Grid(1).FocusCell(HandIndex("72o"));
  EXPECT_THAT(Texts(), HasSubstr("72o: " + words(0, "72o") + ", he does not hold it"));
}

TEST_F(BalancedRanges, FollowTheBoxes) {
  OpenPage(sample::RaiseState());
  OnlyHis().click();
  Type(0, "=1+.5");
  EXPECT_EQ(Box(0).text(), QStringLiteral("1.5"));
  Type(1, ".5");
  Type(2, "9");
  ExpectAnswerTo({.Pot = 1.5, .Call = 0.5, .Shove = 9});

  Type(2, "none");
  EXPECT_THAT(Texts(), HasSubstr("\"none\" is not a plain number."));
  EXPECT_FALSE(Grid(0).isVisible());
  EXPECT_FALSE(Button("Save his range...").isEnabled());
  Type(2, "9");
  EXPECT_TRUE(Grid(0).isVisible());
  EXPECT_TRUE(Button("Save his range...").isEnabled());
}

TEST_F(BalancedRanges, AskForWhatASituationLacks) {
  OpenPage(sample::CallState());
  EXPECT_EQ(Box(0).text(), QStringLiteral("150"));
  EXPECT_THAT(Texts(), HasSubstr("Type what he must call if you shove."));
  Form.Follow(sample::EquityState());
  EXPECT_EQ(Box(0).text(), QString());
  EXPECT_THAT(Texts(), HasSubstr("Type the pot."));
}

// Kings alone against a shove of a thousand pots: the longest search, and it finds nothing.
TEST_F(BalancedRanges, ShowHowFarALongSearchIsAndThatItFoundNothing) {
  Analysis kings = sample::RaiseState();
  kings.RangeText = TextWith("KK");
  kings.Amounts = {1, 0, 1000};
  Open();
  Form.Follow(kings);
  Form.ShowPage(StudyTopic::kBalanced);
  EXPECT_THAT(Texts(), HasSubstr("Finding balanced ranges..."));
  EXPECT_FALSE(Grid(0).isVisible());
  Press(Qt::Key_Escape);
  EXPECT_THAT(Texts(), HasSubstr("Stopped"));
  Button("Go on").click();
  WaitForTheEnd();
  EXPECT_THAT(Texts(), HasSubstr("No ranges were found that are in balance"));
  EXPECT_FALSE(Button("Save his range...").isEnabled());
}

TEST_F(BalancedRanges, SaveHisRangeUnderANameThatIsFree) {
  OpenPage(sample::RaiseState());
  OnlyHis().click();
  Type(2, "400");
  Raise.Shove = 400;
  const Equilibrium found = FindEquilibrium(Hands(), Raise).value();
  std::vector<std::string> saved;
  QObject::connect(&Form, &StudyForm::CallingRangeSaved, [&](const std::string& name) { saved.push_back(name); });

  Inputs.Answers = {"", "Tight/", "His"};
  Button("Save his range...").click();
  EXPECT_TRUE(saved.empty()) << "Cancel";
  Button("Save his range...").click();
  EXPECT_TRUE(saved.empty()) << "not a valid name";
  Button("Save his range...").click();
  EXPECT_EQ(saved, std::vector<std::string>{"His"});
  EXPECT_EQ(RangeWeightsOf(LoadRangeText(Program.Folder(), "His")), found.Call);
  EXPECT_THAT(Texts(), HasSubstr("Editing it on a grid keeps only none, half and full."));

  Inputs.Answers = {"His"};
  Button("Save his range...").click();
  EXPECT_EQ(saved.size(), 1U) << "it exists";
}

}  // namespace
}  // namespace quillon
