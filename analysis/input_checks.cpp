#include "analysis/input_checks.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>

#include "support/number_text.h"

namespace quillon {
namespace {

struct Inputs {
  const EnteredSituation& Entered;
  Amounts Values;
  HandList Range;  // the opponent's whole range, if a check opens it
};

// A row of a table: a complaint, and the condition for it.
struct Check {
  Complaint Message;
  bool (*Applies)(const Inputs&) = nullptr;
};

// The order of the rows is the order of the tests.
constexpr std::array<Check, 7> kCallChecks = {{
    {{"Missing Range", "Please choose a range for your opponent."},
     [](const Inputs& in) { return in.Entered.Range.empty(); }},
    {{"No Hands in Range", "No hands in your opponent's current range."},
     [](const Inputs& in) { return TotalWeight(in.Range) == 0; }},
    {{"Pot Size Error", "The pot size must be greater than the amount you have to call."},
     [](const Inputs& in) { return in.Values.CallAmount >= in.Values.PotSize; }},
    {{"Pot Size Error", "The pot size must be greater than zero."},
     [](const Inputs& in) { return in.Values.PotSize <= 0; }},
    {{"Call Size Error", "The amount to call must be greater than zero."},
     [](const Inputs& in) { return in.Values.CallAmount <= 0; }},
    {{"Pot Size Error", "The pot size contains non-numeric characters"},
     [](const Inputs& in) { return !IsNumericText(in.Entered.Pot, in.Entered.Marks); }},
    {{"Call Size Error", "The call size contains non-numeric characters"},
     [](const Inputs& in) { return !IsNumericText(in.Entered.Call, in.Entered.Marks); }},
}};

// Intentional: the shove's complaint has the title "Pot Size", and the wording varies; users know these messages.
constexpr std::array<Check, 8> kRaiseChecks = {{
    {{"Missing Range", "You must assign or create a range of hands for your opponent."},
     [](const Inputs& in) { return in.Entered.Range.empty(); }},
    {{"Missing Range", "You must assign or create a range of hands for your opponent to call with."},
     [](const Inputs& in) { return in.Entered.CallingRange.empty(); }},
    {{"Pot Size", "The pot size must be greater than zero."}, [](const Inputs& in) { return in.Values.PotSize <= 0; }},
    {{"Call Amount", "The amount you must call cannot be a negative number."},
     [](const Inputs& in) { return in.Values.CallAmount < 0; }},
    {{"Pot Size", "The amount your opponent must call must be greater than zero."},
     [](const Inputs& in) { return in.Values.ShoveAmount <= 0; }},
    {{"Pot Size", "The pot size contains non-numeric characters"},
     [](const Inputs& in) { return !IsNumericText(in.Entered.Pot, in.Entered.Marks); }},
    {{"Call Size", "The call size contains illegal characters"},
     [](const Inputs& in) { return !in.Entered.Call.empty() && !IsNumericText(in.Entered.Call, in.Entered.Marks); }},
    {{"Shove Size", "The amount your opponent must call when you shove contains illegal characters."},
     [](const Inputs& in) { return !IsNumericText(in.Entered.Shove, in.Entered.Marks); }},
}};

constexpr std::array<Check, 2> kEquityChecks = {{
    {{"Select Range", "Please select a range for your opponent."},
     [](const Inputs& in) { return in.Entered.Range.empty(); }},
    {{"Empty Range", "Your opponent's range is empty. Please select another range."},
     [](const Inputs& in) { return TotalWeight(in.Range) == 0; }},
}};

// Dealt around two cards that are in no deck, so that nothing is blocked.
HandList WholeRange(const ProgramFolder& folder, const EnteredSituation& entered) {
  std::string rangeText = entered.RangeText;
  return DealRange(folder, entered.Range, "Xx", "Yy", rangeText);
}

std::optional<Complaint> FirstComplaint(std::span<const Check> checks, const Inputs& inputs) {
  const auto check = std::ranges::find_if(checks, [&](const Check& row) { return row.Applies(inputs); });
  if (check == checks.end()) return std::nullopt;
  return check->Message;
}

struct ScenarioCheck {
  AnalysisMode Mode = AnalysisMode::kNone;
  std::optional<Complaint> (*Run)(const EnteredSituation& entered, const ProgramFolder& folder) = nullptr;
};

constexpr ScenarioTable<ScenarioCheck> kScenarioChecks = {{
    {AnalysisMode::kPreflopCall, CheckCallInputs},
    {AnalysisMode::kPreflopRaise, CheckRaiseInputs},
    {AnalysisMode::kEquityOnly, CheckEquityInputs},
}};
static_assert(CoversEveryScenario(kScenarioChecks));

}  // namespace

std::optional<Complaint> CheckInputs(AnalysisMode mode, const EnteredSituation& entered, const ProgramFolder& folder) {
  return RowOf(kScenarioChecks, mode).Run(entered, folder);
}

std::optional<Complaint> CheckCallInputs(const EnteredSituation& entered, const ProgramFolder& folder) {
  return FirstComplaint(kCallChecks, {entered, AmountsOf(entered), WholeRange(folder, entered)});
}

std::optional<Complaint> CheckRaiseInputs(const EnteredSituation& entered, const ProgramFolder& /*folder*/) {
  return FirstComplaint(kRaiseChecks, {entered, AmountsOf(entered), {}});
}

std::optional<Complaint> CheckEquityInputs(const EnteredSituation& entered, const ProgramFolder& folder) {
  return FirstComplaint(kEquityChecks, {entered, AmountsOf(entered), WholeRange(folder, entered)});
}

}  // namespace quillon
