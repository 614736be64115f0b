#pragma once

// Balanced ranges: which hands to shove and which to call a shove with, so that neither player gains by changing. An
// analysis is given the calling range; here it is the result. The player who shoves risks the call and the shove for
// the pot, the one who calls risks the shove:
//
//     shove, and he folds      the pot
//     shove, and he calls      equity * (pot + call + 2 * shove) - (call + shove)
//     call a shove             his equity * (pot + call + 2 * shove) - shove
//
// The game has a constant sum, the pot, so its value is the same for every pair of balanced ranges. Pairs of classes
// count by their concrete hands that share no card, and equities are those of the table.
//
// The ranges are found by regret matching, predictive CFR+ (O. Tammelin, "Solving Large Imperfect Information Games
// Using CFR+", 2014; G. Farina, C. Kroer, T. Sandholm, "Faster Game Solving via Predictive Blackwell Approachability",
// 2021), rather than by a linear program. After a few dozen rounds nearly every class stays at 0 or 1, so a round costs
// a few additions for each of the few that still move, while a simplex step costs the whole table; and the distance
// from balance is known at any time.

#include <array>
#include <cstdint>
#include <memory>
#include <optional>

#include "analysis/range_sources.h"
#include "hand/hand_classes.h"
#include "ranges/range_text.h"

namespace quillon {

/// For one class, the number of pairs of its hands with those of each class that share no card: 36 for AA and KK.
using PairCounts = std::array<double, kHandClassCount>;
[[nodiscard]] PairCounts CountPairs(const HandNumbers& hands, std::int16_t index);

/// The most that the hero may risk, in pots. With larger amounts a double cannot resolve a millionth of the pot.
inline constexpr double kMostPotsAtRisk = 1e8;

/// The situation, in the user's own unit. The pot and the shove are above 0, the call is at least 0, and call plus
/// shove are at most kMostPotsAtRisk pots.
struct BalanceQuestion {
  double Pot = 0;
  double Call = 0;  // what the hero must put in to stay in
  double Shove = 0;  // what the opponent must put in to call the shove
  ClassWeights OwnHands = AllHands();  // what the hero can hold; weights from 0 to 1
  ClassWeights HisHands = AllHands();
};

/// Balanced ranges. How often a hand is played is rounded to six decimals, or to twelve where six are too coarse.
struct Equilibrium {
  ClassWeights Shove{};  // at most the weights of the hands held
  ClassWeights Call{};
  double Value = 0;  // the hero's average gain over folding everything
  double Exploitability = 0;  // the sum of what both could gain by changing: at most a millionth of the pot
};

/// The search for balanced ranges, in steps, so that a window can show progress and stay live.
class BalanceSearch {
 public:
  /// `hands` need not outlive it.
  BalanceSearch(const HandNumbers& hands, const BalanceQuestion& question);
  ~BalanceSearch();
  BalanceSearch(const BalanceSearch&) = delete;
  BalanceSearch& operator=(const BalanceSearch&) = delete;

  /// Continues the search for about a millisecond. False once it is finished.
  bool GoOn();

  /// How much of the longest search is done, 0 to 1; most end far earlier.
  [[nodiscard]] double ShareDone() const;

  /// The result once GoOn has returned false; nothing as for FindEquilibrium.
  [[nodiscard]] std::optional<Equilibrium> Found() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

/// Balanced ranges for a question. If there are several pairs, any of them; a class that never faces a shove may have
/// any weight. Nothing if a player can hold no hand, or if no ranges close enough to balance were found: with shoves of
/// many hundreds of pots and few hands, such as AA and 72o against KK beyond some 700 pots, the opponent calls with so
/// small a share of a hand that the search gives up, after the time of about five analyses of a raise. With all hands
/// on both sides there is an answer for every stack.
[[nodiscard]] std::optional<Equilibrium> FindEquilibrium(const HandNumbers& hands, const BalanceQuestion& question);

}  // namespace quillon
