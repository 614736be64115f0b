#pragma once

// The strength of a hand given card by card, for tests of the equity table's generator.

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <span>

#include "tools/hand_ranking.h"

namespace quillon {

/// The strength of the best five among five to seven cards, given by their positions in the deck (0 for "As", 51 for
/// "2c"). No card may occur twice.
inline HandStrength StrengthOfCards(std::span<const int> cards) {
  RankTally tally;
  std::array<RankMask, kSuitCount> suits{};
  for (const int card : cards) {
    const RankMask rank = RankAt(static_cast<std::size_t>(card / kSuitCount));
    RankMask& suit = suits[static_cast<std::size_t>(card % kSuitCount)];
    suit = static_cast<RankMask>(suit | rank);
    tally = WithRanks(tally, rank);
  }
  for (const RankMask suit : suits) {
    if (std::popcount(suit) >= 5) {
      return StrengthOfFlush(suit);
    }
  }
  return StrengthOfRanks(tally);
}

/// The category of a strength.
inline HandCategory CategoryOf(HandStrength strength) {
  const auto started =
      std::upper_bound(kCategoryStart.begin(), kCategoryStart.end(), strength) - kCategoryStart.begin();
  return static_cast<HandCategory>(started - 1);
}

}  // namespace quillon
