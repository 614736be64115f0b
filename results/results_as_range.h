#pragma once

// The hands that profit, as the proposal for a new range: the New Range dialog opens with them marked, to be named and
// saved there ("ranges/new_range.h").

#include "analysis/analysis_state.h"
#include "ranges/range_choosers.h"

namespace quillon {

/// The click on `imgSaveAsRange`: shows the New Range dialog, toggles the cell of each class with an expected value
/// above 0, sums the grid up, and puts the focus on the name. Nothing is named or saved yet, and where the range will
/// be chosen stays as it was. Without results nothing happens.
///
/// A class at exactly 0 stays out, although the grid is green there and the reports count it as profitable. The cells
/// are toggled as by clicks: at half weight where the dialog's `chkHalf` is checked, in groups where Shift was pressed,
/// and back to unselected where they were selected, so that a second click on the picture undoes the first. After
/// "Equity Only", where every value is 0, the dialog shows what it showed.
void SaveResultsAsRange(const AnalysisState& state, NewRangeOpener& opener);

}  // namespace quillon
