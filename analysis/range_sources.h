#pragma once

// Where an analysis gets weights and equities. RangeTexts reads the range texts and the equity table on every lookup.
// RangeNumbers has read both in advance, for thousands of analyses in a row. Both deal the same hands in the same order
// into the same sums (RangeSums), so their figures agree to the last digit.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/scenarios.h"
#include "hand/hand_classes.h"
#include "ranges/range_text.h"

namespace quillon {

/// The class around whose cards dropped hands are listed.
inline constexpr std::int16_t kLastClass = kHandClassCount - 1;

/// The figures of a class that do not depend on the amounts.
struct ClassFigures {
  double Equity = 0;  // 0 to 1; -1 if the opponent never calls
  double CallShare = 0;  // the share of his hands with which he calls; 0 in a scenario without a calling range

  bool operator==(const ClassFigures&) const = default;
};

/// Reads on every lookup. The texts must outlive it, and the equity table must be loaded.
class RangeTexts {
 public:
  /// A range's text, and its name for error messages.
  struct Range {
    std::string_view Name;
    std::string_view Text;
  };

  /// A scenario without a calling range does not read it.
  RangeTexts(Range range, Range callingRange) : range_(range), callingRange_(callingRange) {}

  /// The figures of the class `index`, 0 to 168. RunTimeError "Subscript out of range" for an empty text, "Overflow"
  /// for a range without any weight above 0 in a scenario without a calling range; otherwise fails as DealText does.
  [[nodiscard]] ClassFigures FiguresOf(const Scenario& scenario, std::int16_t index) const;

  /// ListDroppedHands of the two ranges dealt around the last class.
  [[nodiscard]] std::string DroppedHands() const;

 private:
  Range range_;
  Range callingRange_;
};

/// The equity table as numbers, and for each of the hero's classes the classes of the 1225 concrete hands that its two
/// cards leave, in deck order. Independent of the situation; half a megabyte, built in a few milliseconds.
class HandNumbers {
 public:
  static constexpr std::size_t kDealtHandCount = 1225;  // 50 * 49 / 2
  using DealtClasses = std::array<std::uint8_t, kDealtHandCount>;
  using EquityRow = std::array<double, kHandClassCount>;

  /// Reads the equity table, which must be loaded. Fails as HandEquity does.
  HandNumbers();

  [[nodiscard]] const DealtClasses& Dealt(std::int16_t hero) const { return dealt_[static_cast<std::size_t>(hero)]; }
  [[nodiscard]] const EquityRow& Equities(std::int16_t hero) const { return equities_[static_cast<std::size_t>(hero)]; }

 private:
  std::vector<DealtClasses> dealt_;
  std::vector<EquityRow> equities_;
};

/// Reads everything in advance.
class RangeNumbers {
 public:
  /// The weights are those of RangeWeightsOf; a scenario without a calling range does not use those of `callingRange`.
  /// `hands` must outlive it.
  RangeNumbers(const HandNumbers& hands, const ClassWeights& range, const ClassWeights& callingRange = {});

  /// The same figures as RangeTexts for texts of these weights. RunTimeError "Overflow" if there is no mean.
  [[nodiscard]] ClassFigures FiguresOf(const Scenario& scenario, std::int16_t index) const;
  [[nodiscard]] std::string DroppedHands() const;

 private:
  const HandNumbers* hands_;
  ClassWeights range_;
  ClassWeights callingRange_;
  ClassWeights limited_{};
};

}  // namespace quillon
