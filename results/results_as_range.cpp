#include "results/results_as_range.h"

#include <cstdint>

#include "analysis/results_table.h"
#include "hand/hand_classes.h"
#include "ranges/card_grid.h"
#include "ranges/new_range.h"

namespace quillon {

void SaveResultsAsRange(const AnalysisState& state, NewRangeOpener& opener) {
  if (state.HandInfo.empty()) return;

  NewRangeWindow& window = opener.ShowNewRange();
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    if (GetHandInfo(state.HandInfo, HandLabel(index), kExpectedValueColumn) > 0) ToggleCell(window.Grid(), index);
  }
  SumUpNewRange(window);
  window.FocusRangeName();
}

}  // namespace quillon
