#pragma once

// The strength of a poker hand of five to seven cards as a number: the better hand has the greater number, and hands
// that split the pot have the same.
//
// Only two things about the cards matter: how often each rank occurs and, if five or more cards are of one suit, which
// ranks they have. With seven cards a flush leaves just two others, too few for four of a kind or a full house; so a
// hand with a flush is worth exactly its flush, and any other hand exactly its ranks.
//
// Sets of ranks are masks of thirteen bits, bit 0 for the deuce up to bit 12 for the ace. Of two sets of the same size
// the one with the greater mask has the higher rank at the first difference, which is how kickers are compared.

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>

#include "hand/hand_classes.h"

namespace quillon {

/// A set of ranks, bit 0 for the deuce up to bit 12 for the ace.
using RankMask = std::uint16_t;

/// A hand's strength: greater beats smaller, equal ties. Not every number is the strength of some hand.
using HandStrength = std::uint16_t;

inline constexpr int kSuitCount = 4;

/// The set of all ranks.
inline constexpr RankMask kAllRanks = (1U << kRankCount) - 1;

/// The kinds of hand, worst first.
enum class HandCategory : std::uint8_t {
  kHighCard,
  kOnePair,
  kTwoPair,
  kThreeOfAKind,
  kStraight,
  kFlush,
  kFullHouse,
  kFourOfAKind,
  kStraightFlush,
};

inline constexpr std::size_t kHandCategoryCount = 9;

/// Where each category's strengths start; the next category's start ends them, and the last number ends the whole.
///
/// A category has one number for each choice of what decides between its hands: C(13,5) = 1287 sets of five ranks for a
/// high card or a flush, 13 pairs with C(13,3) = 286 sets of kickers, C(13,2) = 78 sets of two pairs with 13 kickers,
/// 13 triplets with 78 sets of kickers, 10 straights, 13 triplets or quadruplets with 13 companions.
inline constexpr std::array<HandStrength, kHandCategoryCount + 1> kCategoryStart = [] {
  constexpr std::array<int, kHandCategoryCount> kSizes = {1287, 13 * 286, 78 * 13, 13 * 78, 10,
                                                          1287, 13 * 13,  13 * 13, 10};
  std::array<HandStrength, kHandCategoryCount + 1> starts{};
  for (std::size_t i = 0; i < kHandCategoryCount; ++i) {
    starts[i + 1] = static_cast<HandStrength>(starts[i] + kSizes[i]);
  }
  return starts;
}();

/// How often each rank occurs: the ranks held at least once, twice, three and four times.
struct RankTally {
  RankMask once = 0;
  RankMask twice = 0;
  RankMask thrice = 0;
  RankMask fourTimes = 0;

  // NOLINTNEXTLINE(modernize-use-nullptr): clang-tidy 14 sees a zero in every defaulted comparison
  friend auto operator<=>(const RankTally&, const RankTally&) = default;
};

/// The tally after one more card of each rank in `ranks`.
[[nodiscard]] constexpr RankTally WithRanks(RankTally tally, RankMask ranks) {
  tally.fourTimes = static_cast<RankMask>(tally.fourTimes | (tally.thrice & ranks));
  tally.thrice = static_cast<RankMask>(tally.thrice | (tally.twice & ranks));
  tally.twice = static_cast<RankMask>(tally.twice | (tally.once & ranks));
  tally.once = static_cast<RankMask>(tally.once | ranks);
  return tally;
}

/// The set of one rank, by its position from the ace down: `RankAt(0)` is the ace's bit 12, `RankAt(12)` the deuce's
/// bit 0.
[[nodiscard]] constexpr RankMask RankAt(std::size_t place) {
  return static_cast<RankMask>(1U << (kRankCount - 1 - place));
}

/// The strength of the best five cards among five to seven whose ranks are tallied, ignoring suits.
[[nodiscard]] HandStrength StrengthOfRanks(const RankTally& tally);

/// The strength of the best flush or straight flush from five or more cards of one suit with these ranks.
[[nodiscard]] HandStrength StrengthOfFlush(RankMask ranks);

}  // namespace quillon
