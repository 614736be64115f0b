#include "analysis/scenarios.h"

#include <gtest/gtest.h>
#include <string>

#include "analysis/input_screens.h"

namespace quillon {
namespace {

TEST(Scenarios, HaveTheirNumbers) {
  EXPECT_EQ(static_cast<int>(AnalysisMode::kPreflopCall), 1);
  EXPECT_EQ(static_cast<int>(AnalysisMode::kPreflopRaise), 2);
  EXPECT_EQ(static_cast<int>(AnalysisMode::kEquityOnly), 3);
}

TEST(Scenarios, ARowIsFoundByItsNumber) {
  EXPECT_EQ(ScenarioOf(AnalysisMode::kPreflopCall).Name, "Preflop Call");
  EXPECT_EQ(ScenarioOf(AnalysisMode::kPreflopRaise).Name, "Preflop Raise");
  EXPECT_EQ(ScenarioOf(AnalysisMode::kEquityOnly).Name, "Equity Only");
  EXPECT_EQ(FindRow(kScenarios, AnalysisMode::kNone), nullptr);
}

TEST(ScreenOfButton, AnyOtherButtonIsPreflopRaise) {
  EXPECT_EQ(ScreenOfButton(0).Mode, AnalysisMode::kPreflopCall);
  EXPECT_EQ(ScreenOfButton(1).Mode, AnalysisMode::kPreflopRaise);
  EXPECT_EQ(ScreenOfButton(2).Mode, AnalysisMode::kEquityOnly);
  EXPECT_EQ(ScreenOfButton(3).Mode, AnalysisMode::kPreflopRaise);
  EXPECT_EQ(ScreenOfButton(-1).Mode, AnalysisMode::kPreflopRaise);
}

TEST(InputScreens, HaveTheBoxesAndListsThatTheirScenarioAsksFor) {
  for (const InputScreen& screen : kInputScreens) {
    const Scenario& scenario = ScenarioOf(screen.Mode);
    for (int i = 0; i < 3; ++i) {
      const bool has = screen.AmountBoxes.at(static_cast<std::size_t>(i)) != kNoControl;
      EXPECT_EQ(has, i < scenario.AmountCount) << scenario.Name << ' ' << i;
    }
    EXPECT_NE(screen.RangeLists[0], kNoControl) << scenario.Name;
    EXPECT_EQ(screen.RangeLists[1] != kNoControl, scenario.HasCallingRange) << scenario.Name;
  }
}

}  // namespace
}  // namespace quillon
