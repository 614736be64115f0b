#pragma once

// The boards of five cards, up to a renaming of the suits.
//
// All suits are equal, and a hand class (say AKs) contains the same hands whatever the suits are called. So boards that
// differ by a renaming of suits give the same result for every pair of classes, and one of them can represent all, with
// their number as its weight. That leaves 134,459 boards of C(52,5) = 2,598,960.
//
// A board is stored as the set of ranks in each suit. Renaming suits reorders the four sets, so the representative is
// the board whose sets do not ascend, and the number it represents is the number of different orders of the four sets:
// 4! divided by the orders of equal ones. Five cards cannot be spread evenly over two or four suits, so that number is
// 4 (one suit and three empty ones), 12 or 24.

#include <array>
#include <vector>

#include "tools/hand_ranking.h"

namespace quillon {

inline constexpr int kBoardSize = 5;

/// C(52,5), the number of boards.
inline constexpr int kBoardCount = 2'598'960;

/// The number of boards up to a renaming of suits: the orbits of the boards under the 24 permutations of the suits.
inline constexpr int kBoardClassCount = 134'459;

/// Every orbit size is a multiple of this.
inline constexpr int kLeastOrbitSize = 4;

/// A board that represents all its renamings.
struct BoardClass {
  /// How often the board has each rank.
  RankTally ranks;
  /// The ranks that the board has in each suit, greatest mask first.
  std::array<RankMask, kSuitCount> suits{};
  /// The number of boards it represents.
  int orbitSize = 0;
};

/// All board classes, with those of the same ranks adjacent; their orbit sizes add up to `kBoardCount`.
[[nodiscard]] std::vector<BoardClass> AllBoardClasses();

}  // namespace quillon
