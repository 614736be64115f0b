#include "results/hover_panel.h"

#include <cmath>

#include "analysis/results_table.h"
#include "hand/hand_classes.h"
#include "results/formula_texts.h"
#include "support/number_text.h"
#include "support/rounding.h"

namespace quillon {
namespace {

struct HandFigures {
  std::string_view Hand;
  double ExpectedValue;
  double Equity;
  double FoldShare;
};

HandFigures FiguresOf(std::string_view hand, std::string_view table) {
  return {.Hand = hand,
          .ExpectedValue = GetHandInfo(table, hand, kExpectedValueColumn),
          .Equity = GetHandInfo(table, hand, kEquityColumn),
          .FoldShare = GetHandInfo(table, hand, kFoldShareColumn)};
}

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

void FillMove(const HandFigures& figures, const AnalysisState& state, HoverWindow& window) {
  const bool raise = state.Mode == AnalysisMode::kPreflopRaise;
  window.SetHoverPicture(figures.ExpectedValue > 0 ? HoverPicture::kGreen : HoverPicture::kRed);
  window.SetHoverHand(figures.Hand);
  window.SetHoverFoldLineVisible(raise);
  if (raise) window.SetHoverFoldShare(PercentText(figures.FoldShare, 2));
  window.SetHoverEquityTitle(raise ? "Equity when Called:" : "Equity:");
  window.SetHoverEquity(EquityText(figures.Equity));
  window.SetHoverValue(ValueText(figures.ExpectedValue));
  window.SetHoverReturn(ReturnText(figures.ExpectedValue, state.CallAmount));
  window.SetHoverAdvice(AdviceOn(figures.ExpectedValue));
}

void FillEquity(const HandFigures& figures, HoverWindow& window) {
  constexpr double kGoodEquity = 0.25;
  window.SetHoverHand(figures.Hand);
  window.SetHoverPicture(HoverPicture::kBlue);
  window.SetHoverEquityTitle("Equity:");
  // Unlike the other scenarios this one rounds before it multiplies, and -1 is a number to it as any other. It is
  // meant.
  window.SetHoverEquity(NumberText(RoundTo(figures.Equity, 4) * 100) + "%");
  window.SetHoverAdvice(figures.Equity >= kGoodEquity ? ":)" : ":(");
}

void FillHover(std::string_view hand, const AnalysisState& state, HoverWindow& window) {
  const HandFigures figures = FiguresOf(hand, state.HandInfo);
  switch (state.Mode) {
    case AnalysisMode::kPreflopCall:
    case AnalysisMode::kPreflopRaise:
      return FillMove(figures, state, window);
    case AnalysisMode::kEquityOnly:
      return FillEquity(figures, window);
    case AnalysisMode::kNone:
      return;
  }
}

}  // namespace

void ShowHandHover(std::int16_t index, const AnalysisState& state, HoverWindow& window) {
  if (state.HandInfo.empty()) return;

  const std::string_view hand = HandLabel(index);
  const bool equityOnly = state.Mode == AnalysisMode::kEquityOnly;
  window.SetHoverValueLinesVisible(!equityOnly);
  if (equityOnly) window.SetHoverFoldLineVisible(false);
  if (window.HoverHand() != hand) FillHover(hand, state, window);
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
