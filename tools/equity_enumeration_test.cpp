#include "tools/equity_enumeration.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <thread>
#include <vector>

#include "testing/hand_strength.h"
#include "testing/oracle/poker.h"

namespace quillon {
namespace {

constexpr ClassRange kAllRows;

// A few boards of every kind, spread over all board classes.
std::vector<BoardClass> SampleBoards() {
  constexpr std::size_t kStep = 1511;
  const std::vector<BoardClass> all = AllBoardClasses();
  std::vector<BoardClass> sample;
  for (std::size_t i = 0; i < all.size(); i += kStep)
    sample.push_back(all[i]);
  const auto isOneSuited = [](const BoardClass& board) { return std::popcount(board.suits[0]) == kBoardSize; };
  sample.push_back(*std::find_if(all.begin(), all.end(), isOneSuited));
  return sample;
}

const PointTable& SamplePoints() {
  static const PointTable points = CountPoints(SampleBoards(), kAllRows, 1);
  return points;
}

struct LiveHand {
  std::size_t handClass;
  std::uint64_t cards;
  HandStrength strength;
};

std::vector<LiveHand> LiveHands(const BoardClass& board) {
  constexpr int kEnd = static_cast<int>(kDeckSize);
  plain::Cards cards;
  for (int card = 0; card < kEnd; ++card) {
    const RankMask rank = RankAt(static_cast<std::size_t>(card / kSuitCount));
    if ((board.suits[static_cast<std::size_t>(card % kSuitCount)] & rank) != 0) cards.push_back(card);
  }
  const auto isLive = [&](int card) { return std::find(cards.begin(), cards.end(), card) == cards.end(); };
  std::vector<LiveHand> hands;
  for (int one = 0; one < kEnd; ++one) {
    for (int other = one + 1; other < kEnd; ++other) {
      if (!isLive(one) || !isLive(other)) continue;
      plain::Cards seven = cards;
      seven.insert(seven.end(), {one, other});
      hands.push_back(
          {plain::ClassOf(one, other), std::uint64_t{1} << one | std::uint64_t{1} << other, StrengthOfCards(seven)});
    }
  }
  return hands;
}

// Every hand against every other, one by one.
PointTable PlainPoints(const std::vector<BoardClass>& boards) {
  PointTable points(kClassCount);
  for (const BoardClass& board : boards) {
    const std::vector<LiveHand> hands = LiveHands(board);
    for (const LiveHand& one : hands) {
      for (const LiveHand& other : hands) {
        if ((one.cards & other.cards) != 0) continue;
        const int won = one.strength > other.strength ? 2 : one.strength == other.strength ? 1 : 0;
        points[one.handClass][other.handClass] += std::int64_t{board.orbitSize} * won;
      }
    }
  }
  return points;
}

TEST(EquityEnumeration, EveryHandMeetsTheHandsOfTheFiftyOtherCards) {
  std::int64_t sum = 0;
  for (const auto& row : CountPairs()) {
    for (const std::int64_t pairs : row)
      sum += pairs;
  }
  EXPECT_EQ(sum, 1326 * 1225);
}

TEST(EquityEnumeration, TheSampleHasBoardsOfEveryKind) {
  std::set<int> orbits;
  std::set<int> mostOfASuit;
  for (const BoardClass& board : SampleBoards()) {
    orbits.insert(board.orbitSize);
    int most = 0;
    for (const RankMask suit : board.suits)
      most = std::max(most, std::popcount(suit));
    mostOfASuit.insert(most);
  }
  EXPECT_EQ(orbits, (std::set<int>{4, 12, 24}));
  EXPECT_EQ(mostOfASuit, (std::set<int>{2, 3, 4, 5}));
}

TEST(EquityEnumeration, EqualsThePlainCountOfEveryPairOfClasses) {
  EXPECT_EQ(SamplePoints(), PlainPoints(SampleBoards()));
}

TEST(EquityEnumeration, AnyNumberOfThreadsCountsTheSame) {
  for (const unsigned threads : {2U, 3U, 8U}) {
    EXPECT_EQ(CountPoints(SampleBoards(), kAllRows, threads), SamplePoints()) << threads << " threads";
  }
}

TEST(EquityEnumeration, AnyOrderOfTheBoardsCountsTheSame) {
  std::vector<BoardClass> boards = SampleBoards();
  std::reverse(boards.begin(), boards.end());
  EXPECT_EQ(CountPoints(boards, kAllRows, 1), SamplePoints());
}

TEST(EquityEnumeration, NoBoardsGiveNoPoints) {
  EXPECT_EQ(CountPoints({}, kAllRows, 2), PointTable(kClassCount));
}

TEST(EquityEnumeration, RowsCountedApartAreThoseOfTheWhole) {
  for (const ClassRange rows : {ClassRange{0, 0}, ClassRange{13, 25}, ClassRange{168, 168}}) {
    PointTable expected(kClassCount);
    for (std::size_t i = rows.first; i <= rows.last; ++i)
      expected[i] = SamplePoints()[i];
    EXPECT_EQ(CountPoints(SampleBoards(), rows, 2), expected) << rows.first << "-" << rows.last;
  }
}

TEST(EquityEnumeration, ProgressIsToldByTheCallingThreadUpToTheEnd) {
  std::vector<std::size_t> told;
  std::set<std::thread::id> tellers;
  std::size_t promised = 0;
  const PointTable points = CountPoints(SampleBoards(), {0, 0}, 1, [&](std::size_t done, std::size_t total) {
    told.push_back(done);
    tellers.insert(std::this_thread::get_id());
    promised = total;
  });
  EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
  EXPECT_EQ(told.back(), promised);
  EXPECT_EQ(tellers, std::set<std::thread::id>{std::this_thread::get_id()});
}

// A count in which every class wins half of what it plays for.
struct EvenCount {
  PointTable pairs = CountPairs();
  PointTable points = PointTable(kClassCount);
};

EvenCount MakeEvenCount() {
  EvenCount count;
  for (std::size_t i = 0; i < kClassCount; ++i) {
    for (std::size_t j = 0; j < kClassCount; ++j)
      count.points[i][j] = PointsAtStake(count.pairs[i][j]) / 2;
  }
  return count;
}

TEST(PointsAddUp, IfClassesWinFromEachOtherWhatTheyPlayFor) {
  EvenCount count = MakeEvenCount();
  EXPECT_TRUE(PointsAddUp(kAllRows, count.points, count.pairs));
  --count.points[3][7];
  ++count.points[7][3];
  EXPECT_TRUE(PointsAddUp(kAllRows, count.points, count.pairs));
}

TEST(PointsAddUp, NotIfOnePointIsLost) {
  EvenCount count = MakeEvenCount();
  --count.points[3][7];
  EXPECT_FALSE(PointsAddUp(kAllRows, count.points, count.pairs));
}

TEST(PointsAddUp, NotIfAClassGainsOnItself) {
  EvenCount count = MakeEvenCount();
  ++count.points[3][3];
  EXPECT_FALSE(PointsAddUp({3, 3}, count.points, count.pairs));
}

TEST(PointsAddUp, WhateverStandsInOtherRows) {
  EvenCount count = MakeEvenCount();
  count.points[3].fill(0);
  EXPECT_TRUE(PointsAddUp({4, 168}, count.points, count.pairs));
}

}  // namespace
}  // namespace quillon
