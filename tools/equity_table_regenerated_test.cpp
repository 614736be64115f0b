// Compares the table that the program carries with the enumeration it came from, as a whole, and with a count without
// short cuts, in a few places.

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "hand/equity_rows.h"
#include "support/files.h"
#include "support/number_text.h"
#include "testing/hand_strength.h"
#include "testing/oracle/poker.h"
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

// One pair of hands for all that a renaming of suits makes of it.
struct Matchup {
  const char* one;
  const char* other;
  int times;
};

struct ClassPairCase {
  const char* one;
  const char* other;
  std::vector<Matchup> matchups;
};

// The points that one hand wins from the other on all boards.
std::int64_t PointsWon(const plain::Cards& one, const plain::Cards& other) {
  plain::Cards deck;
  for (int card = 0; card < static_cast<int>(kDeckSize); ++card) {
    const auto isCard = [card](int held) { return held == card; };
    if (std::none_of(one.begin(), one.end(), isCard) && std::none_of(other.begin(), other.end(), isCard)) {
      deck.push_back(card);
    }
  }
  std::array<int, 7> mine = {0, 0, 0, 0, 0, one[0], one[1]};
  std::array<int, 7> his = {0, 0, 0, 0, 0, other[0], other[1]};
  const auto place = [&](std::size_t i, std::size_t card) { mine[i] = his[i] = deck[card]; };
  std::int64_t points = 0;
  for (std::size_t a = 0; a < deck.size(); ++a) {
    place(0, a);
    for (std::size_t b = a + 1; b < deck.size(); ++b) {
      place(1, b);
      for (std::size_t c = b + 1; c < deck.size(); ++c) {
        place(2, c);
        for (std::size_t d = c + 1; d < deck.size(); ++d) {
          place(3, d);
          for (std::size_t e = d + 1; e < deck.size(); ++e) {
            place(4, e);
            const HandStrength mineIsWorth = StrengthOfCards(mine);
            const HandStrength hisIsWorth = StrengthOfCards(his);
            points += mineIsWorth > hisIsWorth ? 2 : mineIsWorth == hisIsWorth ? 1 : 0;
          }
        }
      }
    }
  }
  return points;
}

std::string_view TableEntry(std::size_t row, std::size_t column) {
  std::string_view rest = kEquityPieces[row][column < 86 ? 0 : 1];
  for (std::size_t i = column < 86 ? 0 : 86; i < column; ++i)
    rest.remove_prefix(rest.find(' ') + 1);
  return rest.substr(0, rest.find(' '));
}

const auto kClassPairs = std::to_array<ClassPairCase>({
    {"AA", "KK", {{"As Ah", "Ks Kh", 6}, {"As Ah", "Ks Kd", 24}, {"As Ah", "Kd Kc", 6}}},
    {"AKs", "KQs", {{"As Ks", "Kh Qh", 12}}},
    {"AKs", "AKo", {{"As Ks", "Ah Kd", 24}}},
    {"JTs", "55", {{"Js Ts", "5s 5h", 12}, {"Js Ts", "5h 5d", 12}}},
});

TEST(PlainCount, GivesTheTablesEntry) {
  for (const ClassPairCase& c : kClassPairs) {
    SCOPED_TRACE(std::string(c.one) + " against " + c.other);
    const auto row = static_cast<std::size_t>(HandIndex(c.one));
    const auto column = static_cast<std::size_t>(HandIndex(c.other));
    std::int64_t points = 0;
    std::int64_t pairs = 0;
    for (const Matchup& matchup : c.matchups) {
      const plain::Cards one = plain::CardsOf(matchup.one);
      const plain::Cards other = plain::CardsOf(matchup.other);
      ASSERT_EQ(plain::ClassOf(one[0], one[1]), row);
      ASSERT_EQ(plain::ClassOf(other[0], other[1]), column);
      points += matchup.times * PointsWon(one, other);
      pairs += matchup.times;
    }
    EXPECT_EQ(pairs, CountPairs()[row][column]);
    const auto millionths = static_cast<double>(Millionths(points, PointsAtStake(pairs)));
    EXPECT_EQ(TableEntry(row, column), NumberText(millionths / 1e6));
  }
}

}  // namespace
}  // namespace quillon
