#include "tools/board_classes.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <vector>

namespace quillon {
namespace {

using SuitSets = std::array<RankMask, kSuitCount>;

const std::vector<BoardClass>& Boards() {
  static const std::vector<BoardClass> boards = AllBoardClasses();
  return boards;
}

// All boards that can be dealt, each under the name that its suits sorted give it.
std::vector<SuitSets> DealAllBoards() {
  constexpr int kEnd = static_cast<int>(kDeckSize);
  std::vector<SuitSets> boards;
  boards.reserve(kBoardCount);
  std::array<int, kBoardSize> cards{};
  const std::function<void(std::size_t, int)> deal = [&](std::size_t count, int next) {
    if (count == cards.size()) {
      SuitSets suits{};
      for (const int card : cards)
        suits[static_cast<std::size_t>(card % kSuitCount)] ^= RankBit(card);
      std::sort(suits.rbegin(), suits.rend());
      boards.push_back(suits);
      return;
    }
    for (cards[count] = next; cards[count] < kEnd; ++cards[count])
      deal(count + 1, cards[count] + 1);
  };
  deal(0, 0);
  return boards;
}

TEST(BoardClasses, StandForAllBoards) {
  EXPECT_EQ(Boards().size(), static_cast<std::size_t>(kBoardClassCount));
  int boards = 0;
  for (const BoardClass& board : Boards())
    boards += board.orbitSize;
  EXPECT_EQ(boards, kBoardCount);
}

TEST(BoardClasses, StandForEachBoardAsOftenAsItIsDealt) {
  std::vector<SuitSets> dealt = DealAllBoards();
  ASSERT_EQ(dealt.size(), static_cast<std::size_t>(kBoardCount));
  std::sort(dealt.begin(), dealt.end());
  std::vector<BoardClass> boards = Boards();
  std::sort(boards.begin(), boards.end(), [](const auto& a, const auto& b) { return a.suits < b.suits; });
  auto next = dealt.begin();
  for (const BoardClass& board : boards) {
    const auto after = std::find_if(next, dealt.end(), [&](const SuitSets& suits) { return suits != board.suits; });
    ASSERT_EQ(after - next, board.orbitSize);
    next = after;
  }
  EXPECT_EQ(next, dealt.end());
}

TEST(BoardClasses, OrbitsHaveFourTwelveOrTwentyFourBoards) {
  std::map<int, int> classesOfSize;
  for (const BoardClass& board : Boards())
    ++classesOfSize[board.orbitSize];
  EXPECT_EQ(classesOfSize, (std::map<int, int>{{4, 2301}, {12, 48503}, {24, 83655}}));
}

TEST(BoardClasses, OfTheSameRanksStandSideBySide) {
  std::set<RankTally> seen;
  const RankTally* previous = nullptr;
  for (const BoardClass& board : Boards()) {
    if (previous != nullptr && *previous == board.ranks) continue;
    ASSERT_TRUE(seen.insert(board.ranks).second);
    previous = &board.ranks;
  }
  // Of all sets of five ranks, repetitions counted, those of one rank five times cannot be dealt.
  constexpr std::size_t kSetsOfFive = 17 * 16 * 15 * 14 * 13 / (5 * 4 * 3 * 2);
  EXPECT_EQ(seen.size(), kSetsOfFive - 13);
}

TEST(BoardClasses, TallyTheRanksOfTheirSuits) {
  for (const BoardClass& board : Boards()) {
    int cards = 0;
    for (const RankMask suit : board.suits)
      cards += std::popcount(suit);
    ASSERT_EQ(cards, kBoardSize);
    for (int place = 0; place < kRankCount; ++place) {
      const RankMask rank = RankBit(place * kSuitCount);
      const auto held =
          std::count_if(board.suits.begin(), board.suits.end(), [&](auto suit) { return (suit & rank) != 0; });
      ASSERT_EQ((board.ranks.once & rank) != 0, held >= 1);
      ASSERT_EQ((board.ranks.twice & rank) != 0, held >= 2);
      ASSERT_EQ((board.ranks.thrice & rank) != 0, held >= 3);
      ASSERT_EQ((board.ranks.fourTimes & rank) != 0, held >= 4);
    }
  }
}

}  // namespace
}  // namespace quillon
