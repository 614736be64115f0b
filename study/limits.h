#pragma once

// The amount up to which a class is good. The value of a move is linear in each amount, so the amount at which it is 0
// follows from the formula without a search.

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "analysis/range_sources.h"
#include "analysis/scenarios.h"
#include "hand/hand_classes.h"

namespace quillon {

enum class LimitKind {
  kUpTo,  // does not lose up to the amount, and loses above it
  kAlways,  // does not lose, whatever the amount
  kNever,  // loses, whatever the amount
  kFrom,  // loses below the amount, but not from there on
};

/// A larger limit counts as none.
inline constexpr double kMostLimit = 1e300;

struct Limit {
  LimitKind Kind = LimitKind::kNever;
  double Amount = 0;  // only for kUpTo and kFrom; above 0, at most kMostLimit

  bool operator==(const Limit&) const = default;
};

using Limits = std::array<Limit, kHandClassCount>;

/// The largest call that does not lose with this equity, pot * equity / (1 - equity). If it reaches the pot it is
/// "always", since no larger call is accepted. The pot is above 0.
///
///     pot 100, equity 0.2 -> up to 25      0.5 -> always      0 -> never
[[nodiscard]] Limit CallLimit(double pot, double equity);

/// The largest shove that does not lose with this pot and call; the pot is above 0, the call at least 0. A class that
/// is never called always wins. At an equity of 0.5 the amount does not matter, and above it a class that pays more for
/// the call than it gains may win only from some amount on.
[[nodiscard]] Limit ShoveLimit(double pot, double call, const ClassFigures& figures);

/// The move of a scenario, whose amount is the last that the scenario asks for.
struct Move {
  AnalysisMode Mode = AnalysisMode::kNone;
  std::string_view Title;
  bool StaysBelowPot = false;  // an analysis refuses other amounts

  /// The limit of a class; its own amount does not count. Null if the scenario has no expected value.
  Limit (*LimitOf)(const Amounts& amounts, const ClassFigures& figures) = nullptr;
};

inline constexpr ScenarioTable<Move> kMoves = {{
    {AnalysisMode::kPreflopCall, "Call", true,
     [](const Amounts& amounts, const ClassFigures& figures) { return CallLimit(amounts.PotSize, figures.Equity); }},
    {AnalysisMode::kPreflopRaise, "Shove", false,
     [](const Amounts& amounts, const ClassFigures& figures) {
       return ShoveLimit(amounts.PotSize, amounts.CallAmount, figures);
     }},
    {AnalysisMode::kEquityOnly, "", false, nullptr},
}};
static_assert(CoversEveryScenario(kMoves));
static_assert(std::ranges::equal(
    kMoves, kScenarios, {}, [](const Move& move) { return move.LimitOf != nullptr; }, &Scenario::HasExpectedValue));

/// The limits of all classes, by class index, in a scenario with an expected value. A range that never folds must have
/// some weight above 0; fails as FiguresOf does.
[[nodiscard]] Limits LimitsOf(AnalysisMode mode, const RangeNumbers& ranges, const Amounts& amounts);

/// Whether a limit has an amount.
[[nodiscard]] constexpr bool HasAmount(const Limit& limit) {
  return limit.Kind == LimitKind::kUpTo || limit.Kind == LimitKind::kFrom;
}

/// The kind of a limit in tables: "up to", "always", "never", "from".
[[nodiscard]] std::string_view LimitKindName(LimitKind kind);

/// Whether a class with this limit loses at an amount.
[[nodiscard]] bool LosesAt(const Limit& limit, double amount);

/// A limit in words; the amount has the general number form.
///
///     "12.5"      "always"      "never"      "from 12.5"
[[nodiscard]] std::string LimitText(const Limit& limit);

/// The amount of a limit in at most eight characters, with two decimals or fewer, or as a power of ten, rounded to the
/// side on which the hand does not lose: down for kUpTo, up for kFrom.
///
///     up to 12.345 -> "12.34"      from 12.341 -> "12.35"      up to 116724.46 -> "116724.4"
///     up to 129e6 -> "1.2E+08"
[[nodiscard]] std::string ShortAmount(const Limit& limit);

}  // namespace quillon
