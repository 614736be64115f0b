#pragma once

// The main window as an analysis sees it.

#include <functional>
#include <utility>

#include "analysis/analysis_state.h"
#include "analysis/analysis_window.h"
#include "ranges/dialogs/range_choosers.h"
#include "shell/screens/main_layout.h"
#include "shell/screens/navigation_view.h"
#include "shell/screens/number_box_view.h"
#include "shell/screens/results_view.h"
#include "toolkit/application.h"
#include "toolkit/form_card_grid.h"

namespace quillon {

class AnalysisView : public AnalysisWindow {
 public:
  struct Parts {
    MainControls& Controls;
    const NumberBoxView& Amounts;
    const RangeChoosers& Choosers;
    FormCardGrid& Grid;
    NavigationView& Screens;
    std::function<void(std::int16_t link)> ClickNav;
    ResultsView& Results;
    std::function<void(const Analysis& analysis)> Finished;
    MessageBoxes& Boxes;
    NumberMarks Marks;
  };

  explicit AnalysisView(Parts parts) : parts_(std::move(parts)) {}

  /// Stops a run, if there is one. The next screen takes the focus for the key that stops, not for the one that
  /// started.
  void Stop(AnalysisState& state);

  [[nodiscard]] std::string BoxText(std::int16_t index) const override;
  [[nodiscard]] std::string SelectedRange(std::int16_t index) const override;
  [[nodiscard]] NumberMarks Marks() const override { return parts_.Marks; }
  [[nodiscard]] MessageBoxes& Messages() override { return parts_.Boxes; }
  void ShowFrame(std::string_view name) override;
  void SetResultsShown(bool shown) override;
  void SetNoResultsCaption(std::string_view caption) override;
  void SetNoResultsUnderline(bool underline) override;
  void SetProgressMessage(std::string_view caption) override;
  void SetProgressPercent(std::string_view caption) override;
  void SetProgressBarWidth(float twips) override;
  void RaiseCell(std::int16_t index) override;
  void HideGridBack() override;
  void Yield() override;
  void PresentResults(const Analysis& analysis) override;
  void ShowGrid(const Analysis& analysis) override;

 private:
  Parts parts_;
  UserAct stop_;
  bool isStopping_ = false;  // until the stop has been handled
};

}  // namespace quillon
