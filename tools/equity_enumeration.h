#pragma once

// The exact equities of all pairs of hand classes, by enumeration.
//
// An equity is a share of the pot. Take every concrete hand of one class with every concrete hand of the other that
// shares no card with it, and for each such pair all boards of the remaining 48 cards: two points for a win, one for a
// tie. The equity is the points won over the points played for, an exact fraction; nothing is rounded here.
//
// Going through the pairs one by one would take some 10^12 comparisons. Three things make it a second's work:
//
// - One board represents all its renamings of suits (see board_classes.h).
// - A board's hands are sorted once, weakest first, and visited in that order, with a tally of what a hand of the
//   current strength wins from the hands of each class: two points for every weaker one, one for every equal one.
//   Adding the tally to the row of a hand's class counts the hand against all 1081 hands at once. Hands of one class
//   and strength are handled together, as a bundle (see hand_bundles.h).
// - That also counts hands that share a card, which cannot both be held. So the same is done for every card among the
//   46 hands that hold it, and subtracted. Two different hands share at most one card, so nothing is subtracted twice
//   except a hand's tie with itself, which is corrected separately.
//
// The sums of a few dozen boards fit 16 bits, of which a vector register holds many; they are collected there and then
// added to wider sums. The loops over them are plain, and the compiler turns them into vector code.

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "tools/hand_bundles.h"

namespace quillon {

/// C(48,5), the number of boards for two hands that share no card.
inline constexpr std::int64_t kBoardsPerPair = 1'712'304;

/// A span of classes, by index, both ends included.
struct ClassRange {
  std::size_t first = 0;
  std::size_t last = kClassCount - 1;

  [[nodiscard]] constexpr bool Holds(std::size_t handClass) const { return first <= handClass && handClass <= last; }
};

/// For each class the points, or pairs of hands, against each class; rows by class index.
using PointTable = std::vector<std::array<std::int64_t, kClassCount>>;

/// The number of pairs of concrete hands, one of each class, that share no card.
[[nodiscard]] PointTable CountPairs();

/// Receives the progress; always called from the thread that started the work.
using ProgressReport = std::function<void(std::size_t done, std::size_t total)>;

/// The points that each class of `rows` wins from each of the 169 classes, itself included, on all boards that `boards`
/// represent, over all pairs of hands that share no card with each other or the board. Rows outside `rows` stay 0, and
/// counting that only they need is skipped.
///
/// The result depends neither on the order of the boards nor on `threads`, which must be at least 1. It is faster if
/// boards of the same ranks are adjacent, as in `AllBoardClasses`.
[[nodiscard]] PointTable CountPoints(std::span<const BoardClass> boards, ClassRange rows, unsigned threads,
                                     const ProgressReport& report = {});

/// The points that two classes play for on all boards, with this many pairs of hands: two for each pair and board.
[[nodiscard]] constexpr std::int64_t PointsAtStake(std::int64_t pairs) {
  return 2 * pairs * kBoardsPerPair;
}

/// Whether the points that any two classes of `rows` win from each other on all boards add up to exactly what they play
/// for; a class wins half from itself. The two sides are counted separately, so this catches a lost or doubled board,
/// hand or pair.
[[nodiscard]] bool PointsAddUp(ClassRange rows, const PointTable& points, const PointTable& pairs);

}  // namespace quillon
