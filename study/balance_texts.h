#pragma once

// Balanced ranges as people read them: what is asked, from texts; a grid of how often each class is played; and what
// the game is worth.

#include <cstdint>
#include <string>
#include <string_view>
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

/// The question with all hands on both sides, or why there is none, in a sentence: amounts count as in a box of the
/// input screens (BoxValue), and each must be there, a number, and within the bounds of BalanceQuestion.
[[nodiscard]] std::variant<BalanceQuestion, std::string> ReadBalanceQuestion(const BalanceTexts& texts);

/// Whether a range can be what a player holds: weights from 0 to 1, and one above 0.
[[nodiscard]] bool CanBeHeld(const ClassWeights& weights);

/// How much of all hands a range is, in percent with two decimals.
[[nodiscard]] double PercentOfHands(const ClassWeights& weights);

/// Whose range it is: yours, with which you shove, or his, with which he calls.
enum class BalanceSide : std::uint8_t { kShove, kCall };

/// How often the classes are played, by class index. What is always played is dark, what is never played is grey, and
/// what is played at times is orange with its percentage, in at most four characters; what is not held is pale.
///
///     "you always shove"      "he calls 37.25% of the time"      "you never shove"      "he does not hold it"
[[nodiscard]] ClassCells PlayedCells(BalanceSide side, const ClassWeights& played, const ClassWeights& held);

/// What the colours of both grids say, one line for each kind that occurs in one of them.
[[nodiscard]] std::vector<PageLegend> PlayedLegend(const ClassCells& one, const ClassCells& other);

/// One line about what was found:
///
///     On average the shove wins 21.4 chips more than a fold. Whoever changes his range gains less than 0.000001
///     chips by it.
[[nodiscard]] std::string BalanceWords(const Equilibrium& found);

}  // namespace quillon
