#pragma once

// What hands are worth while one thing goes up and the rest of a situation stays: the amount that the move is about, or
// the width of the opponent's range; where he may fold, of the range he calls with. These are sweeps ("study/sweep.h"),
// figure for figure, with what their figures show beside the lines: the amount or the width at hand, and the limit of
// each hand.

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

/// More lines cannot be told apart, and more steps not be seen.
inline constexpr std::size_t kMostCurves = 13;
inline constexpr std::int64_t kMostCurveSteps = 2000;

/// The steps of a sweep as they are typed: plain decimals, as Steps::Between reads them.
struct StepTexts {
  std::string From;
  std::string To;
  std::string Step;

  bool operator==(const StepTexts&) const = default;
};

/// The classes that a notation ("ranges/range_notation.h") names, by class index, whatever their weights above 0; or
/// why it cannot be read, in a line. One to kMostCurves.
///
///     "A7o 88" -> 88, A7o      "22+" -> all pairs      "A7x" -> "\"A7x\" is not a hand" or the like
[[nodiscard]] std::variant<std::vector<std::int16_t>, std::string> ReadCurveHands(std::string_view notation,
                                                                                  const HandOrder& bestFirst);

/// The labels of classes with spaces between, as ReadCurveHands reads them.
[[nodiscard]] std::string CurveHandsText(std::span<const std::int16_t> hands);

/// The class that hardly pays: of those that do not lose the one that gains least, or the best if all lose.
[[nodiscard]] std::int16_t MarginalHand(const StudySituation& situation);

/// Round steps over which the hands' values can be read: from one step to twice the current amount, and beyond the
/// limits of the hands by a quarter where they are below ten times the amount; a call stays below the pot. There are
/// 100 or more, so that the current amount is one of them where that is possible.
///
///     a shove of 9, limits up to 23.07 -> 0.2 to 28.8 in steps of 0.2
[[nodiscard]] StepTexts AmountStepsFor(const StudySituation& situation, std::span<const std::int16_t> hands);

/// Steps of the amount, or why they cannot be swept: as Steps::Between says, because there are too many, or because an
/// analysis would refuse the amount at one of their ends.
[[nodiscard]] std::variant<Steps, std::string> ReadAmountSteps(const StudySituation& situation, const StepTexts& texts);

/// The same of the width, in percent; a range that he cannot fold has a hand at every width.
[[nodiscard]] std::variant<Steps, std::string> ReadWidthSteps(const StudySituation& situation, const StepTexts& texts,
                                                              const HandOrder& bestFirst);

/// A sweep that is shown.
struct HandCurves {
  std::string What;  // what goes up, as the companion's tables call it: "call", "shove" or "width"
  std::vector<std::int16_t> Hands;
  std::vector<SweepRow> Rows;  // with a value for each of the hands

  /// The companion's table with every digit (SweepCsv).
  [[nodiscard]] std::string Csv() const;
};

/// The hands over the amount.
[[nodiscard]] HandCurves AmountCurves(const StudySituation& situation, std::vector<std::int16_t> hands,
                                      const Steps& steps);

/// The row of a sweep of the width at so many percent, a decimal from above 0 to 100. RunTimeError "Overflow" where no
/// hand is left in the range of somebody who does not fold.
[[nodiscard]] SweepRow WidthRow(const StudySituation& situation, std::span<const std::int16_t> hands,
                                const HandOrder& bestFirst, const std::string& width);

/// The curves over the amount, with pots beside chips, each hand's limit, and the current amount.
[[nodiscard]] Figure AmountFigure(const StudySituation& situation, const HandCurves& curves);

/// Over the width, one under the other: the share of profitable hands, and the curves of the hands. Both mark the width
/// that the range has now.
[[nodiscard]] std::array<Figure, 2> WidthFigures(const StudySituation& situation, const HandCurves& curves);

}  // namespace quillon
