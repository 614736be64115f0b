#include "results/result_columns.h"

#include <array>

#include "support/number_text.h"

namespace quillon {
namespace {

constexpr bool Always(const Scenario& /*scenario*/) {
  return true;
}

std::string WithoutColon(std::string_view title) {
  return std::string(title.substr(0, title.find(':')));
}

std::string ValueText(double value) {
  constexpr int kDecimals = 4;
  return (value > 0 ? "+" : "") + PatternText(value, kDecimals);
}

using Shown = const ShownHand&;
using Asked = const Scenario&;
using Result = const HandResult&;
using Texts = const HoverTexts&;

constexpr std::array<ResultColumn, 6> kColumns = {{
    {.Key = "hand", .ValueOf = [](Shown hand) { return ResultValue(hand.first.Label); }, .IsIn = Always},
    {.Key = "combos",
     .ValueOf = [](Shown hand) { return ResultValue(hand.first.Combos); },
     .IsIn = Always,
     .Heading = [](Asked /*scenario*/) { return std::string("Combos"); },
     .Text = [](Result result, Texts /*texts*/) { return std::to_string(result.Combos); }},
    {.Key = "ev",
     .ValueOf = [](Shown hand) { return ResultValue(hand.first.ExpectedValue); },
     .IsIn = [](Asked scenario) { return scenario.HasExpectedValue(); },
     .Heading = [](Asked /*scenario*/) { return WithoutColon(kValueTitle); },
     .Text = [](Result result, Texts /*texts*/) { return ValueText(result.ExpectedValue); }},
    {.Key = "equity",
     .ValueOf = [](Shown hand) { return ResultValue(hand.first.Equity); },
     .IsIn = Always,
     .Heading = [](Asked scenario) { return WithoutColon(scenario.EquityTitle); },
     .Text = [](Result /*result*/, Texts texts) { return texts.Equity; }},
    {.Key = "fold",
     .ValueOf = [](Shown hand) { return ResultValue(hand.first.FoldShare); },
     .IsIn = [](Asked scenario) { return scenario.HasCallingRange; },
     .Heading = [](Asked /*scenario*/) { return WithoutColon(kFoldShareTitle); },
     .Text = [](Result /*result*/, Texts texts) { return texts.FoldShare.value_or(""); }},
    {.Key = "colour", .ValueOf = [](Shown hand) { return ResultValue(hand.second); }, .IsIn = Always},
}};

}  // namespace

std::span<const ResultColumn> ResultColumns() {
  return kColumns;
}

}  // namespace quillon
