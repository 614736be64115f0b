#include "analysis/analysis.h"

#include <string_view>
#include <utility>

#include "hand/hand_classes.h"

namespace quillon {
namespace {

// Whether every class is done.
template <class Ranges>
bool Walk(Analysis& analysis, const Ranges& ranges, const AnalysisListener& listener) {
  const Scenario& scenario = ScenarioOf(analysis.Mode);
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    if (listener.Begins) listener.Begins(index);
    const ClassFigures figures = ranges.FiguresOf(scenario, index);
    if (scenario.HasCallingRange && index == kLastClass) analysis.DroppedHands = ranges.DroppedHands();
    const Amounts amounts = listener.AmountsNow ? listener.AmountsNow() : analysis.Amounts;
    analysis.HandInfo += ResultRow(ResultOf(scenario, index, figures, amounts));
    if (listener.GoesOn && !listener.GoesOn(index, analysis)) return false;
  }
  return true;
}

}  // namespace

void StoreAsked(const Situation& asked, Situation& kept) {
  const Scenario& scenario = ScenarioOf(asked.Mode);
  kept.Amounts = scenario.TakeAmounts(asked.Amounts, kept.Amounts);
  kept.RangeName = asked.RangeName;
  kept.RangeText = asked.RangeText;
  if (!scenario.HasCallingRange) return;
  kept.CallingRangeName = asked.CallingRangeName;
  kept.CallingRangeText = asked.CallingRangeText;
}

std::optional<Analysis> Analyze(Situation situation, const AnalysisListener& listener) {
  Analysis analysis{std::move(situation), {}, {}};
  const RangeTexts ranges({analysis.RangeName, analysis.RangeText},
                          {analysis.CallingRangeName, analysis.CallingRangeText});
  if (!Walk(analysis, ranges, listener)) return std::nullopt;
  return analysis;
}

std::optional<Analysis> Analyze(Situation situation, const RangeNumbers& ranges, const AnalysisListener& listener) {
  Analysis analysis{std::move(situation), {}, {}};
  if (!Walk(analysis, ranges, listener)) return std::nullopt;
  return analysis;
}

HandResult ResultOf(const Scenario& scenario, std::int16_t index, const ClassFigures& figures, const Amounts& amounts) {
  const std::string_view label = HandLabel(index);
  return {.Label = label,
          .Combos = ComboCount(label),
          .ExpectedValue =
              scenario.HasExpectedValue() ? scenario.ExpectedValue(amounts, figures.Equity, figures.CallShare) : 0,
          .Equity = figures.Equity,
          .FoldShare = 1 - figures.CallShare};
}

}  // namespace quillon
