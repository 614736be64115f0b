#pragma once

// The equity of a hand against a range: the mean of its equities against the concrete hands that the opponent may hold,
// weighted. The equity table knows only classes, so the surviving suits affect just how much a class counts.

#include <algorithm>
#include <string_view>

#include "analysis/dealt_range.h"
#include "support/rounding.h"

namespace quillon {

/// The sums over an opponent's concrete hands, added one by one. The order determines the last digits, so it is always
/// deck order, wherever weights and equities come from.
class RangeSums {
 public:
  /// Adds a hand that he holds with one weight and plays on with another, not larger; `equity` is the hero's against
  /// it. It counts only if the hand is played on with a weight above 0, and may otherwise be any finite number.
  void Add(double held, double played, double equity) {
    const double counted = std::max(played, 0.0);  // adding 0 changes no digit
    held_ += held;
    played_ += played;
    counted_ += counted;
    weightedEquity_ += counted * equity;
  }

  [[nodiscard]] double Held() const { return held_; }
  [[nodiscard]] double Played() const { return played_; }

  /// The mean equity. RunTimeError "Overflow" if nothing is played.
  [[nodiscard]] double Equity() const { return Divide(weightedEquity_, counted_); }

 private:
  double held_ = 0;
  double played_ = 0;
  double counted_ = 0;
  double weightedEquity_ = 0;
};

/// The equity, 0 to 1, of the class `heroLabel` against a dealt range:
///
///     sum of weight * equity / sum of weight,      over the records with a weight above 0, in the list's order
///
/// A range of aces only, dealt around "As" and "Ac", leaves AA one opponent, "Ah Ad", and gives 0.5. RunTimeError
/// "Overflow" for a list without any weight, and "Subscript out of range" for one without records.
[[nodiscard]] double EquityVsRange(std::string_view heroLabel, const HandList& list);

}  // namespace quillon
