#include "results/hover_panel.h"

#include <cmath>

#include "analysis/results_table.h"
#include "hand/hand_classes.h"
#include "results/formula_texts.h"
#include "support/number_text.h"
#include "support/rounding.h"

namespace quillon {
namespace {

std::string PercentText(double share, int digits) {
  return RoundedText(share * 100, digits) + "%";
}

std::string EquityText(double equity) {
  constexpr double kNeverCalled = -1;
  return equity == kNeverCalled ? "N/A" : PercentText(equity, 2);
}

std::string ValueText(double expectedValue) {
  return (expectedValue > 0 ? "+" : "") + RoundedText(expectedValue, 8);
}

// A shove may be analysed with nothing to call, and then there is no return.
std::string ReturnText(double expectedValue, double callAmount) {
  if (callAmount == 0) return "N/A";
  const double share = expectedValue / callAmount;
  return std::isfinite(share * 100) ? PercentText(share, 1) : "N/A";
}

std::string_view AdviceOn(double expectedValue) {
  if (expectedValue < 0) return "You should FOLD";
  return expectedValue > 0 ? "You should go ALL IN" : "FOLD or ALL IN";
}

HoverTexts MoveTexts(const HandResult& result, const Scenario& scenario, double callAmount) {
  HoverTexts texts{.Picture = result.ExpectedValue > 0 ? HoverPicture::kGreen : HoverPicture::kRed,
                   .Hand = result.Label,
                   .EquityTitle = scenario.EquityTitle,
                   .Equity = EquityText(result.Equity),
                   .Value = ValueText(result.ExpectedValue),
                   .Return = ReturnText(result.ExpectedValue, callAmount),
                   .FoldShare = {},
                   .Advice = AdviceOn(result.ExpectedValue)};
  if (scenario.HasCallingRange) texts.FoldShare = PercentText(result.FoldShare, 2);
  return texts;
}

HoverTexts EquityTexts(const HandResult& result, const Scenario& scenario) {
  constexpr double kGoodEquity = 0.25;
  // Intentional: unlike the other scenarios this one rounds before it multiplies, and treats -1 like any other number.
  return {.Picture = HoverPicture::kBlue,
          .Hand = result.Label,
          .EquityTitle = scenario.EquityTitle,
          .Equity = NumberText(RoundTo(result.Equity, 4) * 100) + "%",
          .Value = {},
          .Return = {},
          .FoldShare = {},
          .Advice = result.Equity >= kGoodEquity ? ":)" : ":("};
}

}  // namespace

std::optional<HoverTexts> MakeHoverTexts(std::int16_t index, const Analysis& analysis) {
  const Scenario* const scenario = FindRow(kScenarios, analysis.Mode);
  if (scenario == nullptr || analysis.HandInfo.empty()) return std::nullopt;
  const HandResult result = GetHandResult(analysis.HandInfo, HandLabel(index));
  return scenario->HasExpectedValue() ? MoveTexts(result, *scenario, analysis.Amounts.CallAmount)
                                      : EquityTexts(result, *scenario);
}

TwipRect HoverPlace(const TwipRect& panel, const TwipRect& square, const TwipRect& screen) {
  constexpr float kGap = 25;
  const bool leavesRight = panel.Width + square.Left > screen.Width;
  const bool leavesBottom = square.Height + square.Top + kGap + panel.Height > screen.Height;
  TwipRect place = panel;
  place.Left = leavesRight ? square.Left - panel.Width : square.Left;
  place.Top = leavesBottom ? square.Top - panel.Height - kGap : square.Top + square.Height + kGap;
  return place;
}

}  // namespace quillon
