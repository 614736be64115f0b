#include "study/limit_cells.h"

#include <cstddef>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "hand/hand_classes.h"

namespace quillon {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

// Always AA, up to 25 AKs, from 30 on AQs, never all others.
Limits SomeLimits() {
  Limits limits{};
  limits[0] = {LimitKind::kAlways, 0};
  limits[1] = {LimitKind::kUpTo, 25};
  limits[2] = {LimitKind::kFrom, 30};
  return limits;
}

TEST(LimitCells, ArePaleAtAnAmountWhereTheHandLoses) {
  struct Case {
    const char* rule;
    std::size_t hand;
    double amount;
    bool pale;
    const char* words;
  };
  for (const Case& c : {
           Case{"always", 0, 1e9, false, "always, does not lose at 1000000000"},
           Case{"up to an amount, below it", 1, 20, false, "up to 25, does not lose at 20"},
           Case{"at it", 1, 25, false, "up to 25, does not lose at 25"},
           Case{"above it", 1, 25.01, true, "up to 25, loses at 25.01"},
           Case{"from an amount on, below it", 2, 29, true, "from 30 on, loses at 29"},
           Case{"at it", 2, 30, false, "from 30 on, does not lose at 30"},
           Case{"never", 3, 1, true, "never, loses at 1"},
       }) {
    const ClassCell cell = LimitCellsAt(SomeLimits(), c.amount)[c.hand];
    EXPECT_EQ(cell.Pale, c.pale) << c.rule;
    EXPECT_EQ(cell.Words, c.words) << c.rule;
    const ClassCell plain = LimitCells(SomeLimits())[c.hand];
    EXPECT_EQ(cell.Color == plain.Color, !c.pale) << c.rule;
    EXPECT_EQ(cell.Text, plain.Text) << c.rule;
    EXPECT_FALSE(plain.Pale) << c.rule;
  }
}

TEST(LimitCells, ArePaleByAVeilOfThreeQuarters) {
  EXPECT_EQ(LimitCells(SomeLimits())[2].Color, (Rgb{0xFF, 0xD3, 0x7A}));
  EXPECT_EQ(LimitCellsAt(SomeLimits(), 29)[2].Color, (Rgb{0xFF, 0xF4, 0xDE}));
}

TEST(LimitCells, TellPaleFromFullByContrast) {
  for (const ClassCell& cell : LimitCellsAt(SomeLimits(), 27))
    EXPECT_GE(ContrastRatio(cell.Color, ReadableOn(cell.Color)), 4.5) << cell.Words;
}

// The shade of an amount on the scale of two.
Rgb Shade(double least, double most, double amount) {
  AmountShades shades;
  shades.Add(most);
  shades.Add(least);
  return shades.Of(amount);
}

TEST(AmountShades, DependOnRatiosOnly) {
  for (const double amount : {2, 3, 8})
    EXPECT_EQ(Shade(2, 8, amount), Shade(200, 800, 100 * amount)) << amount;
  EXPECT_NE(Shade(2, 8, 2), Shade(2, 8, 8));
  EXPECT_EQ(Shade(5, 5, 5), Shade(2, 8, 2)) << "the palest";
  EXPECT_EQ(Shade(2, 8, 3.95), AmountShades::Middle());
}

TEST(LimitLegend, HasALineForPaleHandsWhereThereAreAny) {
  EXPECT_EQ(LimitLegendAt(SomeLimits(), 27).size(), 5U);
  EXPECT_EQ(LimitLegendAt(SomeLimits(), 27).back().Text, "pale: loses at 27");
  Limits all{};
  all.fill({LimitKind::kAlways, 0});
  EXPECT_EQ(LimitLegendAt(all, 27).size(), 1U);
}

TEST(CombosGoodAt, CountsConcreteHands) {
  EXPECT_EQ(CombosGoodAt(SomeLimits(), 25), 10);
  EXPECT_EQ(CombosGoodAt(SomeLimits(), 27), 6);
  EXPECT_EQ(CombosGoodAt(SomeLimits(), 30), 10);
}

TEST(LimitTable, HasEveryDigit) {
  Limits limits = SomeLimits();
  limits[1].Amount = 116724.440523361;
  const std::string table = LimitTable(limits, ',');
  EXPECT_THAT(table, StartsWith("hand,limit,amount\nAA,always,\nAKs,up to,116724.440523361\nAQs,from,30\n"));
  EXPECT_THAT(table, HasSubstr("\n22,never,\n"));
  EXPECT_THAT(LimitTable(limits, '\t'), HasSubstr("\nAQs\tfrom\t30\n"));
}

}  // namespace
}  // namespace quillon
