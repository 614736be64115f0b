#include "tools/equity_row_text.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "hand/equity_rows.h"
#include "hand/hand_classes.h"
#include "testing/split_text.h"

namespace quillon {
namespace {

struct RoundingCase {
  const char* rule;
  std::int64_t points;
  std::int64_t atStake;
  std::int64_t millionths;
};

constexpr auto kRoundings = std::to_array<RoundingCase>({
    {"Nothing", 0, 7, 0},
    {"Everything", 7, 7, 1'000'000},
    {"BelowHalfGoesDown", 1, 3, 333'333},
    {"AboveHalfGoesUp", 2, 3, 666'667},
    {"HalfGoesDownToTheEven", 5, 2'000'000, 2},
    {"HalfGoesUpToTheEven", 3, 2'000'000, 2},
    {"JustBelowHalf", 3'499'999, 2'000'000'000'000, 2},
    {"JustAboveHalf", 2'500'001, 1'000'000'000'000, 3},
    {"TheMostThatTwoClassesPlayFor", 288 * kBoardsPerPair - 1, 288 * kBoardsPerPair, 1'000'000},
});

TEST(EachRounding, IsExact) {
  for (const RoundingCase& c : kRoundings) {
    EXPECT_EQ(Millionths(c.points, c.atStake), c.millionths) << c.rule;
  }
}

using Row = std::array<std::int64_t, kClassCount>;

Row Filled(std::int64_t value) {
  Row row{};
  row.fill(value);
  return row;
}

// The points for an equity of this many millionths, to the nearest one.
std::int64_t PointsFor(std::int64_t millionths, std::int64_t pairs) {
  return (millionths * PointsAtStake(pairs) + 500'000) / 1'000'000;
}

struct EntryCase {
  const char* rule;
  std::size_t row;
  std::size_t column;
  std::int64_t millionths;
  const char* text;
};

constexpr auto kEntries = std::to_array<EntryCase>({
    {"SixDecimalsAboveTheDiagonal", 0, 1, 878'595, "0.878595"},
    {"TrailingZerosAreDropped", 0, 1, 622'500, "0.6225"},
    {"ASmallEntryAboveTheDiagonalIsPlain", 0, 1, 53'734, "0.053734"},
    {"OneMinusTheMirrorBelowTheDiagonal", 1, 0, 121'405, "0.121405"},
    {"TheFloatsErrorShowsBelowTheDiagonal", 1, 0, 53'734, "5.37339999999999E-02"},
    {"HalfOnTheDiagonalWhateverWasCounted", 4, 4, 123'456, "0.5"},
    {"TheLastColumn", 3, 168, 700'000, "0.7"},
});

TEST(EachEntry, IsWritten) {
  for (const EntryCase& c : kEntries) {
    SCOPED_TRACE(c.rule);
    constexpr std::int64_t kPairs = 36;
    Row points = Filled(PointsFor(250'000, kPairs));
    points[c.column] = PointsFor(c.millionths, kPairs);
    const std::string row = EquityRowText(c.row, points, Filled(kPairs));
    const auto fields = Split(row, " ");
    ASSERT_EQ(fields.size(), kClassCount + 1);
    EXPECT_EQ(fields[c.column], c.text);
    EXPECT_EQ(fields.back(), "");
  }
}

std::vector<std::string> TableRows() {
  std::vector<std::string> rows;
  rows.reserve(kEquityPieces.size());
  for (const auto& pieces : kEquityPieces)
    rows.push_back(std::string(pieces[0]) + std::string(pieces[1]));
  return rows;
}

TEST(EquityRowText, SourcePartsEachRowBehindItsEightySixthEntry) {
  const std::vector<std::string> rows = TableRows();
  const std::string source = SourceTextOf(rows);
  std::size_t at = 0;
  for (const auto& pieces : kEquityPieces) {
    const std::string literals =
        "    {\"" + std::string(pieces[0]) + "\",\n     \"" + std::string(pieces[1]) + "\"},\n";
    at = source.find(literals, at);
    ASSERT_NE(at, std::string::npos);
  }
  EXPECT_EQ(std::count(source.begin(), source.end(), '"'), 4 * 169 + 2);
}

TEST(EquityRowText, RowsInAnyOrderAreJoined) {
  std::vector<std::string> shuffled = TableRows();
  std::reverse(shuffled.begin(), shuffled.end());
  const std::span<const std::string> all = shuffled;
  const std::vector<RowFile> files = {{"b.txt", LinesOf(all.subspan(100))}, {"a.txt", LinesOf(all.first(100))}};
  const JoinedRows joined = JoinRows(files);
  EXPECT_EQ(joined.problem, "");
  EXPECT_EQ(joined.rows, TableRows());
}

TEST(EquityRowText, ALastLineNeedsNoLineEnd) {
  std::string text = LinesOf(TableRows());
  text.pop_back();
  EXPECT_EQ(JoinRows(std::vector<RowFile>{{"whole.txt", text}}).problem, "");
}

struct DamageCase {
  const char* rule;
  void (*damage)(std::vector<std::string>& rows);
  const char* problem;
};

void Replace(std::string& row, std::string_view from, std::string_view to) {
  row.replace(row.find(from), from.size(), to);
}

const auto kDamages = std::to_array<DamageCase>({
    {"ARowMissing", [](auto& rows) { rows.erase(rows.begin() + 1); }, "no row of AKs"},
    {"TheLastRowMissing", [](auto& rows) { rows.pop_back(); }, "no row of 22"},
    {"ARowTwice", [](auto& rows) { rows.push_back(rows[1]); }, "part.txt, line 170: a second row of AKs"},
    {"AnEmptyLine", [](auto& rows) { rows[4].clear(); }, "part.txt, line 5: not a row of the table"},
    {"ARowCutShort", [](auto& rows) { rows[4].resize(700); }, "part.txt, line 5: not a row of the table"},
    {"NoBlankAtTheEnd", [](auto& rows) { rows[4].pop_back(); }, "part.txt, line 5: not a row of the table"},
    {"AnEntryTooMany", [](auto& rows) { rows[4] += "0.25 "; }, "part.txt, line 5: not a row of the table"},
    {"TwoBlanks", [](auto& rows) { Replace(rows[4], " ", "  "); }, "part.txt, line 5: not a row of the table"},
    {"ALineEndOfTwoCharacters", [](auto& rows) { rows[4] += '\r'; }, "part.txt, line 5: not a row of the table"},
    {"NoHalf", [](auto& rows) { Replace(rows[0], "0.5 ", "0.4 "); }, "part.txt, line 1: not a row of the table"},
    {"TwoHalves", [](auto& rows) { Replace(rows[0], "0.878595", "0.5"); }, "part.txt, line 1: not a row of the table"},
    {"AWord", [](auto& rows) { Replace(rows[0], "0.878595", "0.8785nn"); }, "part.txt, line 1: not a row of the table"},
    {"AnEntryOfOne", [](auto& rows) { Replace(rows[0], "0.878595", "1"); }, "part.txt, line 1: not a row of the table"},
    {"TrailingZeros", [](auto& rows) { Replace(rows[0], "0.87893 ", "0.878930 "); },
     "part.txt, line 1: not a row of the table"},
    {"AnEntryUnlikeItsMirror", [](auto& rows) { Replace(rows[0], "0.878595", "0.878596"); },
     "the rows of AA and AKs do not add up to 1"},
});

TEST(EachDamage, IsNamed) {
  for (const DamageCase& c : kDamages) {
    SCOPED_TRACE(c.rule);
    std::vector<std::string> rows = TableRows();
    c.damage(rows);
    const JoinedRows joined = JoinRows(std::vector<RowFile>{{"part.txt", LinesOf(rows)}});
    EXPECT_EQ(joined.problem, c.problem);
    EXPECT_TRUE(joined.rows.empty());
  }
}

TEST(EquityRowText, NoFilesHaveNoRows) {
  EXPECT_EQ(JoinRows({}).problem, "no row of AA");
}

}  // namespace
}  // namespace quillon
