#pragma once

// A range is the set of hands that an opponent may hold: a weight for each of the 169 starting-hand classes, 1 for a
// class that he plays whenever he is dealt it, 0.5 for one that he plays half the time, 0 for one that he folds. Its
// only form, in memory and in its file, is the range text: all 169 classes in class index order, including those at 0,
// each as its label, " (", the weight, "), ". The text ends with the space of the last entry.
//
//     AA (1), AKs (1), AQs (0.5), AJs (0), ATs (0), ... 32o (0), 22 (0),
//
// A range text is never parsed from left to right. A reader searches for the label and reads what follows, so a text
// edited by hand may have its entries in any order, other weights such as 0.25, and remarks between them; if a class
// has two entries, the first counts.

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "hand/hand_classes.h"

namespace quillon {

/// A weight for each class, in class index order.
using ClassWeights = std::array<double, kHandClassCount>;

/// Every class at weight 1.
[[nodiscard]] constexpr ClassWeights AllHands() {
  ClassWeights weights{};
  weights.fill(1);
  return weights;
}

/// The name of the file of the range `name`: "Button" -> "Button.txt".
[[nodiscard]] std::string RangeFileName(std::string_view name);

/// The weight of the class `label` in a range text: the leading number of what is between the two characters after the
/// label's first occurrence and the next ")". Labels are case-sensitive. A text without a number there reads as 0, and
/// a weight such as 0.25, 2 or -1 is returned as it is.
///
///     "AA (1), AKs (0.5), ", "AKs" -> 0.5      "AKs (0.25), AKs (1), ", "AKs" -> 0.25      "AA (x), ", "AA" -> 0
///
/// The label is searched everywhere, in remarks and weights too: a weight of 0.225 before the entry of "22" hides it.
///
/// A missing label is taken to start one place before the text, so it reads what is before the first ")": in the text
/// "AA (1), " a missing "72o" reads 1, since its number starts at the fifth character, and a missing "22" reads 0,
/// since its number starts at the fourth, and "(1" is not a number. Positions count UTF-8 characters.
///
/// RunTimeError "Invalid procedure call or argument" if there is no ")" after the label, as in the empty text, or it
/// comes before the number's place. It names the file of the text, if given.
[[nodiscard]] double RangeWeightOf(std::string_view text, std::string_view label, std::string_view fileName = {});

/// The weights of all classes in a range text, each as by RangeWeightOf. Fails as that does.
[[nodiscard]] ClassWeights RangeWeightsOf(std::string_view text, std::string_view fileName = {});

/// The range text of 169 weights in class index order, each in the general number form. With weights of one character
/// it has 1508 characters. RunTimeError "Overflow" for a weight that is not finite.
[[nodiscard]] std::string RangeTextOf(std::span<const double, kHandClassCount> weights);

/// The same, as a text from which RangeWeightsOf reads exactly these weights, to 15 digits: a space splits two equal
/// digits of a weight if they would hide a later pair's entry. For weights that may differ from 0, 0.5 and 1.
///
///     AA at 0.99 -> "AA (0.9 9), "      22 at 0.99 -> "22 (0.99), "
[[nodiscard]] std::string SearchableRangeText(std::span<const double, kHandClassCount> weights);

/// The weights of a text in the form of RangeTextOf or SearchableRangeText, read entry by entry, so that none hides
/// another. Nothing for a text with anything else in it; a weight that is not a number reads as by LeadingNumber.
[[nodiscard]] std::optional<ClassWeights> WrittenWeightsOf(std::string_view text);

/// The number of concrete hands, 0 to 1326, that a grid would show as selected: 6 for a pair, 4 for a suited and 12 for
/// an offsuit class at exactly 1, half as many at exactly 0.5, and 0 at any other weight. Fails as RangeWeightOf does.
[[nodiscard]] double SelectedCombos(std::string_view rangeText);

/// The same for weights in class index order. Never fails.
[[nodiscard]] double SelectedCombos(std::span<const double, kHandClassCount> weights);

/// The caption under a grid: the selected hands as a percentage of 1326 to one decimal.
///
///     0 -> "0% selected"      6 -> "0.5% selected"      663 -> "50% selected"      1326 -> "100% selected"
[[nodiscard]] std::string SelectionCaption(double selectedCombos);

}  // namespace quillon
