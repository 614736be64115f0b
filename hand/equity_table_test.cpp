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
#include "testing/split_text.h"

namespace quillon {
namespace {

std::string LabelOf(std::size_t index) {
  return std::string(HandLabel(static_cast<std::int16_t>(index)));
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
        rows.push_back(Split(row, " "));
        rows.back().pop_back();
      }
      return rows;
    }();
    return entries;
  }
};

TEST_F(EquityTable, EachNumberIsFollowedByOneBlank) {
  for (std::size_t i = 0; i < 169; ++i) {
    const std::vector<std::string> fields = Split(EquityRows()[i], " ");
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
    EXPECT_EQ(Split(first, " ").size(), 86U + 1) << LabelOf(i);
    EXPECT_EQ(Split(second, " ").size(), 83U + 1) << LabelOf(i);
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

TEST_F(EquityTable, TextThatIsNoLabelPlaysAsAces) {
  EXPECT_EQ(HandEquity("no label", "KK"), 0.819461);
  EXPECT_EQ(HandEquity("", "KK"), 0.819461);
  EXPECT_EQ(HandEquity("KK", "kk"), 0.180539);
  EXPECT_EQ(HandEquity("x", "y"), 0.5);
}

}  // namespace
}  // namespace quillon
