#pragma once

// A range is the set of hands that an opponent may hold: a weight for each of the 169 starting-hand classes, 1 for a
// class that he plays whenever he is dealt it, 0.5 for one that he plays half the time, 0 for one that he folds. Its
// one form, in memory and in its file, is the range text: all 169 classes in class index order, those at 0 too, each as
// its label, " (", the weight, "), ". The text ends with the space of the last entry.
//
//     AA (1), AKs (1), AQs (0.5), AJs (0), ATs (0), ... 32o (0), 22 (0),
//
// A range text is never parsed from left to right. A reader searches for the label and reads what follows it,
// so a text edited by hand may hold its entries in any order, other weights such as 0.25, and remarks between them; of
// two entries for one class the first counts.

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

/// The weight of the class `label` in a range text: the leading number of what is between the two characters after
/// the label's first occurrence and the next ")". Labels are compared with case. A text without a number there reads as
/// 0, and a weight such as 0.25, 2 or -1 is returned as it is.
///
///     "AA (1), AKs (0.5), ", "AKs" -> 0.5      "AKs (0.25), AKs (1), ", "AKs" -> 0.25      "AA (x), ", "AA" -> 0
///
/// The label is searched everywhere, in remarks and weights too: a weight of 0.225 before the entry of "22" hides it.
///
/// A label that does not occur is taken to start one place before the text, so it reads what is before the first
/// ")": with "AA (1), " a missing "72o" reads 1, since its number starts at the fifth character, and a missing "22"
/// reads 0, since its number starts at the fourth, and "(1" is not a number. The text is UTF-8, and characters are
/// counted.
///
/// RunTimeError "Invalid procedure call or argument" if there is no ")" after the label, as in the empty text, or it
/// comes before the number's place. It names the file that the text is from, where one is given.
[[nodiscard]] double RangeWeightOf(std::string_view text, std::string_view label, std::string_view fileName = {});

/// The weights of all classes in a range text, each as RangeWeightOf reads it. Fails as that does.
[[nodiscard]] ClassWeights RangeWeightsOf(std::string_view text, std::string_view fileName = {});

/// The range text of 169 weights in class index order, each in the general number form. With weights of one character
/// it has 1508 characters. RunTimeError "Overflow" for a weight that is not finite.
[[nodiscard]] std::string RangeTextOf(std::span<const double, kHandClassCount> weights);

/// The same as a text of which RangeWeightsOf reads these very weights, to 15 digits: where two equal digits of a
/// weight would hide the entry of a pair further on, a space is between them. For files and analyses, if weights may be
/// other than 0, 0.5 and 1.
///
///     AA at 0.99 -> "AA (0.9 9), "      22 at 0.99 -> "22 (0.99), "
[[nodiscard]] std::string SearchableRangeText(std::span<const double, kHandClassCount> weights);

/// The weights of a text of the form of RangeTextOf or SearchableRangeText, read entry by entry, so that none hides
/// another. Nothing for a text with anything else in it; a weight that is not a number reads as LeadingNumber has it.
[[nodiscard]] std::optional<ClassWeights> WrittenWeightsOf(std::string_view text);

/// How many concrete hands, 0 to 1326, a grid would show as selected for a range text: 6 for a pair, 4 for a suited and
/// 12 for an offsuit class at exactly 1, and half as many at exactly 0.5. A class at any other weight shows as not
/// selected and counts 0. Fails as RangeWeightOf does.
[[nodiscard]] double SelectedCombos(std::string_view rangeText);

/// The same of weights in class index order. Nothing fails.
[[nodiscard]] double SelectedCombos(std::span<const double, kHandClassCount> weights);

/// The caption under a grid: the selected hands as a percentage of 1326 to one decimal.
///
///     0 -> "0% selected"      6 -> "0.5% selected"      663 -> "50% selected"      1326 -> "100% selected"
[[nodiscard]] std::string SelectionCaption(double selectedCombos);

}  // namespace quillon
