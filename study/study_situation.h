#pragma once

// A finished analysis with its ranges read once, for the further questions of the study's pages.

#include <cstddef>
#include <functional>
#include <string>

#include "analysis/analysis.h"
#include "analysis/range_sources.h"
#include "ranges/range_text.h"

namespace quillon {

struct StudySituation {
  Situation Asked;  // whatever its scenario does not ask for is 0 or empty
  ClassWeights Range{};  // the weights of Asked.RangeText
  ClassWeights CallingRange{};  // of Asked.CallingRangeText; all 0 in a scenario without one
  std::reference_wrapper<const HandNumbers> Hands;  // outlive the situation

  /// The ranges, ready for thousands of questions.
  [[nodiscard]] RangeNumbers Numbers() const { return {Hands, Range, CallingRange}; }

  /// The amount of the move: the call or the shove, or 0 in "Equity Only".
  [[nodiscard]] double OwnAmount() const;
};

/// The situation of a finished analysis, without fields that its scenario does not ask for. `hands` must outlive the
/// result. Fails as RangeWeightsOf does, on texts with which no analysis could finish.
[[nodiscard]] StudySituation StudySituationOf(const Analysis& analysis, const HandNumbers& hands);

/// The first `count` amounts of a situation.
///
///     "pot 150, 50 to call, he must call 400"
[[nodiscard]] std::string AmountWords(const Situation& situation, std::size_t count);

/// What the opponent does: "plays \"Button Shove\" and calls with \"Tight\"".
[[nodiscard]] std::string RangeWords(const Situation& situation);

/// One line about a situation, which must have a scenario.
///
///     Preflop Call: pot 110, 90 to call; he plays "Button Shove"
///     Preflop Raise: pot 150, 50 to call, he must call 400; he plays "Button Shove" and calls with "Tight"
///     Equity Only: against "Tight"
[[nodiscard]] std::string SituationWords(const Situation& situation);

}  // namespace quillon
