#pragma once

// The boards of five cards, up to a renaming of the suits.
//
// No suit outranks another, and a hand class (say AKs) holds the same hands whatever the suits are called. So boards
// that a renaming of the suits turns into each other treat every pair of classes alike, and one of them can represent
// all, counted as often as there are of them. That leaves 134,459 boards of C(52,5) = 2,598,960.
//
// A board is kept as the set of ranks it has in each suit. Renaming suits reorders the four sets, so the board that
// represents its class is simply the one whose sets do not ascend, and the number it represents is the number of
// different orders of the four sets: 4! divided by the orders of equal ones. Five cards cannot be spread evenly over
// two or four suits, so that number is 4 (one suit and three empty ones), 12 or 24.

#include <array>
#include <vector>

#include "tools/hand_ranking.h"

namespace quillon {

inline constexpr int kBoardSize = 5;

/// C(52,5), the boards that can be dealt.
inline constexpr int kBoardCount = 2'598'960;

/// The boards that remain when those that differ by a renaming of suits are taken as one: the orbits of the boards
/// under the 24 permutations of the suits.
inline constexpr int kBoardClassCount = 134'459;

/// Every orbit size is a multiple of this.
inline constexpr int kLeastOrbitSize = 4;

/// One board for all boards that a renaming of suits makes of it.
struct BoardClass {
  /// How often the board has each rank.
  RankTally ranks;
  /// The ranks that the board has in each suit, greatest mask first.
  std::array<RankMask, kSuitCount> suits{};
  /// How many boards it represents.
  int orbitSize = 0;
};

/// All board classes, those with the same ranks side by side; their orbit sizes add up to `kBoardCount`.
[[nodiscard]] std::vector<BoardClass> AllBoardClasses();

}  // namespace quillon
