#pragma once

// The vocabulary of hands. There are thirteen ranks, best first A K Q J T 9 8 7 6 5 4 3 2, and four suits, s h d c, all
// equal. Before the flop it only matters whether the suits match, so the 1326 concrete two-card hands fall into 169
// classes: a pocket pair is labelled by its rank letter twice ("AA"), a suited hand by its higher rank, its lower rank
// and "s" ("AKs"), an offsuit hand likewise with "o" ("AKo").
//
// A class has an index from 0 to 168, row by row in a 13 by 13 grid whose rows and columns both run from A to 2: pairs
// are on the diagonal (indexes divisible by 14), suited hands to the right of it, offsuit hands to the left.
//
//     AA  AKs AQs ...        0   1   2  ...
//     AKo KK  KQs ...       13  14  15  ...
//     AQo KQo QQ  ...       26  27  28  ...
//
// The equity table, range files, results and every grid on the screen use this order.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "support/fixed_text.h"

namespace quillon {

inline constexpr std::int16_t kRankCount = 13;
inline constexpr std::int16_t kHandClassCount = 169;
inline constexpr std::int16_t kConcreteHandCount = 1326;  // 52 * 51 / 2

/// The rank letters, best first.
inline constexpr std::string_view kRankLetters = "AKQJT98765432";

/// The deck, rank by rank from the ace down and in suit order within a rank. A concrete hand is a pair of positions in
/// it, lower position first, so its first card never has the lower rank.
inline constexpr std::string_view kDeckText =
    "As Ah Ad Ac Ks Kh Kd Kc Qs Qh Qd Qc Js Jh Jd Jc Ts Th Td Tc 9s 9h 9d 9c 8s 8h 8d 8c 7s 7h 7d 7c 6s 6h 6d 6c "
    "5s 5h 5d 5c 4s 4h 4d 4c 3s 3h 3d 3c 2s 2h 2d 2c";
inline constexpr std::size_t kDeckSize = 52;

/// Card number `position` (0 to 51) of the deck, such as "As".
[[nodiscard]] constexpr std::string_view DeckCard(std::size_t position) {
  return kDeckText.substr(position * 3, 2);
}

/// The index of a class label, case-sensitive. Intentional: any other text silently gives 0, and behaves as aces.
[[nodiscard]] std::int16_t HandIndex(std::string_view label);

/// The label of a class index, or the empty text for an index outside 0 to 168. The text lives as long as the program.
[[nodiscard]] std::string_view HandLabel(std::int16_t index);

/// The letter of a rank value, 14 for the ace down to 2: "A", "K", "Q", "J", "T", "9" ... "2". Any other value gives
/// the number itself as decimal text.
[[nodiscard]] std::string RankText(std::int16_t value);

/// The number of concrete hands in a class: 6 for a label of two characters, else 4 if the last character is "s" and 12
/// otherwise. Only the length and the last character count.
[[nodiscard]] std::int16_t ComboCount(std::string_view label);

/// The concrete hand that represents a class, as two cards separated by a space:
///
///     "AA" -> "As Ac"      "AKs" -> "Ac Kc"      "AKo" -> "Ac Ks"
[[nodiscard]] FixedText<5> HandCards(std::string_view label);

}  // namespace quillon
