#pragma once

// Balanced ranges: which hands to shove and which to call a shove with, so that neither player gains by changing. An
// analysis asks what the opponent calls with; here the answer is found. He who shoves risks the call and the shove for
// the pot, he who calls risks the shove:
//
//     shove, and he folds      the pot
//     shove, and he calls      equity * (pot + call + 2 * shove) - (call + shove)
//     call a shove             his equity * (pot + call + 2 * shove) - shove
//
// What one gains the other lacks of the pot, so the game is one of constant sum, and its value is the same whichever
// pair of balanced ranges is found. Pairs of classes count by their concrete hands that share no card, and equities are
// those of the table.
//
// The ranges are found by regret matching, predictive CFR+ (O. Tammelin, "Solving Large Imperfect Information Games
// Using CFR+", 2014; G. Farina, C. Kroer, T. Sandholm, "Faster Game Solving via Predictive Blackwell Approachability",
// 2021), and not by a linear program: after some dozen rounds nearly every class is at 0 or 1 and stays there, so that
// a round costs a few additions for each of the few that still move, where a simplex step costs the whole table; and
// how far the answer is from balance is known at every moment.

#include <array>
#include <cstdint>
#include <memory>
#include <optional>

#include "analysis/range_sources.h"
#include "hand/hand_classes.h"
#include "ranges/range_text.h"

namespace quillon {

/// For one class, how many pairs of its concrete hands with those of each class share no card: 36 for AA and KK, 6 for
/// AA and AA.
using PairCounts = std::array<double, kHandClassCount>;
[[nodiscard]] PairCounts CountPairs(const HandNumbers& hands, std::int16_t index);

/// The most that the hero may risk, in pots: sums of larger amounts lack the digits to tell a millionth of the pot.
inline constexpr double kMostPotsAtRisk = 1e8;

/// The situation, in the user's own unit. The pot and the shove are above 0, the call is not below it, and call and
/// shove together are at most kMostPotsAtRisk pots.
struct BalanceQuestion {
  double Pot = 0;
  double Call = 0;  // what the hero must put in to stay in
  double Shove = 0;  // what the opponent must put in to call the shove
  ClassWeights OwnHands = AllHands();  // what the hero can hold; weights from 0 to 1
  ClassWeights HisHands = AllHands();
};

/// Balanced ranges. How often a hand that is held is played is rounded to six decimals, or to twelve where six
/// cannot tell it well enough.
struct Equilibrium {
  ClassWeights Shove{};  // no weight above that of the hands held
  ClassWeights Call{};
  double Value = 0;  // what the hero gains on average against folding everything
  double Exploitability = 0;  // what both could gain by changing, in sum: at most a millionth of the pot
};

/// The search for balanced ranges, in steps, so that a window may show how far it is and answer its user meanwhile.
class BalanceSearch {
 public:
  /// `hands` need not outlive it.
  BalanceSearch(const HandNumbers& hands, const BalanceQuestion& question);
  ~BalanceSearch();
  BalanceSearch(BalanceSearch&& other) noexcept;
  BalanceSearch& operator=(BalanceSearch&& other) noexcept;
  BalanceSearch(const BalanceSearch&) = delete;
  BalanceSearch& operator=(const BalanceSearch&) = delete;

  /// Searches on for about a millisecond. False once there is nothing more to do.
  bool GoOn();

  /// How much of the longest search is done, 0 to 1; most end far earlier.
  [[nodiscard]] double ShareDone() const;

  /// What was found when GoOn has returned false; nothing as told at FindEquilibrium.
  [[nodiscard]] std::optional<Equilibrium> Found() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

/// Balanced ranges for a question. Which of several balanced pairs is found is not said, and a class that is never
/// faced with a shove may have any weight. Nothing if one of the players can hold no hand, or if no ranges as near to
/// balance as promised were found: with shoves of many hundreds of pots and few hands, such as AA and 72o against KK
/// beyond some 700 pots, the opponent calls with so small a share of a hand that as much learning as five analyses of a
/// raise take does not come near it. With all hands on both sides there is an answer at every stack.
[[nodiscard]] std::optional<Equilibrium> FindEquilibrium(const HandNumbers& hands, const BalanceQuestion& question);

}  // namespace quillon
