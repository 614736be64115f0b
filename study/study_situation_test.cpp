#include "study/study_situation.h"

#include <gtest/gtest.h>

#include "testing/sample_analysis.h"
#include "testing/study_hands.h"

namespace quillon {
namespace {

TEST(StudySituation, HoldsWhatItsScenarioAsksFor) {
  Analysis raised = sample::RaiseState();
  const StudySituation raise = StudySituationOf(raised, Hands());
  EXPECT_EQ(raise.Asked, static_cast<const Situation&>(raised));
  EXPECT_EQ(raise.OwnAmount(), 62.5);
  EXPECT_EQ(raise.Asked.Amounts, (Amounts{150, 50, 62.5}));
  EXPECT_EQ(raise.CallingRange.at(0), 1);
  EXPECT_EQ(raise.CallingRange.at(1), 0);

  // The window's state keeps values from an earlier raise.
  raised.Mode = AnalysisMode::kPreflopCall;
  const StudySituation call = StudySituationOf(raised, Hands());
  EXPECT_EQ(call.OwnAmount(), 50);
  EXPECT_EQ(call.Asked.Amounts, (Amounts{150, 50, 0}));
  EXPECT_EQ(call.Asked.CallingRangeName, "");
  EXPECT_EQ(call.Asked.CallingRangeText, "");
  EXPECT_EQ(call.CallingRange, ClassWeights{});
  EXPECT_EQ(call.Range, raise.Range);

  raised.Mode = AnalysisMode::kEquityOnly;
  const StudySituation equity = StudySituationOf(raised, Hands());
  EXPECT_EQ(equity.OwnAmount(), 0);
  EXPECT_EQ(equity.Asked.Amounts, Amounts{});
  EXPECT_EQ(equity.Asked.RangeName, "Wide");
}

TEST(StudySituation, AsksTheNumbersOfItsTexts) {
  const StudySituation raise = StudySituationOf(sample::RaiseState(), Hands());
  const Scenario& scenario = ScenarioOf(AnalysisMode::kPreflopRaise);
  const RangeTexts texts({"Wide", raise.Asked.RangeText}, {"Tight", raise.Asked.CallingRangeText});
  EXPECT_EQ(raise.Numbers().FiguresOf(scenario, 14), texts.FiguresOf(scenario, 14));
}

TEST(SituationWords, TellTheSituationInALine) {
  EXPECT_EQ(SituationWords(sample::CallState()), "Preflop Call: pot 150, 50 to call; he plays \"Tight\"");
  EXPECT_EQ(SituationWords(sample::RaiseState()),
            "Preflop Raise: pot 150, 50 to call, he must call 62.5; he plays \"Wide\" and calls with \"Tight\"");
  EXPECT_EQ(SituationWords(sample::EquityState()), "Equity Only: against \"Wide\"");
}

}  // namespace
}  // namespace quillon
