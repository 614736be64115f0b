#include "analysis/scenarios.h"

#include <gtest/gtest.h>
#include <string>

#include "analysis/input_screens.h"

namespace quillon {
namespace {

TEST(Scenarios, ARowIsFoundByItsNumber) {
  EXPECT_EQ(ScenarioOf(AnalysisMode::kPreflopCall).Name, "Preflop Call");
  EXPECT_EQ(ScenarioOf(AnalysisMode::kPreflopRaise).Name, "Preflop Raise");
  EXPECT_EQ(ScenarioOf(AnalysisMode::kEquityOnly).Name, "Equity Only");
  EXPECT_EQ(FindRow(kScenarios, AnalysisMode::kNone), nullptr);
  EXPECT_EQ(static_cast<int>(AnalysisMode::kEquityOnly), 3);
  for (const int button : {1, 3, -1})
    EXPECT_EQ(ScreenOfButton(static_cast<std::int16_t>(button)).Mode, AnalysisMode::kPreflopRaise) << button;
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
