#include "analysis/entered_situation.h"

namespace quillon {

double BoxValue(std::string_view text) {
  std::string amount(text);
  std::erase(amount, '$');
  return LeadingNumber(amount);
}

Amounts AmountsOf(const EnteredSituation& entered) {
  return {.Pot = BoxValue(entered.Pot), .Call = BoxValue(entered.Call), .Shove = BoxValue(entered.Shove)};
}

Situation SituationOf(AnalysisMode mode, const EnteredSituation& entered, const ProgramFolder& folder) {
  const Scenario& scenario = ScenarioOf(mode);
  const Amounts amounts = AmountsOf(entered);
  Situation situation;
  situation.Mode = mode;
  if (scenario.AmountCount > 0) situation.PotSize = amounts.Pot;
  if (scenario.AmountCount > 1) situation.CallAmount = amounts.Call;
  if (scenario.AmountCount > 2) situation.ShoveAmount = amounts.Shove;
  situation.RangeName = entered.Range;
  situation.RangeText = LoadRangeText(folder, entered.Range);
  if (scenario.HasCallingRange) {
    situation.CallingRangeName = entered.CallingRange;
    situation.CallingRangeText = LoadRangeText(folder, entered.CallingRange);
  }
  return situation;
}

}  // namespace quillon
