#pragma once

// The calculation for a single hand, appended to a forum report as a grey line of mark-up.

#include <string_view>

#include "analysis/analysis.h"
#include "results/report_box.h"

namespace quillon {

/// Inserts the line for the class labelled `hand` at the box's insertion point, in 10 point Courier New; "None", the
/// first entry of the list of hands, adds nothing. The expected value is that of the results table, not recomputed from
/// the printed terms. The line begins with a line break and wraps these texts in mark-up:
///
///     Preflop Call:  EV for AA = 0.8523 * (200) - 50 = +120.46
///     Preflop Raise: EV for AKs = (0.4*150)+(1-0.4)*(0.55*(150+50+2*100)-(50+100)) = +98.2
///     Equity Only:   Equity for AA : 0.8523      (with a tab after the colon)
void AddSpecificHand(ReportText& box, const Analysis& analysis, std::string_view hand);

}  // namespace quillon
