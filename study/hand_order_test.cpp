#include "study/hand_order.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

#include "analysis/analysis.h"
#include "hand/equity_table.h"

namespace quillon {
namespace {

// The equities of ordinary analyses fall along the order.
TEST(HandOrder, GoesByTheEquityAgainstAnyHand) {
  LoadEquityTable();
  const auto order = HandsBestFirst(HandNumbers());
  const auto analysis = Analyze({.Mode = AnalysisMode::kEquityOnly, .RangeText = RangeTextOf(AllHands())});
  ASSERT_TRUE(analysis);
  const auto equity = [&](std::int16_t index) { return GetHandResult(analysis->HandInfo, HandLabel(index)).Equity; };
  for (std::size_t place = 1; place < order.size(); ++place) {
    const std::int16_t better = order.at(place - 1);
    const std::int16_t worse = order.at(place);
    EXPECT_TRUE(equity(better) > equity(worse) || (equity(better) == equity(worse) && better < worse))
        << HandLabel(better) << " before " << HandLabel(worse);
  }
  EXPECT_TRUE(std::ranges::is_permutation(order, [] {
    std::array<std::int16_t, kHandClassCount> all{};
    for (std::int16_t index = 0; index < kHandClassCount; ++index)
      all.at(static_cast<std::size_t>(index)) = index;
    return all;
  }()));
}

TEST(HandOrder, BeginsWithTheHighPairsAndEndsWithTheLowestHand) {
  LoadEquityTable();
  const auto order = HandsBestFirst(HandNumbers());
  std::string start;
  for (std::size_t place = 0; place < 8; ++place)
    start.append(HandLabel(order.at(place))).append(" ");
  EXPECT_EQ(start, "AA KK QQ JJ TT 99 88 AKs ");
  EXPECT_EQ(HandLabel(order.back()), "32o");
}

}  // namespace
}  // namespace quillon
