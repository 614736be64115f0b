#pragma once

// The analysis engine: takes a situation, returns a finished analysis of all 169 classes, and lets a listener watch its
// progress or stop it. For each class in index order the ranges are dealt around its two sample cards, the equity and
// the share of calling hands are averaged over them, the move is valued, and a row is added to the results table.
// Nothing here knows where a situation was typed or a result will be shown.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "analysis/range_sources.h"
#include "analysis/results_table.h"
#include "analysis/scenarios.h"

namespace quillon {

/// The question. "Equity Only" needs just RangeName and RangeText; only "Preflop Raise" has a shove and a calling
/// range.
struct Situation {
  AnalysisMode Mode = AnalysisMode::kNone;
  quillon::Amounts Amounts{};
  std::string RangeName{};  // the opponent's range before he responds to a shove; names are for reports and errors
  std::string CallingRangeName{};  // what he calls a shove with
  std::string RangeText{};
  std::string CallingRangeText{};

  bool operator==(const Situation&) const = default;
};

/// Stores in `kept` what the scenario of `asked` asks for: its amounts, and its ranges by name and by text. The rest of
/// `kept`, including its scenario, keeps its value.
void StoreAsked(const Situation& asked, Situation& kept);

/// The question with its answer.
struct Analysis : Situation {
  std::string DroppedHands;  // only with a calling range: ListDroppedHands of the last class
  std::string HandInfo;  // the results table, see "analysis/results_table.h"

  bool operator==(const Analysis&) const = default;
};

/// Watches an analysis, and may stop it. Every member may be left empty.
struct AnalysisListener {
  std::function<void(std::int16_t index)> Begins{};  // a class is about to be analysed
  std::function<Amounts()> AmountsNow{};  // asked once for each class; the situation's own amounts if empty
  /// A class is done: `soFar` holds its row, and after the last class the dropped hands. Returning false stops.
  std::function<bool(std::int16_t index, const Analysis& soFar)> GoesOn{};
};

/// Analyses a situation, which must have a scenario; nothing if the listener stopped it, even after the last class. The
/// equity table must be loaded. The listener's amounts affect only the rows, not the returned situation.
///
/// Fails as RangeTexts does, on the first class, and as ResultRow does if amounts lead to a value that is not finite.
[[nodiscard]] std::optional<Analysis> Analyze(Situation situation, const AnalysisListener& listener = {});

/// The same with preloaded numbers, which must be those of the situation's texts; the texts themselves are not read.
[[nodiscard]] std::optional<Analysis> Analyze(Situation situation, const RangeNumbers& ranges,
                                              const AnalysisListener& listener = {});

/// The result of the class `index` from its figures, which do not depend on the amounts. ResultRow turns it into a row.
[[nodiscard]] HandResult ResultOf(const Scenario& scenario, std::int16_t index, const ClassFigures& figures,
                                  const Amounts& amounts);

}  // namespace quillon
