#pragma once

// The value of hands as one thing goes up and the rest of a situation stays: the amount of the move, or the width of
// the opponent's range (if he may fold, of his calling range). These are sweeps ("study/sweep.h"), figure for figure,
// plus what the charts show beside the lines: the current amount or width, and the limit of each hand. The situation
// has an expected value.

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "ranges/range_notation.h"
#include "study/figure.h"
#include "study/study_situation.h"
#include "study/sweep.h"

namespace quillon {

/// More lines cannot be told apart, and more steps cannot be seen.
inline constexpr std::size_t kMostCurves = 13;
inline constexpr std::int64_t kMostCurveSteps = 2000;

/// The steps of a sweep as typed: plain decimals, as for Steps::Between.
struct StepTexts {
  std::string From;
  std::string To;
  std::string Step;

  bool operator==(const StepTexts&) const = default;
};

/// The classes in a notation ("ranges/range_notation.h"), by class index, whatever their weights above 0; or the error
/// in one line. One to kMostCurves.
///
///     "A7o 88" -> 88, A7o      "22+" -> all pairs      "A7x" -> "\"A7x\" is not a hand" or the like
[[nodiscard]] std::variant<std::vector<std::int16_t>, std::string> ReadCurveHands(std::string_view notation,
                                                                                  const HandOrder& bestFirst);

/// The labels of classes separated by spaces, as ReadCurveHands reads them.
[[nodiscard]] std::string CurveHandsText(std::span<const std::int16_t> hands);

/// The marginal class: of those that do not lose the one that gains least, or the best if all lose.
[[nodiscard]] std::int16_t MarginalHand(const StudySituation& situation);

/// Round steps for reading off the hands' values: from one step to twice the current amount, and a quarter beyond the
/// hands' limits if these are below ten times the amount; a call stays below the pot. There are 100 or more, and if
/// possible the current amount is one of them.
///
///     a shove of 9, limits up to 23.07 -> 0.2 to 28.8 in steps of 0.2
[[nodiscard]] StepTexts AmountStepsFor(const StudySituation& situation, std::span<const std::int16_t> hands);

/// Steps of the amount, or why they cannot be swept: the error of Steps::Between, too many steps, or an amount at
/// either end that an analysis would refuse.
[[nodiscard]] std::variant<Steps, std::string> ReadAmountSteps(const StudySituation& situation, const StepTexts& texts);

/// The same for the width, in percent; a range that never folds has a hand at every width.
[[nodiscard]] std::variant<Steps, std::string> ReadWidthSteps(const StudySituation& situation, const StepTexts& texts,
                                                              const HandOrder& bestFirst);

/// A sweep on display.
struct HandCurves {
  std::string What;  // what goes up, as in the companion's tables: "call", "shove" or "width"
  std::vector<std::int16_t> Hands;
  std::vector<SweepRow> Rows;  // with a value for each of the hands

  /// The companion's table with every digit (SweepCsv).
  [[nodiscard]] std::string Csv() const;
};

/// The hands over the amount.
[[nodiscard]] HandCurves AmountCurves(const StudySituation& situation, std::vector<std::int16_t> hands,
                                      const Steps& steps);

/// The row of a sweep of the width at this percentage, a decimal above 0 and up to 100. RunTimeError "Overflow" if no
/// hand is left in the range of an opponent who does not fold.
[[nodiscard]] SweepRow WidthRow(const StudySituation& situation, std::span<const std::int16_t> hands,
                                const HandOrder& bestFirst, const std::string& width);

/// The curves over the amount, in chips and pots, with each hand's limit and the current amount.
[[nodiscard]] Figure AmountFigure(const StudySituation& situation, const HandCurves& curves);

/// Two stacked figures over the width: the share of profitable hands, and the curves of the hands. Both mark the
/// current width of the range.
[[nodiscard]] std::array<Figure, 2> WidthFigures(const StudySituation& situation, const HandCurves& curves);

}  // namespace quillon
