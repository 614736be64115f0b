#include "analysis/results_table.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <initializer_list>
#include <limits>
#include <numeric>
#include <string>
#include <vector>

#include "hand/hand_classes.h"
#include "testing/fault_of.h"

namespace quillon {
namespace {

// A table whose rows r0, r1, r2 ... have these texts in column 1.
std::string TableOf(std::initializer_list<std::string> values) {
  std::string table;
  int row = 0;
  for (const std::string& value : values)
    table += "r" + std::to_string(row++) + "\t" + value + "\t\t\t\r\n";
  return table;
}

TEST(SetHandInfo, TheRowGrowsByOneCellAWrite) {
  std::string table;
  table = SetHandInfo(table, "AA", 1, 1.5, 3);
  EXPECT_EQ(table, "AA\t1.5\t\t\r\n");
  table = SetHandInfo(table, "AA", 2, 0.85, 3);
  EXPECT_EQ(table, "AA\t1.5\t0.85\t\t\r\n");
  table = SetHandInfo(table, "AA", 3, 0.25, 3);
  EXPECT_EQ(table, "AA\t1.5\t0.85\t0.25\t\r\n");
}

TEST(SetHandInfo, ChangesOneCellOfOneRow) {
  struct Row {
    const char* name;
    const char* table;
    const char* label;
    std::int16_t column;
    double value;
    std::int16_t lastColumn;
    const char* result;
  };
  for (const Row& row : {
           Row{"a column beyond the last is written all the same", "", "AKs", 2, 1, 1, "AKs\t\t1\r\n"},
           Row{"a new row goes to the end", "AA\t1\t\t\r\n", "AKs", 1, 2, 3, "AA\t1\t\t\r\nAKs\t2\t\t\r\n"},
           Row{"other rows are copied as they are", "x\r\nAA\t1\t\t\r\n\t\t\r\n", "AA", 2, 2, 3,
               "x\r\nAA\t1\t2\t\t\r\n\t\t\r\n"},
           Row{"written twice it adds up", "AA\t1.5\t\t\r\n", "AA", 1, 2, 3, "AA\t3.5\t\t\t\r\n"},
           Row{"cells beyond the last column are dropped", "AA\t1\t2\t3\t4\t5\t\r\n", "AA", 1, 1, 2, "AA\t2\t2\t\r\n"},
           Row{"the old cell counts with its leading number", "AA\t12abc\t\t\r\n", "AA", 1, 1, 3, "AA\t13\t\t\t\r\n"},
           Row{"what follows the last line end is dropped", "AA\t1\t\t\r\nKK\t1", "AA", 2, 2, 3, "AA\t1\t2\t\t\r\n"},
           Row{"a row after the last line end is not found", "KK\t1", "KK", 1, 2, 3, "KK\t2\t\t\r\n"},
           Row{"every row of the key is changed", "AA\t1\t\r\nAA\t2\t\r\n", "AA", 1, 1, 1, "AA\t2\t\r\nAA\t3\t\r\n"},
           Row{"a key is compared whole", "AKs\t1\t\t\r\n", "AK", 1, 2, 3, "AKs\t1\t\t\r\nAK\t2\t\t\r\n"},
           Row{"a lone line feed ends no row", "AA\t1\nKK\t2\t\r\n", "KK", 1, 3, 1, "AA\t1\nKK\t2\t\r\nKK\t3\r\n"},
       }) {
    EXPECT_EQ(SetHandInfo(row.table, row.label, row.column, row.value, row.lastColumn), row.result) << row.name;
  }
}

TEST(SetHandInfo, NumbersHaveFifteenDigits) {
  EXPECT_EQ(SetHandInfo("", "AA", 1, 0.1 + 0.2, 1), "AA\t0.3\r\n");
  EXPECT_EQ(SetHandInfo("", "AA", 1, 1.0 - 0.920788, 1), "AA\t7.92119999999999E-02\r\n");
  EXPECT_EQ(FaultOf([] { return SetHandInfo("", "AA", 1, std::numeric_limits<double>::infinity(), 3); }),
            RunTimeFault::kOverflow);
}

TEST(GetHandInfo, LooksAtEveryPiece) {
  const std::string table = "AA\t-12.5\t-1\t0.25\t\r\nAKs\t3\t7.92119999999999E-02\t1\t\r\n";
  EXPECT_EQ(GetHandInfo(table, "AA", 3), 0.25);
  EXPECT_EQ(GetHandInfo(table, "AKs", 2), 0.0792119999999999);
  EXPECT_EQ(GetHandInfo(table, "AKs", 9), 0);
  EXPECT_EQ(GetHandInfo("", "AA", 1), 0);
  EXPECT_EQ(GetHandInfo("AA\t5", "AA", 1), 5) << "a row without line end is read";
  EXPECT_EQ(GetHandInfo("AA\t5", "KK", 1), 0) << "and by its key";
  EXPECT_EQ(GetHandInfo("\r\n\r\nAA\t5\t\r\n", "AA", 1), 5) << "empty rows are skipped";
  EXPECT_EQ(GetHandInfo("AA\t5\t\r\nAA\t6\t\r\n", "AA", 1), 5) << "the first row of a key counts";
  EXPECT_EQ(GetHandInfo("\r\n\t7\t\r\n", "", 1), 7) << "a row may have an empty key";
  EXPECT_EQ(GetHandInfo("AA\r\n", "AA", 1), 0) << "a cell that is missing reads as 0";
  EXPECT_EQ(GetHandInfo("AA\r\nAA\t5\t\r\n", "AA", 1), 0) << "even if a later row has one";
}

TEST(GetHandInfo, TakesALabelForAKeyOnlyInItsPlace) {
  EXPECT_EQ(GetHandInfo("x\tAA\t9\r\nAA\t5\t\r\n", "AA", 1), 5) << "a cell is not a key";
  EXPECT_EQ(GetHandInfo("AAA\t9\t\r\nAA\t5\t\r\n", "AA", 1), 5) << "nor as a part of another key";
  EXPECT_EQ(GetHandInfo("x\rAA\t9\r\nx\nAA\t9\r\nAA\t5\t\r\n", "AA", 1), 5) << "nor after half a line end";
  EXPECT_EQ(GetHandInfo("\nAA\t9\t\r\nAA\t5", "AA", 1), 5) << "nor after half of one at the start";
  EXPECT_EQ(GetHandInfo("AA\t1\t2\t\r\n", "AA\t1", 1), 0) << "two cells are not a key";
  EXPECT_EQ(GetHandInfo("AA\r\nKK\t2\t\r\n", "AA\r\nKK", 1), 0) << "nor are two rows";
  EXPECT_EQ(GetHandInfo("AA\r\t7\t\r\n", "AA\r", 1), 7) << "a lone carriage return belongs to the key";
}

TEST(BestHand, GoesByTheRoundedBestSoFar) {
  struct Row {
    const char* name;
    std::string table;
    const char* best;
  };
  for (const Row& row : {
           Row{"a higher value takes over", TableOf({"12.3", "12.6", "12.1"}), "r1"},
           Row{"a value rounded up keeps off the true maximum", TableOf({"12.6", "12.4", "12.7"}), "r0"},
           Row{"a value rounded down lets a lower one pass", TableOf({"12.4", "12.3", "12.2"}), "r2"},
           Row{"and here up", TableOf({"13.5", "13.9"}), "r0"},
           Row{"losses", TableOf({"-3.4", "-3.6", "-3.5"}), "r0"},
           Row{"the first row above a half wins among fractions", TableOf({"0.2", "0.51", "0.9"}), "r1"},
           Row{"with none above a half it is the last above 0", TableOf({"0.5", "0.4", "0.1", "0"}), "r2"},
           Row{"all at -10000 or below", TableOf({"-10000", "-10001"}), ""},
           Row{"an empty cell is 0", TableOf({"-5", ""}), "r1"},
           Row{"the empty table", "", ""},
           Row{"nothing after the last line end is looked at", "AA\t1\t\r\nKK\t5", "AA"},
           Row{"beyond 32 bits as ever, rounded up", TableOf({"5000000000.6", "5000000000.9"}), "r0"},
       }) {
    EXPECT_EQ(BestHand(row.table, 1), row.best) << row.name;
  }
}

TEST(WorstHand, IsTheTrueMinimum) {
  struct Row {
    const char* name;
    std::string table;
    const char* worst;
  };
  for (const Row& row : {
           Row{"unrounded", TableOf({"12.4", "12.3", "12.35"}), "r1"},
           Row{"losses", TableOf({"-3.4", "-3.6", "-3.5"}), "r1"},
           Row{"the first of equal values", TableOf({"5", "3", "3"}), "r1"},
           Row{"all at 10000 or above", TableOf({"10000", "10001"}), ""},
           Row{"just below 10000", TableOf({"10000", "9999.9"}), "r1"},
           Row{"an empty cell is 0", TableOf({"5", ""}), "r1"},
           Row{"the empty table", "", ""},
           Row{"after the last line end nothing is looked at", "AA\t1\t\r\nKK\t-5", "AA"},
       }) {
    EXPECT_EQ(WorstHand(row.table, 1), row.worst) << row.name;
  }
}

// Whatever the order, and with rows missing, doubled or cut.
TEST(GetHandResults, HoldWhatASearchForEachClassFinds) {
  std::vector<std::string> rows;
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    rows.push_back(ResultRow({HandLabel(index), 0, index - 80.5, index / 200.0, 1.0 / (index + 1)}));
  const auto text = [](const std::vector<std::string>& parts) {
    return std::accumulate(parts.begin(), parts.end(), std::string());
  };
  const std::string finished = text(rows);
  std::vector<std::string> turned = rows;
  std::rotate(turned.begin(), turned.begin() + 40, turned.end());
  std::vector<std::string> gapped = rows;
  gapped.erase(gapped.begin() + 100);
  for (const std::string& table : {finished, text(turned), text(gapped), ResultRow({"72o", 0, 5, 5, 5}) + finished,
                                   "AA\t7\r\n" + finished, finished + finished, finished.substr(0, finished.size() - 2),
                                   finished.substr(0, 2000), std::string(), "\r\n" + finished}) {
    const auto results = GetHandResults(table);
    for (std::int16_t index = 0; index < kHandClassCount; ++index)
      EXPECT_EQ(results.at(static_cast<std::size_t>(index)), GetHandResult(table, HandLabel(index)))
          << HandLabel(index);
  }
}

TEST(ResultRow, IsTheFinishedRow) {
  EXPECT_EQ(ResultRow({"AA", 6, 120, 0.85, 1}), "AA\t120\t0.85\t1\t\r\n");
  EXPECT_EQ(ResultRow({"72o", 12, -25.32, -1, 0.0}), "72o\t-25.32\t-1\t0\t\r\n");
}

TEST(GetHandResult, ReadsARow) {
  const std::string table = ResultRow({"AA", 6, 120, 0.85, 1}) + ResultRow({"AKs", 4, -0.5, 0.25, 0.1});
  EXPECT_EQ(GetHandResult(table, "AA"), (HandResult{"AA", 6, 120, 0.85, 1}));
  EXPECT_EQ(GetHandResult(table, "AKs"), (HandResult{"AKs", 4, -0.5, 0.25, 0.1}));
  EXPECT_EQ(GetHandResult(table, "AKo"), (HandResult{"AKo", 12, 0, 0, 0})) << "no row";
}

}  // namespace
}  // namespace quillon
