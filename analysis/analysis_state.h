#pragma once

// The state of an analysis, which outlives its run: what the results screens, the hover panel and the report read is
// here. The main window owns one of these. Only the driver writes it ("analysis/analysis_driver.h"), but for `Running`,
// which the stop label clears too. A field that a scenario does not write keeps what an earlier run left in it.

#include <cstdint>
#include <string>
#include <string_view>

namespace quillon {

/// The scenario: the opponent has moved all in and the user may call; the user may shove; or only equities are wanted.
enum class AnalysisMode : std::int32_t { kNone = 0, kPreflopCall = 1, kPreflopRaise = 2, kEquityOnly = 3 };

struct AnalysisState {
  bool Running = false;  // from just before the first class until the run ends or is stopped
  AnalysisMode Mode = AnalysisMode::kNone;  // of the last click, also of one that its check turned away

  // The situation when the run began: amounts in the unit of their boxes, ranges with the text of their files. "Equity
  // Only" stores RangeName and RangeText alone; the shove and the calling range belong to "Preflop Raise" alone.
  double PotSize = 0;
  double CallAmount = 0;
  double ShoveAmount = 0;  // what the opponent must put in to call the shove
  std::string RangeName;  // the opponent's range, before he answers a shove
  std::string CallingRangeName;  // what he calls a shove with
  std::string RangeText;
  std::string CallingRangeText;

  std::string DroppedHands;  // by "Preflop Raise" alone: what ListDroppedHands said of the last class
  std::string HandInfo;  // the last finished table, see "analysis/results_table.h"
};

/// The name of a scenario, which is also the caption of its input screen: "Preflop Call", "Preflop Raise", "Equity
/// Only". The empty text for kNone.
[[nodiscard]] std::string_view ScreenName(AnalysisMode mode);

/// The scenario of the button `cmdPreflopEV(index)`: 0 is "Preflop Call", 2 is "Equity Only", any other is "Preflop
/// Raise".
[[nodiscard]] AnalysisMode ModeOfButton(std::int16_t index);

}  // namespace quillon
