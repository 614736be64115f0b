#pragma once

// The value of a move. The user either folds, which is worth 0, or puts chips in; the expected value is the average
// gain, in the unit of the amounts. Nothing here is rounded except the two texts of OpponentOddsTexts.

#include <string>

namespace quillon {

/// Calling an all-in: the user pays `call` and with probability `equity` wins the whole pot, including his own call.
///
///     (call + pot) * equity - call
[[nodiscard]] double CallExpectedValue(double pot, double call, double equity);

/// Shoving: the opponent calls with probability `callShare`, and the pot is then `pot` + `call` + 2 * `shove`, of which
/// `call` + `shove` are the user's; otherwise the user wins the pot as it is.
///
///     (equity * ((pot + call) + (shove + shove)) - (call + shove)) * callShare + (1 - callShare) * pot
///
/// With a `callShare` of 0 it is exactly the pot, whatever `equity` is: -1 means "never called".
[[nodiscard]] double ShoveExpectedValue(double pot, double call, double shove, double equity, double callShare);

/// The pot odds, as x in "x to 1": 2 for a pot of 100 and a call of 50. Fails as Divide does for a call of 0.
[[nodiscard]] double PotOdds(double potSize, double callAmount);

/// The equity at which a call at these odds breaks even, 1 / (odds + 1): 1/3 at odds of 2. RunTimeError
/// "Division by zero" at odds of -1.
[[nodiscard]] double BreakEvenEquity(double odds);

/// What a shove offers the opponent, as texts.
struct OpponentOdds {
  std::string HisOdds;
  std::string HisBreakEven;

  bool operator==(const OpponentOdds&) const = default;
};

/// The odds that a shove gives the opponent, (pot + call + shove) / shove to one, and the equity at which his call
/// breaks even, both rounded to two decimals:
///
///     (15, 5, 100) -> "1.2 : 1" and "45.45%"      a shove of 0 -> "N/A" and "N/A"
///
/// Fails as BreakEvenEquity does, if amounts below 0 make odds of -1, and with a RunTimeError "Overflow" if the sum of
/// the amounts is not finite.
[[nodiscard]] OpponentOdds OpponentOddsTexts(double pot, double call, double shove);

/// Whether OpponentOddsTexts succeeds for these amounts.
[[nodiscard]] bool HasOpponentOdds(double pot, double call, double shove);

}  // namespace quillon
