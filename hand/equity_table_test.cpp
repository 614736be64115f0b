#include "hand/equity_table.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "hand/equity_rows.h"
#include "hand/hand_classes.h"
#include "support/number_text.h"

namespace quillon {
namespace {

std::string LabelOf(std::size_t index) {
  return std::string(HandLabel(static_cast<std::int16_t>(index)));
}

// The texts between the spaces; what follows the last space counts as one too.
std::vector<std::string> Split(std::string_view text) {
  std::vector<std::string> fields(1);
  for (const char c : text) {
    if (c == ' ') {
      fields.emplace_back();
    } else {
      fields.back() += c;
    }
  }
  return fields;
}

double Number(const std::string& field) {
  double value = -1;
  std::from_chars(field.data(), field.data() + field.size(), value);
  return value;
}

class EquityTable : public testing::Test {
 protected:
  static void SetUpTestSuite() { LoadEquityTable(); }

  // Every entry as it is in the table, row by row, less the empty field at a row's end.
  static const std::vector<std::vector<std::string>>& Entries() {
    static const std::vector<std::vector<std::string>> entries = [] {
      std::vector<std::vector<std::string>> rows;
      for (const std::string& row : EquityRows()) {
        rows.push_back(Split(row));
        rows.back().pop_back();
      }
      return rows;
    }();
    return entries;
  }
};

TEST_F(EquityTable, EachNumberIsFollowedByOneBlank) {
  for (std::size_t i = 0; i < 169; ++i) {
    const std::vector<std::string> fields = Split(EquityRows()[i]);
    ASSERT_EQ(fields.size(), 170U) << LabelOf(i);
    EXPECT_EQ(fields.back(), "") << LabelOf(i);
    EXPECT_EQ(std::count(fields.begin(), fields.end(), ""), 1) << LabelOf(i);
  }
}

TEST_F(EquityTable, RowsHaveTheirLengths) {
  std::size_t shortest = EquityRows()[0].size();
  std::size_t longest = shortest;
  std::size_t all = 0;
  for (const std::string& row : EquityRows()) {
    shortest = std::min(shortest, row.size());
    longest = std::max(longest, row.size());
    all += row.size();
  }
  EXPECT_EQ(shortest, 1481U);
  EXPECT_EQ(longest, 1516U);
  EXPECT_EQ(all, 253243U);
}

TEST_F(EquityTable, PiecesMakeTheRows) {
  std::size_t shortest = kEquityPieces[0][0].size();
  std::size_t longest = shortest;
  for (std::size_t i = 0; i < kEquityPieces.size(); ++i) {
    const auto& [first, second] = kEquityPieces[i];
    EXPECT_EQ(Split(first).size(), 86U + 1) << LabelOf(i);
    EXPECT_EQ(Split(second).size(), 83U + 1) << LabelOf(i);
    EXPECT_TRUE(first.ends_with(' ') && second.ends_with(' ')) << LabelOf(i);
    EXPECT_EQ(EquityRows()[i], std::string(first) + std::string(second)) << LabelOf(i);
    shortest = std::min({shortest, first.size(), second.size()});
    longest = std::max({longest, first.size(), second.size()});
  }
  EXPECT_EQ(shortest, 727U);
  EXPECT_EQ(longest, 780U);
}

TEST_F(EquityTable, LoadingAgainChangesNothing) {
  const std::array<std::string, 169> before(EquityRows());  // NOLINT(performance-unnecessary-copy-initialization)
  const char* const place = EquityRows()[0].data();
  LoadEquityTable();
  EXPECT_EQ(EquityRows(), before);
  EXPECT_EQ(EquityRows()[0].data(), place) << "views of a row stay good";
}

TEST_F(EquityTable, EntriesArePlainDecimalsButForSevenBelowTheDiagonal) {
  std::vector<std::string> longForms;
  for (std::size_t i = 0; i < 169; ++i) {
    for (std::size_t j = 0; j < 169; ++j) {
      const std::string& entry = Entries()[i][j];
      const bool plain = entry.starts_with("0.") && entry.size() >= 3 && entry.size() <= 8 && !entry.ends_with('0') &&
                         entry.find_first_not_of("0123456789", 2) == std::string::npos;
      if (plain) continue;
      EXPECT_GT(i, j) << entry;
      longForms.push_back(LabelOf(i) + " " + LabelOf(j) + " " + entry);
    }
  }
  std::sort(longForms.begin(), longForms.end());
  const std::vector<std::string> expected = {
      "A6o AA 6.43820000000001E-02", "J4o JJ 6.82739999999999E-02", "K2o KK 5.37339999999999E-02",
      "Q5o QQ 6.95789999999999E-02", "Q8o QQ 7.92119999999999E-02", "T2o TT 6.29690000000001E-02",
      "T6o TT 8.57599999999999E-02",
  };
  EXPECT_EQ(longForms, expected);
}

TEST_F(EquityTable, RowHeadsAreThese) {
  const auto head = [](std::size_t row, std::size_t count) {
    std::string text;
    for (std::size_t j = 0; j < count; ++j)
      text += Entries()[row][j] + " ";
    return text;
  };
  EXPECT_EQ(head(0, 14),
            "0.5 0.878595 0.874609 0.870623 0.866637 0.884323 0.880337 0.880344 0.882321 0.866931 0.870931 0.874931 "
            "0.87893 0.931719 ");
  EXPECT_EQ(head(168, 6), "0.177833 0.501067 0.497856 0.494644 0.491433 0.502973 ");
}

struct Duel {
  std::string_view hand;
  std::string_view opponentHand;
  double equity;
};

TEST_F(EquityTable, WellKnownDuelsHaveTheirEquities) {
  const std::vector<Duel> duels = {
      {"AA", "KK", 0.819461},   {"KK", "AA", 0.180539},   {"AA", "AKs", 0.878595},  {"AA", "AKo", 0.931719},
      {"AA", "72o", 0.881996},  {"AKs", "QQ", 0.460485},  {"AKo", "QQ", 0.432423},  {"AKs", "AKo", 0.524921},
      {"AKo", "AKs", 0.475079}, {"AKs", "AQs", 0.712772}, {"AKs", "KQs", 0.714286}, {"72o", "22", 0.325892},
      {"32o", "32s", 0.474842}, {"22", "33", 0.195705},
  };
  for (const Duel& duel : duels)
    EXPECT_EQ(HandEquity(duel.hand, duel.opponentHand), duel.equity) << duel.hand << " against " << duel.opponentHand;
}

TEST_F(EquityTable, DiagonalIsAHalfAndNothingElseIs) {
  for (std::size_t i = 0; i < 169; ++i) {
    for (std::size_t j = 0; j < 169; ++j) {
      if (i == j) {
        EXPECT_EQ(Entries()[i][j], "0.5") << LabelOf(i);
      } else {
        EXPECT_NE(Number(Entries()[i][j]), 0.5) << LabelOf(i) << " against " << LabelOf(j);
      }
    }
  }
}

TEST_F(EquityTable, KingsAgainstKingDeuceIsTheLargestAndItsMirrorTheSmallest) {
  const auto king = static_cast<std::size_t>(HandIndex("KK"));
  const auto kingDeuce = static_cast<std::size_t>(HandIndex("K2o"));
  const double largest = Number(Entries()[king][kingDeuce]);
  const double smallest = Number(Entries()[kingDeuce][king]);
  EXPECT_EQ(largest, 0.946266);
  for (std::size_t i = 0; i < 169; ++i) {
    for (std::size_t j = 0; j < 169; ++j) {
      const double equity = Number(Entries()[i][j]);
      const bool one = i == king && j == kingDeuce;
      const bool other = i == kingDeuce && j == king;
      ASSERT_TRUE(one || equity < largest) << LabelOf(i) << " against " << LabelOf(j);
      ASSERT_TRUE(other || equity > smallest) << LabelOf(i) << " against " << LabelOf(j);
    }
  }
}

TEST_F(EquityTable, MirrorEntriesAddUpToOne) {
  int pairs = 0;
  for (std::size_t i = 0; i < 169; ++i) {
    for (std::size_t j = i + 1; j < 169; ++j, ++pairs) {
      const double above = Number(Entries()[i][j]);
      const double below = Number(Entries()[j][i]);
      ASSERT_NEAR(above + below, 1, 2e-16) << LabelOf(i) << " against " << LabelOf(j);
    }
  }
  EXPECT_EQ(pairs, 14196);
}

TEST_F(EquityTable, EntriesBelowTheDiagonalAreWrittenFromTheirMirrors) {
  for (std::size_t i = 0; i < 169; ++i) {
    for (std::size_t j = i + 1; j < 169; ++j)
      ASSERT_EQ(Entries()[j][i], NumberText(1.0 - Number(Entries()[i][j]))) << LabelOf(j) << " against " << LabelOf(i);
  }
}

TEST_F(EquityTable, LookupEqualsAPlainSplitForEveryPair) {
  for (std::size_t i = 0; i < 169; ++i) {
    for (std::size_t j = 0; j < 169; ++j)
      ASSERT_EQ(HandEquity(LabelOf(i), LabelOf(j)), Number(Entries()[i][j])) << LabelOf(i) << " against " << LabelOf(j);
  }
}

TEST_F(EquityTable, EveryClassAgainstItselfIsAHalf) {
  for (std::size_t i = 0; i < 169; ++i)
    EXPECT_EQ(HandEquity(LabelOf(i), LabelOf(i)), 0.5) << LabelOf(i);
}

TEST_F(EquityTable, ExponentFormIsRead) {
  EXPECT_EQ(HandEquity("K2o", "KK"), 0.0537339999999999);
}

TEST_F(EquityTable, SuitedAndOffsuitAddUpToOne) {
  EXPECT_EQ(HandEquity("AKs", "AKo") + HandEquity("AKo", "AKs"), 1);
}

TEST_F(EquityTable, TextThatIsNoLabelPlaysAsAces) {
  EXPECT_EQ(HandEquity("no label", "KK"), 0.819461);
  EXPECT_EQ(HandEquity("", "KK"), 0.819461);
  EXPECT_EQ(HandEquity("KK", "kk"), 0.180539);
  EXPECT_EQ(HandEquity("x", "y"), 0.5);
}

TEST_F(EquityTable, LastColumnIsTheLastNumberAndNotTheEmptyField) {
  EXPECT_EQ(HandEquity("AA", "22"), Number(Entries()[0][168]));
  EXPECT_GT(HandEquity("AA", "22"), 0.8);
  EXPECT_EQ(HandEquity("22", "22"), 0.5);
}

TEST_F(EquityTable, FirstColumnIsTheFirstNumber) {
  EXPECT_EQ(HandEquity("22", "AA"), 0.177833);
}

}  // namespace
}  // namespace quillon
