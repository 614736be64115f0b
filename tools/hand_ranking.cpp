#include "tools/hand_ranking.h"

#include <bit>

namespace quillon {
namespace {

constexpr std::size_t kRankMaskCount = std::size_t{1} << kRankCount;
constexpr int kRankedCards = 5;

// For each set of ranks its index among the sets of the same size, in ascending order of mask.
constexpr std::array<std::uint16_t, kRankMaskCount> kPlaceAmongEquals = [] {
  std::array<std::uint16_t, kRankMaskCount> places{};
  std::array<std::uint16_t, kRankCount + 1> setsOfSize{};
  for (std::size_t mask = 0; mask < kRankMaskCount; ++mask) {
    places[mask] = setsOfSize[static_cast<std::size_t>(std::popcount(mask))]++;
  }
  return places;
}();

constexpr int kPlacesOfTwo = 78;
constexpr int kPlacesOfThree = 286;

constexpr RankMask Without(RankMask set, RankMask removed) {
  return static_cast<RankMask>(set & ~removed);
}

constexpr RankMask Highest(RankMask set) {
  return std::bit_floor(set);
}

RankMask HighestFew(RankMask set, int count) {
  RankMask few = 0;
  for (; count > 0; --count) {
    few = static_cast<RankMask>(few | Highest(Without(set, few)));
  }
  return few;
}

int Place(RankMask set) {
  return kPlaceAmongEquals[set];
}

constexpr HandStrength Strength(HandCategory category, int place) {
  return static_cast<HandStrength>(kCategoryStart[static_cast<std::size_t>(category)] + place);
}

// 0 for none, 1 for five-high up to 10 for ace-high. The ace is also placed below the deuce, so a run of five that
// starts at bit n of the extended set is straight number n + 1.
int HighestStraight(RankMask ranks) {
  const unsigned widened = (static_cast<unsigned>(ranks) << 1) | (ranks >> (kRankCount - 1));
  const unsigned runs = widened & (widened >> 1) & (widened >> 2) & (widened >> 3) & (widened >> 4);
  return static_cast<int>(std::bit_width(runs));
}

HandStrength StrengthOfQuadruplet(const RankTally& tally) {
  const RankMask four = Highest(tally.fourTimes);
  const RankMask kicker = Highest(Without(tally.once, four));
  return Strength(HandCategory::kFourOfAKind, kRankCount * Place(four) + Place(kicker));
}

HandStrength StrengthOfTriplet(RankMask three, RankMask others) {
  return Strength(HandCategory::kThreeOfAKind, kPlacesOfTwo * Place(three) + Place(HighestFew(others, 2)));
}

HandStrength StrengthOfPairs(const RankTally& tally) {
  const RankMask pairs = HighestFew(tally.twice, 2);
  const RankMask others = Without(tally.once, pairs);
  if (std::has_single_bit(pairs)) {
    return Strength(HandCategory::kOnePair, kPlacesOfThree * Place(pairs) + Place(HighestFew(others, 3)));
  }
  return Strength(HandCategory::kTwoPair, kRankCount * Place(pairs) + Place(Highest(others)));
}

}  // namespace

HandStrength StrengthOfRanks(const RankTally& tally) {
  if (tally.fourTimes != 0) {
    return StrengthOfQuadruplet(tally);
  }
  const RankMask three = Highest(tally.thrice);
  const RankMask pairBeside = Highest(Without(tally.twice, three));
  if (three != 0 && pairBeside != 0) {
    return Strength(HandCategory::kFullHouse, kRankCount * Place(three) + Place(pairBeside));
  }
  if (const int straight = HighestStraight(tally.once); straight != 0) {
    return Strength(HandCategory::kStraight, straight - 1);
  }
  if (three != 0) {
    return StrengthOfTriplet(three, Without(tally.once, three));
  }
  if (tally.twice != 0) {
    return StrengthOfPairs(tally);
  }
  return Strength(HandCategory::kHighCard, Place(HighestFew(tally.once, kRankedCards)));
}

HandStrength StrengthOfFlush(RankMask ranks) {
  if (const int straight = HighestStraight(ranks); straight != 0) {
    return Strength(HandCategory::kStraightFlush, straight - 1);
  }
  return Strength(HandCategory::kFlush, Place(HighestFew(ranks, kRankedCards)));
}

}  // namespace quillon
