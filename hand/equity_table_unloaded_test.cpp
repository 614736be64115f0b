#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "hand/equity_table.h"
#include "support/run_time_error.h"

// A program of its own: once the table is loaded, a process cannot be without it again.

namespace quillon {
namespace {

RunTimeFault FaultOfLookup(std::string_view hand, std::string_view opponentHand) {
  try {
    static_cast<void>(HandEquity(hand, opponentHand));
  } catch (const RunTimeError& error) {
    return error.Fault();
  }
  return {};
}

TEST(EquityTableBeforeLoading, HasNoRowsAndNoEquities) {
  for (const std::string& row : EquityRows())
    EXPECT_EQ(row, "");
  EXPECT_EQ(FaultOfLookup("AA", "AA"), RunTimeFault::kSubscriptOutOfRange);
  EXPECT_EQ(FaultOfLookup("AA", "KK"), RunTimeFault::kSubscriptOutOfRange);
  EXPECT_EQ(FaultOfLookup("22", "22"), RunTimeFault::kSubscriptOutOfRange);

  LoadEquityTable();
  EXPECT_EQ(HandEquity("AA", "KK"), 0.819461);
}

}  // namespace
}  // namespace quillon
