#pragma once

// The Details screen: the report in its rich text box, and the lists below it.

#include <QTextCharFormat>

#include "results/report.h"
#include "shell/screens/main_layout.h"
#include "toolkit/rich_text_box.h"

namespace quillon {

class ReportView : public ReportScreen {
 public:
  explicit ReportView(MainControls& controls) : controls_(controls) {}

  /// Rewrites the report and clears the undo history.
  void Build(const Analysis& analysis);

  /// Appends the calculation for a hand as one undo step.
  void AddHand(const Analysis& analysis, std::string_view hand);

  void SetText(std::string_view text) override;
  void SetFontName(std::string_view name) override;
  void SetFontSize(std::int16_t size) override;
  void SetFontColor(std::int32_t color) override;
  void InsertText(std::string_view text) override;
  [[nodiscard]] ReportForm SelectedForm() const override;
  void SetSpecificHandVisible(bool visible) override;

 private:
  [[nodiscard]] RichTextBox& Box() const { return controls_.Get<RichTextBox>("rtfSummary"); }

  MainControls& controls_;
  QTextCharFormat font_;  // of the insertion point
};

}  // namespace quillon
