#pragma once

// The hands possible with a board, weakest first, in bundles: hands of one class with equal strength.
//
// Without a flush only ranks matter, so all hands of a class make one bundle, and boards of the same ranks order their
// bundles alike. If the board has three or more cards of one suit, the hands with enough cards of it for five leave
// their class's bundle for one of their own.

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "hand/hand_classes.h"
#include "tools/board_classes.h"
#include "tools/hand_ranking.h"

namespace quillon {

inline constexpr std::size_t kClassCount = static_cast<std::size_t>(kHandClassCount);

/// Places in a table of ranks count from the ace down, like the rows and columns of the class grid.
struct ClassShape {
  /// The place of the higher and of the lower rank; the same for a pair.
  std::uint8_t high = 0;
  std::uint8_t low = 0;
  bool suited = false;

  [[nodiscard]] constexpr bool IsPair() const { return high == low; }
};

/// The shapes of the classes, in class order.
inline constexpr std::array<ClassShape, kClassCount> kClassShapes = [] {
  std::array<ClassShape, kClassCount> shapes{};
  for (std::size_t row = 0; row < kRankCount; ++row) {
    for (std::size_t column = 0; column < kRankCount; ++column) {
      const bool suited = column > row;
      shapes[kRankCount * row + column] = {static_cast<std::uint8_t>(suited ? row : column),
                                           static_cast<std::uint8_t>(suited ? column : row), suited};
    }
  }
  return shapes;
}();

/// How many hands a bundle has, and how many of them use each card.
struct CardUse {
  /// By suit, the hands with that suit's card of the class's higher rank. A pair has both its cards here.
  std::array<std::uint8_t, kSuitCount> high{};
  /// The same for the lower rank; all 0 for a pair.
  std::array<std::uint8_t, kSuitCount> low{};
  std::uint8_t hands = 0;
};

/// Hands of one class and of equal strength. Such hands may be split over two bundles; no hand is in more than one.
struct HandBundle {
  HandStrength strength = 0;
  std::uint8_t handClass = 0;
  CardUse use;
};

/// A class and the strength of its hands without a flush.
struct RankedClass {
  HandStrength strength = 0;
  std::uint8_t handClass = 0;
};

using RankedClasses = std::array<RankedClass, kClassCount>;

/// The 169 classes in ascending order of strength on a board of these ranks without a flush.
[[nodiscard]] RankedClasses RankClasses(const RankTally& boardRanks);

/// Replaces `bundles` by the bundles of all live hands of `board` in ascending order of strength, reusing its memory.
/// `ranked` must be `RankClasses(board.ranks)`, a parameter because one serves all boards of the same ranks.
void BundleHands(const BoardClass& board, const RankedClasses& ranked, std::vector<HandBundle>& bundles);

}  // namespace quillon
