#pragma once

// The written report of the last analysis, in one of two forms. The plain form is for reading: headings, the situation,
// and a table with the formula of each of the 169 hands, in fixed-width type. The forum form is a short text in mark-up
// for pasting into a post; it sets no font. Rows follow the class index order (AA, AKs, ... 22) and are never sorted.
// Ranges are in the summary notation of "ranges/range_summary.h", no amount carries a currency sign, and a hand that
// the opponent never calls prints its equity as the -1 that it is.

#include <array>
#include <string_view>

#include "analysis/analysis.h"
#include "results/report_box.h"

namespace quillon {

enum class ReportForm { kPlainText, kForum };

/// The entries of the list of forms, in the order of ReportForm.
inline constexpr std::array<std::string_view, 2> kReportFormTexts = {"Plain Text", "2+2"};

/// What the report needs of its screen.
class ReportScreen : public ReportBox {
 public:
  /// The form selected in cmboOutputType.
  [[nodiscard]] virtual ReportForm SelectedForm() const = 0;
  /// Shows or hides the list cmbo169 and its label lblSpecificHand together.
  virtual void SetSpecificHandVisible(bool visible) = 0;
};

/// Empties the box and writes the report of the selected form and of the analysis's scenario; before any analysis it
/// only empties. The list of single hands is shown with the forum form alone.
///
/// A Preflop Call needs a call amount that is not 0: its pot odds fail as Divide does, and so does its break-even point
/// where pot and call come to 0 together.
void BuildReport(ReportScreen& screen, const Analysis& analysis);

}  // namespace quillon
