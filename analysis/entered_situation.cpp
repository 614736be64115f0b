#include "analysis/entered_situation.h"

#include "support/joined_text.h"

namespace quillon {
namespace {

std::string TextOr(const std::string& text, const std::string& name, const ProgramFolder& folder) {
  return text.empty() ? LoadRangeText(folder, name) : text;
}

}  // namespace

double BoxValue(std::string_view text) {
  std::string amount(text);
  std::erase(amount, '$');
  return LeadingNumber(amount);
}

std::optional<std::string> CommaWarning(std::string_view name, const std::string& amount) {
  std::string whole = amount;
  std::erase(whole, ',');
  const double value = BoxValue(amount);
  if (!IsNumericText(amount) || value == BoxValue(whole)) return std::nullopt;
  return Joined({"Warning: ", name, " ", amount, " counts as ", NumberText(value), "; a comma ends a number."});
}

Amounts AmountsOf(const EnteredSituation& entered) {
  return {
      .PotSize = BoxValue(entered.Pot), .CallAmount = BoxValue(entered.Call), .ShoveAmount = BoxValue(entered.Shove)};
}

HandList DealRange(const ProgramFolder& folder, std::string_view rangeName, std::string_view card1,
                   std::string_view card2, std::string& rangeText) {
  if (rangeText.empty()) rangeText = LoadRangeText(folder, rangeName);
  return DealText(rangeName, card1, card2, rangeText);
}

Situation SituationOf(AnalysisMode mode, const EnteredSituation& entered, const ProgramFolder& folder) {
  const Scenario& scenario = ScenarioOf(mode);
  Situation situation;
  situation.Mode = mode;
  situation.Amounts = scenario.TakeAmounts(AmountsOf(entered));
  situation.RangeName = entered.Range;
  situation.RangeText = TextOr(entered.RangeText, entered.Range, folder);
  if (scenario.HasCallingRange) {
    situation.CallingRangeName = entered.CallingRange;
    situation.CallingRangeText = TextOr(entered.CallingRangeText, entered.CallingRange, folder);
  }
  return situation;
}

}  // namespace quillon
