#pragma once

// The checks that stand before a run, one for each scenario. Each looks at the boxes of its input screen, stops at the
// first fault, tells it in one message box with the exclamation icon, and answers false; with no fault it answers true
// and shows nothing. Nothing else changes.
//
// Amounts are tested for their value (GetBoxValue) before they are tested for being numbers at all (IsNumericText of
// the raw text, in the plain notation and the user's own). So "abc" is complained of as an amount of 0, "12abc" as not
// numeric, and "1,000" passes as an amount of 1.

#include "analysis/analysis_window.h"
#include "ranges/range_files.h"

namespace quillon {

/// "Preflop Call": a range is chosen and has weight, the pot is above the call and both are above 0, and both are
/// numbers. The range is read from its file; if there is no such file, or nothing in it, that is no message but a
/// RunTimeError "Subscript out of range", and a file that cannot be read as a range fails as DealRange does.
[[nodiscard]] bool CheckCallInputs(AnalysisWindow& window, const ProgramFolder& folder);

/// "Preflop Raise": both ranges are chosen, pot and shove are above 0, the call is not below 0 (an empty box is 0), and
/// what stands in the boxes are numbers. No range is opened: an empty one has its meaning in the run.
[[nodiscard]] bool CheckRaiseInputs(AnalysisWindow& window);

/// "Equity Only": a range is chosen and has weight. Fails as CheckCallInputs does.
[[nodiscard]] bool CheckEquityInputs(AnalysisWindow& window, const ProgramFolder& folder);

}  // namespace quillon
