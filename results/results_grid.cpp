#include "results/results_grid.h"

#include <cstddef>
#include <string_view>

#include "analysis/analysis_driver.h"
#include "analysis/expected_value.h"
#include "analysis/results_table.h"
#include "hand/hand_classes.h"
#include "ranges/range_summary.h"
#include "results/formula_texts.h"
#include "results/grid_colors.h"
#include "support/number_text.h"
#include "support/rounding.h"

namespace quillon {
namespace {

constexpr Rgb kResultsNavColor = {255, 255, 192};

std::string ProfitablePercentText(const AnalysisState& state) {
  // Intentional: one less than the number of concrete hands. With all of them profitable the text still says 100.
  constexpr double kDivisor = 1325;

  double combos = 0;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const std::string_view hand = HandLabel(index);
    if (GetHandInfo(state.HandInfo, hand, kExpectedValueColumn) >= 0) combos += ComboCount(hand);
  }
  return NumberText(PercentOf(combos, kDivisor, 0));
}

std::string ProfitableSentence(const AnalysisState& state) {
  return "In this situation, " + ProfitablePercentText(state) + "% of hands are profitable.";
}

std::string PotAndCallText(const AnalysisState& state) {
  return "Pot Size: " + RoundedText(state.PotSize, 2) + " | Call Amount: " + RoundedText(state.CallAmount, 2);
}

GridTexts CallTexts(const AnalysisState& state) {
  const double odds = PotOdds(state.PotSize, state.CallAmount);
  const std::string oddsText = RoundedText(odds, 2) + ":1";
  return {
      .Title = "ALL IN Grid",
      .HandInfo = PotAndCallText(state) + " | Odds: " + oddsText + "\r\nHis Range: " + RangeSummary(state.RangeText),
      .Results =
          "If you call with all of the hands in green you will profit in the long run. You should fold "
          "everything else.\r\n\r\nSince you are getting " +
          oddsText + " odds, you need " + RoundedText(BreakEvenEquity(odds) * 100, 2) +
          "% equity in order to call.\r\n\r\n" + ProfitableSentence(state),
      .LegendVisible = true,
  };
}

GridTexts RaiseTexts(const AnalysisState& state) {
  return {
      .Title = "ALL IN Grid",
      .HandInfo = PotAndCallText(state) + " | Shove Amount: " + RoundedText(state.ShoveAmount, 2) +
                  "\r\nHis Calling Range: " + RangeSummary(state.CallingRangeText),
      .Results =
          "If you raise with all of the hands in green you will profit in the long run. For any hand, you "
          "should also consider how well you and your opponent play after the flop to decide whether or not "
          "calling is an option.\r\n\r\n" +
          ProfitableSentence(state),
      .LegendVisible = true,
  };
}

// Intentional: the spelling of "meausrement", which is the program's own.
GridTexts EquityTexts(const AnalysisState& state) {
  return {
      .Title = "Equity Grid",
      .HandInfo = "His Range: " + RangeSummary(state.RangeText),
      .Results =
          "Equity is a meausrement of how much value you have in the current hand. In other words, it is what "
          "percentage you will win against your opponent's range.",
      .LegendVisible = false,
  };
}

double FractionOf(double value, double span) {
  return span == 0 ? 0 : value / span;
}

// The colour of a cell by its value, where `high` and `low` span the shown column.
Rgb CellColor(AnalysisMode mode, double value, double high, double low) {
  if (mode == AnalysisMode::kEquityOnly) return EquityColor(FractionOf(value - low, high - low));
  if (value >= 0) return EVColor(FractionOf(value, high), "+");
  return EVColor(FractionOf(value, low), "-");
}

}  // namespace

GridTexts MakeGridTexts(const AnalysisState& state) {
  switch (state.Mode) {
    case AnalysisMode::kPreflopCall:
      return CallTexts(state);
    case AnalysisMode::kPreflopRaise:
      return RaiseTexts(state);
    case AnalysisMode::kEquityOnly:
      return EquityTexts(state);
    case AnalysisMode::kNone:
      break;
  }
  return {};
}

std::array<Rgb, kHandClassCount> GridColors(const AnalysisState& state) {
  const std::string_view table = state.HandInfo;
  const std::int16_t column = state.Mode == AnalysisMode::kEquityOnly ? kEquityColumn : kExpectedValueColumn;
  const double high = GetHandInfo(table, BestHand(table, column), column);
  const double low = GetHandInfo(table, WorstHand(table, column), column);

  std::array<Rgb, kHandClassCount> colors;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const double value = GetHandInfo(table, HandLabel(index), column);
    colors[static_cast<std::size_t>(index)] = CellColor(state.Mode, value, high, low);
  }
  return colors;
}

void FillResults(ResultsWindow& window, const AnalysisState& state) {
  const GridTexts texts = MakeGridTexts(state);
  window.SetHandInfoText(texts.HandInfo);
  window.SetResultsCaption(texts.Results);
  window.SetGridTitle(texts.Title);
  window.SetLegendVisible(texts.LegendVisible);
}

void SetResultsShown(ResultsWindow& window, bool shown) {
  for (std::int16_t index = kFirstResultsNav; index < window.NavCount(); ++index) {
    window.SetNavColor(index, kResultsNavColor);
    window.SetNavVisible(index, shown);
  }
  window.SetNoResultsVisible(!shown);
  window.SetNoResultsCaption(kNoResultsCaption);
}

void PresentResults(const AnalysisState& state, ResultsWindow& window) {
  const std::array<Rgb, kHandClassCount> colors = GridColors(state);
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    window.SetCellColor(index, colors[static_cast<std::size_t>(index)]);
  FillResults(window, state);
}

}  // namespace quillon
