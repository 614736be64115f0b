#include "hand/equity_table.h"

#include <algorithm>
#include <charconv>
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

  // Every entry of the table, row by row.
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

TEST_F(EquityTable, PiecesMakeTheRows) {
  std::size_t shortest = kEquityPieces[0][0].size();
  std::size_t longest = shortest;
  for (std::size_t i = 0; i < kEquityPieces.size(); ++i) {
    const auto& [first, second] = kEquityPieces[i];
    EXPECT_EQ(Split(first, " ").size(), 86U + 1) << LabelOf(i);
    EXPECT_EQ(Entries()[i].size(), kHandClassCount) << LabelOf(i);
    EXPECT_TRUE(first.ends_with(' ') && second.ends_with(' ')) << LabelOf(i);
    EXPECT_EQ(EquityRows()[i], std::string(first) + std::string(second)) << LabelOf(i);
    shortest = std::min({shortest, first.size(), second.size()});
    longest = std::max({longest, first.size(), second.size()});
  }
  EXPECT_EQ(shortest, 727U);
  EXPECT_EQ(longest, 780U);
}

TEST_F(EquityTable, LoadingAgainChangesNothing) {
  const std::string before = EquityRows()[0];
  const char* const place = EquityRows()[0].data();
  LoadEquityTable();
  EXPECT_EQ(EquityRows()[0], before);
  EXPECT_EQ(EquityRows()[0].data(), place) << "views of a row stay valid";
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

TEST_F(EquityTable, WellKnownDuelsHaveTheirEquities) {
  EXPECT_EQ(HandEquity("AA", "KK"), 0.819461);
  EXPECT_EQ(HandEquity("KK", "AA"), 0.180539);
  EXPECT_EQ(HandEquity("AKs", "AKo"), 0.524921);
  EXPECT_EQ(HandEquity("22", "33"), 0.195705);
}

TEST_F(EquityTable, EntriesAreHalvesOnTheDiagonalAndWrittenFromTheirMirrorsBelow) {
  for (std::size_t i = 0; i < 169; ++i) {
    EXPECT_EQ(Entries()[i][i], "0.5") << LabelOf(i);
    for (std::size_t j = i + 1; j < 169; ++j) {
      ASSERT_EQ(Entries()[j][i], NumberText(1.0 - Number(Entries()[i][j]))) << LabelOf(j) << " against " << LabelOf(i);
      ASSERT_NE(Entries()[i][j], "0.5") << LabelOf(i) << " against " << LabelOf(j);
    }
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
  EXPECT_EQ(HandEquity("KK", "kk"), 0.180539);
  EXPECT_EQ(HandEquity("x", "y"), 0.5);
}

}  // namespace
}  // namespace quillon
