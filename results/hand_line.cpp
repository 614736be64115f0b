#include "results/hand_line.h"

#include <cstdint>
#include <string>

#include "analysis/results_table.h"
#include "results/formula_texts.h"
#include "support/number_text.h"

namespace quillon {
namespace {

std::string SignedMoneyText(double value) {
  return (value > 0 ? "+" : "") + RoundedText(value, 2);
}

std::string CallText(const AnalysisState& state, const std::string& hand) {
  const double expectedValue = GetHandInfo(state.HandInfo, hand, kExpectedValueColumn);
  const double equity = GetHandInfo(state.HandInfo, hand, kEquityColumn);
  return "EV for " + hand + " = " + RoundedText(equity, 4) + " * (" + NumberText(state.PotSize + state.CallAmount) +
         ") - " + NumberText(state.CallAmount) + " = " + SignedMoneyText(expectedValue);
}

std::string RaiseText(const AnalysisState& state, const std::string& hand) {
  const double expectedValue = GetHandInfo(state.HandInfo, hand, kExpectedValueColumn);
  const double equity = GetHandInfo(state.HandInfo, hand, kEquityColumn);
  const double foldShare = GetHandInfo(state.HandInfo, hand, kFoldShareColumn);
  return "EV for " + hand + " = " + ShoveFormulaText(state, foldShare, equity) + " = " + SignedMoneyText(expectedValue);
}

std::string EquityText(const AnalysisState& state, const std::string& hand) {
  return "Equity for " + hand + " : " + NumberText(GetHandInfo(state.HandInfo, hand, kEquityColumn));
}

// Empty before any analysis.
std::string WorkingText(const AnalysisState& state, const std::string& hand) {
  switch (state.Mode) {
    case AnalysisMode::kPreflopCall:
      return CallText(state, hand);
    case AnalysisMode::kPreflopRaise:
      return RaiseText(state, hand);
    case AnalysisMode::kEquityOnly:
      return EquityText(state, hand);
    case AnalysisMode::kNone:
      break;
  }
  return {};
}

}  // namespace

void AddSpecificHand(ReportBox& box, const AnalysisState& state, std::string_view hand) {
  constexpr std::int16_t kSize = 10;

  if (hand == "None") return;
  const std::string working = WorkingText(state, std::string(hand));
  if (working.empty()) return;

  SetReportFont(box, kFixedWidthFontCode, kSize, kBlack);
  std::string line = "\r\n[COLOR=\"DimGray\"]" + working + "[/COLOR]";
  AppendReportLine(box, line, kNameColumn);
}

}  // namespace quillon
