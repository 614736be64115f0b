#include <gtest/gtest.h>
#include <string>

#include "hand/equity_table.h"
#include "testing/fault_of.h"

// A separate program, since a process cannot unload the table.

namespace quillon {
namespace {

TEST(EquityTableBeforeLoading, HasNoRowsAndNoEquities) {
  for (const std::string& row : EquityRows())
    EXPECT_EQ(row, "");
  for (const char* opponent : {"AA", "KK"})
    EXPECT_EQ(FaultOf([&] { return HandEquity("AA", opponent); }), RunTimeFault::kSubscriptOutOfRange) << opponent;

  LoadEquityTable();
  EXPECT_EQ(HandEquity("AA", "KK"), 0.819461);
}

}  // namespace
}  // namespace quillon
