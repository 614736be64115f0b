// Compares the program's whole table with the enumeration that it comes from. The tests of the enumeration's parts
// compare it with a plain one.

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

#include "hand/equity_rows.h"
#include "support/files.h"
#include "tools/equity_enumeration.h"
#include "tools/equity_row_text.h"

namespace quillon {
namespace {

TEST(EquityTableRegenerated, IsTheSourceFileByteForByte) {
  const PointTable pairs = CountPairs();
  const PointTable points = CountPoints(AllBoardClasses(), {}, std::max(1U, std::thread::hardware_concurrency()));
  ASSERT_TRUE(PointsAddUp({}, points, pairs));
  std::vector<std::string> rows;
  for (std::size_t i = 0; i < kClassCount; ++i) {
    rows.push_back(EquityRowText(i, points[i], pairs[i]));
    EXPECT_EQ(rows[i], std::string(kEquityPieces[i][0]) + std::string(kEquityPieces[i][1]));
  }
  EXPECT_TRUE(SourceTextOf(rows) == ReadAllBytes(QUILLON_SOURCE_DIR "/hand/equity_rows.cpp"));
}

}  // namespace
}  // namespace quillon
