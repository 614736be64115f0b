#include "analysis/analysis_state.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(ModeOfButton, AnyOtherButtonIsPreflopRaise) {
  EXPECT_EQ(ModeOfButton(0), AnalysisMode::kPreflopCall);
  EXPECT_EQ(ModeOfButton(1), AnalysisMode::kPreflopRaise);
  EXPECT_EQ(ModeOfButton(2), AnalysisMode::kEquityOnly);
  EXPECT_EQ(ModeOfButton(3), AnalysisMode::kPreflopRaise);
  EXPECT_EQ(ModeOfButton(-1), AnalysisMode::kPreflopRaise);
}

TEST(AnalysisMode, HasItsNumbers) {
  EXPECT_EQ(static_cast<int>(AnalysisMode::kPreflopCall), 1);
  EXPECT_EQ(static_cast<int>(AnalysisMode::kPreflopRaise), 2);
  EXPECT_EQ(static_cast<int>(AnalysisMode::kEquityOnly), 3);
}

TEST(ScreenName, IsTheCaptionOfTheInputScreen) {
  EXPECT_EQ(ScreenName(AnalysisMode::kPreflopCall), "Preflop Call");
  EXPECT_EQ(ScreenName(AnalysisMode::kPreflopRaise), "Preflop Raise");
  EXPECT_EQ(ScreenName(AnalysisMode::kEquityOnly), "Equity Only");
  EXPECT_EQ(ScreenName(AnalysisMode::kNone), "");
}

TEST(AnalysisState, StartsWithNothing) {
  const AnalysisState state;
  EXPECT_FALSE(state.Running);
  EXPECT_EQ(state.Mode, AnalysisMode::kNone);
  EXPECT_EQ(state.HandInfo, "");
}

}  // namespace
}  // namespace quillon
