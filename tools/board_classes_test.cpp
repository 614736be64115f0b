#include "tools/board_classes.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace quillon {
namespace {

// One class for all renamings of a board; the size is the number of orders of its suits.
TEST(BoardClasses, StandForEachBoardAsOftenAsItIsDealt) {
  std::set<std::array<RankMask, kSuitCount>> seen;
  int boards = 0;
  for (const BoardClass& board : AllBoardClasses()) {
    auto suits = board.suits;
    std::sort(suits.begin(), suits.end());
    ASSERT_TRUE(seen.insert(suits).second);
    int orders = 1;
    while (std::next_permutation(suits.begin(), suits.end()))
      ++orders;
    ASSERT_EQ(board.orbitSize, orders);
    boards += orders;
  }
  EXPECT_EQ(seen.size(), static_cast<std::size_t>(kBoardClassCount));
  EXPECT_EQ(boards, kBoardCount);
}

// So that their hands are ranked only once.
TEST(BoardClasses, OfTheSameRanksStandSideBySide) {
  std::set<RankTally> seen;
  RankTally previous{};
  for (const BoardClass& board : AllBoardClasses()) {
    if (previous == board.ranks) continue;
    ASSERT_TRUE(seen.insert(board.ranks).second);
    previous = board.ranks;
  }
  // Of all multisets of five ranks, those of one rank five times cannot be dealt.
  constexpr std::size_t kSetsOfFive = 17 * 16 * 15 * 14 * 13 / (5 * 4 * 3 * 2);
  EXPECT_EQ(seen.size(), kSetsOfFive - 13);
}

}  // namespace
}  // namespace quillon
