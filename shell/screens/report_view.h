#pragma once

// The Details screen: the report in its rich text box, and the lists below it.

#include <QTextCharFormat>

#include "results/report.h"
#include "shell/screens/main_layout.h"
#include "toolkit/rich_text_box.h"

namespace quillon {

class ReportView {
 public:
  explicit ReportView(MainControls& controls) : controls_(controls) {}

  /// Rewrites the report in the selected form and clears the undo history. The list of single hands is shown with the
  /// forum form only.
  void Build(const Analysis& analysis);

  /// Appends the calculation for a hand as one undo step.
  void AddHand(const Analysis& analysis, std::string_view hand);

 private:
  void Empty(ReportForm form);
  void Insert(const ReportText& report);
  void SetFont(const ReportFont& font);
  void InsertText(std::string_view text);
  [[nodiscard]] RichTextBox& Box() const { return controls_.Get<RichTextBox>("rtfSummary"); }

  MainControls& controls_;
  QTextCharFormat font_;  // of the insertion point
};

}  // namespace quillon
