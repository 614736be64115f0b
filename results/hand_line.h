#pragma once

// The working of one single hand, added under a forum report as a grey line of mark-up.

#include <string_view>

#include "analysis/analysis.h"
#include "results/report_box.h"

namespace quillon {

/// Inserts the line for the class labelled `hand` at the box's insertion point, in 10 point Courier New; "None", the
/// first entry of the list that hands are picked from, adds nothing. The expected value is that of the results table
/// and is not worked out again from the printed terms. The line begins with a line break, and mark-up is round
/// these texts:
///
///     Preflop Call:  EV for AA = 0.8523 * (200) - 50 = +120.46
///     Preflop Raise: EV for AKs = (0.4*150)+(1-0.4)*(0.55*(150+50+2*100)-(50+100)) = +98.2
///     Equity Only:   Equity for AA : 0.8523      (with a tab after the colon)
void AddSpecificHand(ReportBox& box, const Analysis& analysis, std::string_view hand);

}  // namespace quillon
