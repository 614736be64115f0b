#pragma once

// The results on the main window: the cells of the grid, the texts round it, and the links of the side panel that lead
// to it.

#include "ranges/dialogs/form_card_grid.h"
#include "results/results_window.h"
#include "toolkit/form_builder.h"

namespace quillon {

class ResultsView : public ResultsWindow {
 public:
  ResultsView(FormControls& controls, FormCardGrid& grid) : controls_(controls), grid_(grid) {}

  void SetCellColor(std::int16_t index, Rgb color) override;
  void SetHandInfoText(std::string_view text) override;
  void SetResultsCaption(std::string_view caption) override;
  void SetGridTitle(std::string_view caption) override;
  void SetLegendVisible(bool visible) override;
  [[nodiscard]] std::int16_t NavCount() const override;
  void SetNavColor(std::int16_t index, Rgb color) override;
  void SetNavVisible(std::int16_t index, bool visible) override;
  void SetNoResultsVisible(bool visible) override;
  void SetNoResultsCaption(std::string_view caption) override;

 private:
  FormControls& controls_;
  FormCardGrid& grid_;
};

/// Changes the caption of `lblNoResults`, which is a link for as long as it says that a run goes on.
void ShowNoResultsCaption(FormControls& controls, std::string_view caption);

}  // namespace quillon
