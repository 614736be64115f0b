#pragma once

// Hands and their classes, by text alone. The oracle shares nothing with the program except the equity table's constant
// text, so that a bug would have to be made twice.

#include <cstddef>
#include <string>
#include <vector>

namespace quillon::plain {

inline constexpr std::size_t kClasses = 169;

/// The labels of the 169 classes in index order.
[[nodiscard]] const std::vector<std::string>& Labels();

/// The index of a label; 169 if the text is not a label.
[[nodiscard]] std::size_t IndexOf(const std::string& label);

/// The number of hands in a class.
[[nodiscard]] int ComboCount(const std::string& label);

/// The 25 lines of runs, each from its best class down: the pairs, then for the suited and for the offsuit hands one
/// line for each of twelve high cards.
[[nodiscard]] const std::vector<std::vector<std::string>>& Lines();

/// The 52 cards, "As" to "2c".
[[nodiscard]] const std::vector<std::string>& Deck();

/// The label of the class of two cards, the first before the second in the deck.
[[nodiscard]] std::string LabelOf(const std::string& card1, const std::string& card2);

/// One of the 1326 hands.
struct Hand {
  std::string Cards;  // "As Kh", the first card before the second in the deck
  std::size_t Class = 0;
};

/// All hands, in the order of their cards in the deck.
[[nodiscard]] const std::vector<Hand>& Hands();

/// The sample hand of a class: "As Ac", "Ac Kc", "Ac Ks".
[[nodiscard]] std::string SampleCards(const std::string& label);

}  // namespace quillon::plain
