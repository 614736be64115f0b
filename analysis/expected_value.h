#pragma once

// What a move is worth. The user either folds, which is worth 0, or puts chips in, and the expected value is what the
// move brings on average in chips, or dollars: the unit is that of the amounts. Nothing here is rounded but the two
// texts of OpponentOddsTexts.

#include <string>

namespace quillon {

/// Calling a bet for all the chips: the user pays `call` and with probability `equity` takes the whole pot, his own
/// call included.
///
///     (call + pot) * equity - call
[[nodiscard]] double CallExpectedValue(double pot, double call, double equity);

/// Shoving: the opponent calls with probability `callShare`, and the pot of `pot` + `call` + 2 * `shove` is played for,
/// of which `call` + `shove` are the user's; otherwise the user takes the pot as it is.
///
///     (equity * ((pot + call) + (shove + shove)) - (call + shove)) * callShare + (1 - callShare) * pot
///
/// With a `callShare` of 0 it is exactly the pot, whatever `equity` says: -1 means "never called".
[[nodiscard]] double ShoveExpectedValue(double pot, double call, double shove, double equity, double callShare);

/// The pot odds, to one: 2 for a pot of 100 and a call of 50. Fails as Divide does for a call of 0.
[[nodiscard]] double PotOdds(double potSize, double callAmount);

/// The equity at which calling at these odds is worth just as much as folding, 1 / (odds + 1): 1/3 at odds of 2.
/// RunTimeError "Division by zero" at odds of -1.
[[nodiscard]] double BreakEvenEquity(double odds);

/// What a shove offers the opponent, as texts.
struct OpponentOdds {
  std::string HisOdds;
  std::string HisBreakEven;

  bool operator==(const OpponentOdds&) const = default;
};

/// The odds that a shove gives the opponent, (pot + call + shove) / shove to one, and the equity at which calling it
/// breaks even for him, both rounded to two decimals:
///
///     (15, 5, 100) -> "1.2 : 1" and "45.45%"      a shove of 0 -> "N/A" and "N/A"
///
/// Fails as BreakEvenEquity does, where amounts below 0 make odds of -1, and with a RunTimeError "Overflow" where the
/// amounts are too large for a sum.
[[nodiscard]] OpponentOdds OpponentOddsTexts(double pot, double call, double shove);

/// Whether OpponentOddsTexts succeeds for these amounts.
[[nodiscard]] bool HasOpponentOdds(double pot, double call, double shove);

}  // namespace quillon
