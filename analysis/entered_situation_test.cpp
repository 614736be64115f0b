#include "analysis/entered_situation.h"

#include <gtest/gtest.h>

#include "testing/range_texts.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

TEST(BoxValue, IsTheLeadingNumberWithoutDollarSigns) {
  struct Row {
    const char* text;
    double value;
  };
  for (const Row& row :
       {Row{"$100", 100}, Row{"1$0$0", 100}, Row{"-$5", -5}, Row{"$-5", -5}, Row{"1,000", 1}, Row{"12abc", 12},
        Row{"", 0}, Row{"1 000", 1000}, Row{"1e3", 1000}, Row{"1$e$3", 1000}, Row{"=5+5", 0}, Row{".5", 0.5}}) {
    EXPECT_EQ(BoxValue(row.text), row.value) << row.text;
  }
}

TEST(DealRange, AnEmptyTextIsReadFromTheFileAndStaysWithTheCaller) {
  const TemporaryProgram ranges;
  ranges.Save("Aces", RangeWith({{"AA", 1}}));
  std::string text;
  EXPECT_EQ(TotalWeight(DealRange(ranges.Folder(), "Aces", "Xx", "Yy", text)), 6);
  EXPECT_EQ(text, RangeWith({{"AA", 1}}));
  text = RangeWith({{"AKs", 1}});
  EXPECT_EQ(TotalWeight(DealRange(ranges.Folder(), "Aces", "Xx", "Yy", text)), 4) << "a text at hand is not read again";
  std::string none;
  EXPECT_TRUE(DealRange(ranges.Folder(), "", "Xx", "Yy", none).empty()) << "no range is chosen";
  EXPECT_EQ(none, "");
}

TEST(SituationOf, TakesWhatTheScenarioAsksFor) {
  const TemporaryProgram ranges;
  ranges.Save("Aces", RangeWith({{"AA", 1}}));
  ranges.Save("Full", EveryHandAt(1));
  const EnteredSituation entered = {"$100", "1,000", "30x", "Full", "Aces"};
  const Situation equity = {.Mode = AnalysisMode::kEquityOnly, .RangeName = "Full", .RangeText = EveryHandAt(1)};
  Situation call = equity;
  call.Mode = AnalysisMode::kPreflopCall;
  call.Amounts = {100, 1, 0};
  Situation raise = call;
  raise.Mode = AnalysisMode::kPreflopRaise;
  raise.Amounts.ShoveAmount = 30;
  raise.CallingRangeName = "Aces";
  raise.CallingRangeText = RangeWith({{"AA", 1}});
  for (const Situation& situation : {equity, call, raise})
    EXPECT_EQ(SituationOf(situation.Mode, entered, ranges.Folder()), situation) << ScenarioOf(situation.Mode).Name;
  EXPECT_EQ(SituationOf(equity.Mode, {"", "", "", "Missing", ""}, ranges.Folder()),
            (Situation{.Mode = equity.Mode, .RangeName = "Missing"}));
}

}  // namespace
}  // namespace quillon
