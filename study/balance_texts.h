#pragma once

// Balanced ranges as text: reading the question, a grid of how often each class is played, and the value of the game.

#include <cstdint>
#include <string>
#include <variant>

#include "hand/hand_classes.h"
#include "ranges/range_text.h"
#include "study/equilibrium.h"
#include "study/limit_cells.h"

namespace quillon {

/// The three amounts as typed.
struct BalanceTexts {
  std::string Pot;
  std::string Call;
  std::string Shove;

  bool operator==(const BalanceTexts&) const = default;
};

/// The question with all hands on both sides, or a sentence on what is wrong: amounts count as in a box of the input
/// screens (BoxValue), and each must be present, a number, and within the bounds of BalanceQuestion.
[[nodiscard]] std::variant<BalanceQuestion, std::string> ReadBalanceQuestion(const BalanceTexts& texts);

/// Whether a player can hold a range: all weights are from 0 to 1, and one is above 0.
[[nodiscard]] bool CanBeHeld(const ClassWeights& weights);

/// The share of all hands in a range, in percent with two decimals.
[[nodiscard]] double PercentOfHands(const ClassWeights& weights);

/// Whose range: yours, with which you shove, or his, with which he calls.
enum class BalanceSide : std::uint8_t { kShove, kCall };

/// How often each class is played, by class index. Always is dark, never grey, sometimes orange with the percentage, in
/// at most four characters; hands that are not held are pale.
///
///     "you always shove"      "he calls 37.25% of the time"      "you never shove"      "he does not hold it"
[[nodiscard]] ClassCells PlayedCells(BalanceSide side, const ClassWeights& played, const ClassWeights& held);

/// The legend of both grids, one line for each colour that occurs.
[[nodiscard]] std::vector<PageLegend> PlayedLegend(const ClassCells& one, const ClassCells& other);

/// One line about the result:
///
///     On average the shove wins 21.4 chips more than a fold. Whoever changes his range gains less than 0.000001
///     chips by it.
[[nodiscard]] std::string BalanceWords(const Equilibrium& found);

}  // namespace quillon
