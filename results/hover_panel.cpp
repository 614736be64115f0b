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

// A shove may be analysed with nothing to call, and then there is nothing to measure a return by.
std::string ReturnText(double expectedValue, double callAmount) {
  if (callAmount == 0) return "N/A";
  const double share = expectedValue / callAmount;
  return std::isfinite(share * 100) ? PercentText(share, 1) : "N/A";
}

std::string_view AdviceOn(double expectedValue) {
  if (expectedValue < 0) return "You should FOLD";
  return expectedValue > 0 ? "You should go ALL IN" : "FOLD or ALL IN";
}

void FillMove(const HandResult& result, const Scenario& scenario, double callAmount, HoverWindow& window) {
  const bool raise = scenario.HasCallingRange;
  window.SetHoverPicture(result.ExpectedValue > 0 ? HoverPicture::kGreen : HoverPicture::kRed);
  window.SetHoverHand(result.Label);
  window.SetHoverFoldLineVisible(raise);
  if (raise) window.SetHoverFoldShare(PercentText(result.FoldShare, 2));
  window.SetHoverEquityTitle(raise ? "Equity when Called:" : "Equity:");
  window.SetHoverEquity(EquityText(result.Equity));
  window.SetHoverValue(ValueText(result.ExpectedValue));
  window.SetHoverReturn(ReturnText(result.ExpectedValue, callAmount));
  window.SetHoverAdvice(AdviceOn(result.ExpectedValue));
}

void FillEquity(const HandResult& result, HoverWindow& window) {
  constexpr double kGoodEquity = 0.25;
  window.SetHoverHand(result.Label);
  window.SetHoverPicture(HoverPicture::kBlue);
  window.SetHoverEquityTitle("Equity:");
  // Intentional: unlike the other scenarios this one rounds before it multiplies, and -1 is a number to it as any
  // other.
  window.SetHoverEquity(NumberText(RoundTo(result.Equity, 4) * 100) + "%");
  window.SetHoverAdvice(result.Equity >= kGoodEquity ? ":)" : ":(");
}

}  // namespace

void ShowHandHover(std::int16_t index, const Analysis& analysis, HoverWindow& window) {
  const Scenario* const scenario = FindRow(kScenarios, analysis.Mode);
  if (scenario == nullptr || analysis.HandInfo.empty()) return;

  const HandResult result = GetHandResult(analysis.HandInfo, HandLabel(index));
  const bool hasValue = scenario->HasExpectedValue();
  window.SetHoverValueLinesVisible(hasValue);
  if (!hasValue) window.SetHoverFoldLineVisible(false);
  if (window.HoverHand() != result.Label) {
    if (hasValue) FillMove(result, *scenario, analysis.CallAmount, window);
    if (!hasValue) FillEquity(result, window);
  }
  PlaceHover(index, window);
}

void PlaceHover(std::int16_t index, HoverWindow& window) {
  window.SetHoverRect(HoverPlace(window.HoverRect(), window.SquareRect(index), window.GridScreenRect()));
  window.ShowHover();
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
