#pragma once

// The three questions that an analysis answers, as a table: the name of each, which amounts and ranges it asks for, and
// how a move is valued. Code that depends on the question reads the row. Input screens and results have tables of their
// own with one row for each row here, as a static_assert checks.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "analysis/expected_value.h"

namespace quillon {

/// The scenario: the opponent is all in and the user may call; the user may shove; or only equities are wanted.
enum class AnalysisMode : std::int32_t { kNone = 0, kPreflopCall = 1, kPreflopRaise = 2, kEquityOnly = 3 };

/// The amounts of a situation, in the user's own unit. One that a scenario does not ask for is 0.
struct Amounts {
  double PotSize = 0;
  double CallAmount = 0;  // what the user must put in
  double ShoveAmount = 0;  // what the opponent must put in to call the user's shove

  bool operator==(const Amounts&) const = default;
};

/// An amount as code that walks all of them sees it.
struct AmountKind {
  std::string_view Key;  // one word, for the command line and data
  std::string_view Title;
  std::string_view Meaning;
  double Amounts::*Value = nullptr;
};

/// The amounts in the order in which scenarios ask for them.
inline constexpr std::array<AmountKind, 3> kAmounts = {{
    {"pot", "Pot Size", "Pot", &Amounts::PotSize},
    {"call", "Call Amount", "What you must put in to call", &Amounts::CallAmount},
    {"shove", "Shove Amount", "What he must put in to call your shove", &Amounts::ShoveAmount},
}};

struct Scenario {
  AnalysisMode Mode = AnalysisMode::kNone;
  std::string_view Name;
  std::string_view Command;  // one word, for the command line and data
  std::size_t AmountCount = 0;  // how many of pot, call and shove it asks for, in this order
  bool HasCallingRange = false;  // the opponent may fold: a second range says what he calls with
  std::string_view EquityTitle;

  /// The value of the move, from the equity and the share of the opponent's hands that call. Null if nothing is put in:
  /// every expected value is then 0.
  double (*ExpectedValue)(const Amounts& amounts, double equity, double callShare) = nullptr;

  [[nodiscard]] constexpr bool HasExpectedValue() const { return ExpectedValue != nullptr; }

  /// The amounts it asks for; the last is the move's own.
  [[nodiscard]] constexpr std::span<const AmountKind> AskedAmounts() const {
    return std::span(kAmounts).first(AmountCount);
  }

  /// `kept` with the amounts that it asks for replaced by those of `given`.
  [[nodiscard]] constexpr Amounts TakeAmounts(const Amounts& given, Amounts kept = {}) const {
    for (const AmountKind& amount : AskedAmounts())
      kept.*amount.Value = given.*amount.Value;
    return kept;
  }
};

inline constexpr std::array<Scenario, 3> kScenarios = {{
    {.Mode = AnalysisMode::kPreflopCall,
     .Name = "Preflop Call",
     .Command = "call",
     .AmountCount = 2,
     .HasCallingRange = false,
     .EquityTitle = "Equity:",
     .ExpectedValue =
         [](const Amounts& amounts, double equity, double /*callShare*/) {
           return CallExpectedValue(amounts.PotSize, amounts.CallAmount, equity);
         }},
    {.Mode = AnalysisMode::kPreflopRaise,
     .Name = "Preflop Raise",
     .Command = "raise",
     .AmountCount = 3,
     .HasCallingRange = true,
     .EquityTitle = "Equity when Called:",
     .ExpectedValue =
         [](const Amounts& amounts, double equity, double callShare) {
           return ShoveExpectedValue(amounts.PotSize, amounts.CallAmount, amounts.ShoveAmount, equity, callShare);
         }},
    {.Mode = AnalysisMode::kEquityOnly,
     .Name = "Equity Only",
     .Command = "equity",
     .AmountCount = 0,
     .HasCallingRange = false,
     .EquityTitle = "Equity:",
     .ExpectedValue = nullptr},
}};

/// A table with one row for each scenario, in the order of kScenarios. A row names its scenario in `Mode`.
template <class Row>
using ScenarioTable = std::array<Row, kScenarios.size()>;

/// Whether a table has every scenario. Every ScenarioTable is followed by a static_assert on it.
template <class Row>
[[nodiscard]] constexpr bool CoversEveryScenario(const ScenarioTable<Row>& table) {
  return std::equal(table.begin(), table.end(), kScenarios.begin(),
                    [](const Row& row, const Scenario& scenario) { return row.Mode == scenario.Mode; });
}

/// The row of a scenario other than kNone.
template <class Row>
[[nodiscard]] constexpr const Row& RowOf(const ScenarioTable<Row>& table, AnalysisMode mode) {
  return table.at(static_cast<std::size_t>(mode) - 1);
}

/// The row of a scenario, or null for kNone.
template <class Row>
[[nodiscard]] constexpr const Row* FindRow(const ScenarioTable<Row>& table, AnalysisMode mode) {
  return mode == AnalysisMode::kNone ? nullptr : &RowOf(table, mode);
}

[[nodiscard]] constexpr const Scenario& ScenarioOf(AnalysisMode mode) {
  return RowOf(kScenarios, mode);
}

static_assert(std::all_of(kScenarios.begin(), kScenarios.end(),
                          [](const Scenario& scenario) { return &ScenarioOf(scenario.Mode) == &scenario; }));

}  // namespace quillon
