#pragma once

// The analysis once more, written a second time in the plainest way there is: texts are split into vectors of strings,
// searched with std::string::find and read with the library's parser, and every result is worked out from these alone.
// It shares no code with the program but the equity table's constant text. Tests demand that the program gives the same
// results to the last digit, and benchmarks measure how much faster it is. The program itself does not link this.

#include <cstdint>
#include <string>
#include <vector>

namespace quillon::plain {

/// The labels of the 169 classes in index order.
[[nodiscard]] const std::vector<std::string>& Labels();

/// The equity of one class against another: the row is split at its blanks and one of its numbers is read.
[[nodiscard]] double HandEquity(const std::string& hand, const std::string& opponentHand);

/// The weight of a class in a range text. The text must hold a weight for every label that is asked for.
[[nodiscard]] double RangeWeightOf(const std::string& text, const std::string& label);

/// One concrete hand of a dealt range.
struct Hand {
  std::string Cards;
  std::string Label;
  double Weight = 0;
};

/// The 1326 hands of a range text, dealt around two cards.
[[nodiscard]] std::vector<Hand> DealRange(const std::string& rangeText, const std::string& card1,
                                          const std::string& card2);

/// The equity of a class against a dealt range that has some weight.
[[nodiscard]] double EquityVsRange(const std::string& heroLabel, const std::vector<Hand>& hands);

/// The results table of a whole run, with amounts as they are in the boxes and ranges as texts.
[[nodiscard]] std::string PreflopCallTable(double pot, double call, const std::string& rangeText);
[[nodiscard]] std::string PreflopRaiseTable(double pot, double call, double shove, const std::string& rangeText,
                                            const std::string& callingRangeText);
[[nodiscard]] std::string EquityOnlyTable(const std::string& rangeText);

/// A number in the general form.
[[nodiscard]] std::string NumberText(double value);

}  // namespace quillon::plain
