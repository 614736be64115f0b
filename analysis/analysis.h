#pragma once

// The analysis itself: a situation goes in, a finished analysis of all 169 classes comes out, and a listener may watch
// it grow or stop it. For each class in index order the ranges are dealt around its two sample cards, the
// equity and the share of hands that call are averaged over them, the move is valued, and a row is added to
// the results table. Nothing here knows where a situation was typed or a result will be shown.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "analysis/range_sources.h"
#include "analysis/results_table.h"
#include "analysis/scenarios.h"

namespace quillon {

/// What is asked. "Equity Only" asks with RangeName and RangeText alone; the shove and the calling range belong to
/// "Preflop Raise" alone.
struct Situation {
  AnalysisMode Mode = AnalysisMode::kNone;
  double PotSize = 0;  // amounts in the user's own unit
  double CallAmount = 0;
  double ShoveAmount = 0;  // what the opponent must put in to call the shove
  std::string RangeName{};  // the opponent's range, before he answers a shove; names are for reports and failures
  std::string CallingRangeName{};  // what he calls a shove with
  std::string RangeText{};
  std::string CallingRangeText{};

  bool operator==(const Situation&) const = default;
};

/// What was found, beside what was asked.
struct Analysis : Situation {
  std::string DroppedHands;  // of a scenario with a calling range alone: what ListDroppedHands says of the last class
  std::string HandInfo;  // the results table, see "analysis/results_table.h"

  bool operator==(const Analysis&) const = default;
};

/// Watches an analysis, and may stop it. Each part may be left empty.
struct AnalysisListener {
  std::function<void(std::int16_t index)> Begins{};  // a class is about to be worked out
  std::function<Amounts()> AmountsNow{};  // asked once for each class; the situation's own amounts if empty
  /// A class has been worked out: `soFar` holds its row, and after the last class the dropped hands. False stops.
  std::function<bool(std::int16_t index, const Analysis& soFar)> GoesOn{};
};

/// The analysis of a situation, which must have a scenario, or nothing if the listener stopped it, be it after the last
/// class. The equity table must have been loaded. Amounts that the listener gives go into the rows; the situation
/// returned is the one that was asked about.
///
/// Fails as RangeTexts does, on the first class, and as ResultRow does where an amount makes a value beyond all
/// numbers.
[[nodiscard]] std::optional<Analysis> Analyze(Situation situation, const AnalysisListener& listener = {});

/// The same from numbers that have been read before, which must be those of the situation's texts; the texts themselves
/// are not read.
[[nodiscard]] std::optional<Analysis> Analyze(Situation situation, const RangeNumbers& ranges,
                                              const AnalysisListener& listener = {});

/// The result of the class `index` from its figures, which do not depend on the amounts. A table holds the row that
/// ResultRow makes of it.
[[nodiscard]] HandResult ResultOf(const Scenario& scenario, std::int16_t index, const ClassFigures& figures,
                                  const Amounts& amounts);

}  // namespace quillon
