#include "analysis/scenarios.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace quillon
