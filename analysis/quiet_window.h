#pragma once

// An analysis without a window. The situation is stated as values, and a run goes straight through: nothing is shown,
// nothing is waited for, and only messages find their way out.

#include <cstdint>
#include <string>
#include <string_view>

#include "analysis/analysis_window.h"
#include "analysis/entered_situation.h"
#include "analysis/input_screens.h"

namespace quillon {

/// The window that is none. Whoever wants to see some of a run derives from it and overrides those operations.
class QuietWindow : public AnalysisWindow {
 public:
  /// Messages of the input checks go to `messages`, which must outlive the window.
  QuietWindow(EnteredSituation situation, MessageBoxes& messages);

  /// The situation's amount that belongs into the box; the empty text for a box of no amount.
  [[nodiscard]] std::string BoxText(std::int16_t index) const override;

  /// The situation's range that belongs into the list; the empty text for a list that no scenario has.
  [[nodiscard]] std::string SelectedRange(std::int16_t index) const override;

  [[nodiscard]] MessageBoxes& Messages() override { return messages_; }

  /// The situation, to be changed between runs or, from within Yield, during one.
  [[nodiscard]] EnteredSituation& CurrentSituation() { return situation_; }

  void ShowFrame(std::string_view /*name*/) override {}
  void ClickNav(std::int16_t /*index*/) override {}
  void SetResultsShown(bool /*shown*/) override {}
  void SetNoResultsCaption(std::string_view /*caption*/) override {}
  void SetNoResultsUnderline(bool /*underline*/) override {}
  void SetProgressMessage(std::string_view /*caption*/) override {}
  void SetProgressPercent(std::string_view /*caption*/) override {}
  void SetProgressBarWidth(float /*twips*/) override {}
  void RaiseCell(std::int16_t /*index*/) override {}
  void HideGridBack() override {}
  void Yield() override {}
  void PresentResults(const AnalysisState& /*state*/) override {}

 private:
  EnteredSituation situation_;
  MessageBoxes& messages_;
};

}  // namespace quillon
