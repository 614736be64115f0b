#include "results/results_grid.h"

#include <algorithm>

#include "analysis/expected_value.h"
#include "analysis/results_table.h"
#include "ranges/range_summary.h"
#include "results/formula_texts.h"
#include "results/grid_colors.h"
#include "support/joined_text.h"
#include "support/number_text.h"
#include "support/rgb.h"
#include "support/rounding.h"

namespace quillon {
namespace {

std::string ProfitablePercentText(const Analysis& analysis) {
  // Intentional: one less than the number of concrete hands. With all of them profitable the text still says 100.
  constexpr double kDivisor = 1325;

  double combos = 0;
  for (const HandResult& hand : GetHandResults(analysis.HandInfo)) {
    if (hand.ExpectedValue >= 0) combos += hand.Combos;
  }
  return NumberText(PercentOf(combos, kDivisor, 0));
}

std::string ProfitableSentence(const Analysis& analysis) {
  return "In this situation, " + ProfitablePercentText(analysis) + "% of hands are profitable.";
}

std::string AmountsText(const Analysis& analysis) {
  std::string text;
  for (const AmountKind& amount : ScenarioOf(analysis.Mode).AskedAmounts())
    text += Joined({text.empty() ? "" : " | ", amount.Title, ": ", RoundedText(analysis.Amounts.*amount.Value, 2)});
  return text;
}

GridTexts CallTexts(const Analysis& analysis) {
  const double odds = PotOdds(analysis.Amounts.PotSize, analysis.Amounts.CallAmount);
  const std::string oddsText = RoundedText(odds, 2) + ":1";
  return {
      .Title = std::string(kGridTitle),
      .HandInfo = AmountsText(analysis) + " | Odds: " + oddsText + "\r\nHis Range: " + RangeSummary(analysis.RangeText),
      .Results =
          "If you call with all of the hands in green you will profit in the long run. You should fold "
          "everything else.\r\n\r\nSince you are getting " +
          oddsText + " odds, you need " + RoundedText(BreakEvenEquity(odds) * 100, 2) +
          "% equity in order to call.\r\n\r\n" + ProfitableSentence(analysis),
      .LegendVisible = true,
  };
}

GridTexts RaiseTexts(const Analysis& analysis) {
  return {
      .Title = std::string(kGridTitle),
      .HandInfo = AmountsText(analysis) + "\r\nHis Calling Range: " + RangeSummary(analysis.CallingRangeText),
      .Results =
          "If you raise with all of the hands in green you will profit in the long run. For any hand, you "
          "should also consider how well you and your opponent play after the flop to decide whether or not "
          "calling is an option.\r\n\r\n" +
          ProfitableSentence(analysis),
      .LegendVisible = true,
  };
}

// Intentional: the spelling "meausrement", which users know.
GridTexts EquityTexts(const Analysis& analysis) {
  return {
      .Title = "Equity Grid",
      .HandInfo = "His Range: " + RangeSummary(analysis.RangeText),
      .Results =
          "Equity is a meausrement of how much value you have in the current hand. In other words, it is what "
          "percentage you will win against your opponent's range.",
      .LegendVisible = false,
  };
}

double FractionOf(double value, double span) {
  return span == 0 ? 0 : value / span;
}

// The colour of a cell; `high` and `low` span the shown column.
Rgb CellColor(std::int16_t column, double value, double high, double low) {
  if (column == kEquityColumn) return EquityColor(FractionOf(value - low, high - low));
  if (value >= 0) return EVColor(FractionOf(value, high), "+");
  return EVColor(FractionOf(value, low), "-");
}

struct GridRow {
  AnalysisMode Mode = AnalysisMode::kNone;
  GridTexts (*Texts)(const Analysis& analysis) = nullptr;
};

constexpr ScenarioTable<GridRow> kGridRows = {{
    {AnalysisMode::kPreflopCall, CallTexts},
    {AnalysisMode::kPreflopRaise, RaiseTexts},
    {AnalysisMode::kEquityOnly, EquityTexts},
}};
static_assert(CoversEveryScenario(kGridRows));

}  // namespace

std::int16_t ShownColumn(const Analysis& analysis) {
  const Scenario* const scenario = FindRow(kScenarios, analysis.Mode);
  return scenario != nullptr && !scenario->HasExpectedValue() ? kEquityColumn : kExpectedValueColumn;
}

GridTexts MakeGridTexts(const Analysis& analysis) {
  const GridRow* const row = FindRow(kGridRows, analysis.Mode);
  return row == nullptr ? GridTexts() : row->Texts(analysis);
}

CellColors GridColors(const Analysis& analysis) {
  const std::string_view table = analysis.HandInfo;
  const std::int16_t column = ShownColumn(analysis);
  const double high = GetHandInfo(table, BestHand(table, column), column);
  const double low = GetHandInfo(table, WorstHand(table, column), column);

  CellColors colors{};
  const auto cell = kResultCells.at(static_cast<std::size_t>(column) - 1);
  std::ranges::transform(GetHandResults(table), colors.begin(),
                         [&](const HandResult& hand) { return CellColor(column, hand.*cell, high, low); });
  return colors;
}

std::vector<ShownHand> ShownHands(const Analysis& analysis) {
  const CellColors colors = GridColors(analysis);
  std::vector<ShownHand> hands;
  hands.reserve(colors.size());
  for (const HandResult& hand : GetHandResults(analysis.HandInfo))
    hands.emplace_back(hand, ColorText(colors.at(hands.size())));
  return hands;
}

}  // namespace quillon
