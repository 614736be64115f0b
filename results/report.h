#pragma once

// The written report of the last analysis, in one of two forms. The plain form is for reading: headings, the situation,
// and a table with the formula of each of the 169 hands, in fixed-width type. The forum form is a short text in mark-up
// for pasting into a post; it sets no font. Rows are in class index order. Ranges are in the summary notation of
// "ranges/range_summary.h", no amount has a currency sign, and a hand that is never called has the equity -1.

#include <array>
#include <string_view>

#include "analysis/analysis.h"
#include "results/report_box.h"

namespace quillon {

enum class ReportForm { kPlainText, kForum };

/// The entries of the list of forms, in the order of ReportForm.
inline constexpr std::array<std::string_view, 2> kReportFormTexts = {"Plain Text", "2+2"};

/// The report for an emptied box; nothing if there has been no analysis.
///
/// A Preflop Call needs a call amount other than 0: its pot odds fail as Divide does, and so does its break-even point
/// if pot and call sum to 0.
[[nodiscard]] ReportText BuildReport(const Analysis& analysis, ReportForm form);

/// Inserts the line for the class labelled `hand` at the box's insertion point, in 10 point Courier New; "None", the
/// first entry of the list of hands, adds nothing. The expected value is that of the results table, not recomputed from
/// the printed terms. The line begins with a line break and wraps these texts in mark-up:
///
///     Preflop Call:  EV for AA = 0.8523 * (200) - 50 = +120.46
///     Preflop Raise: EV for AKs = (0.4*150)+(1-0.4)*(0.55*(150+50+2*100)-(50+100)) = +98.2
///     Equity Only:   Equity for AA : 0.8523      (with a tab after the colon)
void AddSpecificHand(ReportText& box, const Analysis& analysis, std::string_view hand);

}  // namespace quillon
