#include "results/hand_line.h"

#include <cstdint>
#include <string>

#include "analysis/results_table.h"
#include "results/formula_texts.h"
#include "support/joined_text.h"
#include "support/number_text.h"

namespace quillon {
namespace {

std::string SignedMoneyText(double value) {
  return (value > 0 ? "+" : "") + RoundedText(value, 2);
}

std::string CallText(const Analysis& analysis, const HandResult& hand) {
  return Joined({"EV for ", hand.Label, " = ", RoundedText(hand.Equity, 4), " * (",
                 NumberText(analysis.PotSize + analysis.CallAmount), ") - ", NumberText(analysis.CallAmount), " = ",
                 SignedMoneyText(hand.ExpectedValue)});
}

std::string RaiseText(const Analysis& analysis, const HandResult& hand) {
  return Joined(
      {"EV for ", hand.Label, " = ", ShoveFormulaText(analysis, hand), " = ", SignedMoneyText(hand.ExpectedValue)});
}

std::string EquityText(const Analysis& /*analysis*/, const HandResult& hand) {
  return Joined({"Equity for ", hand.Label, " : ", NumberText(hand.Equity)});
}

struct WorkingRow {
  AnalysisMode Mode = AnalysisMode::kNone;
  std::string (*Text)(const Analysis& analysis, const HandResult& hand) = nullptr;
};

constexpr ScenarioTable<WorkingRow> kWorkings = {{
    {AnalysisMode::kPreflopCall, CallText},
    {AnalysisMode::kPreflopRaise, RaiseText},
    {AnalysisMode::kEquityOnly, EquityText},
}};
static_assert(CoversEveryScenario(kWorkings));

}  // namespace

void AddSpecificHand(ReportText& box, const Analysis& analysis, std::string_view hand) {
  constexpr std::int16_t kSize = 10;

  const WorkingRow* const row = FindRow(kWorkings, analysis.Mode);
  if (row == nullptr || hand == "None") return;

  SetReportFont(box, kFixedWidthFontCode, kSize, kBlack);
  const std::string working = row->Text(analysis, GetHandResult(analysis.HandInfo, hand));
  std::string line = "\r\n[COLOR=\"DimGray\"]" + working + "[/COLOR]";
  AppendReportLine(box, line, kNameColumn);
}

}  // namespace quillon
