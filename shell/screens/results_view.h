#pragma once

// The results on the main window: the cells of the grid, the texts round it, and the links of the side panel that lead
// to it ("results/results_grid.h").

#include <string_view>

#include "results/results_grid.h"
#include "shell/screens/main_layout.h"
#include "toolkit/form_card_grid.h"

namespace quillon {

class ResultsView {
 public:
  ResultsView(const MainControls& controls, FormCardGrid& grid) : controls_(controls), grid_(grid) {}

  /// Paints the cells in index order and describes each as the hover panel does, then shows the texts. Fails as
  /// MakeGridTexts does.
  void Present(const Analysis& analysis);

  /// Shows or hides the links that lead to results; the note that there are none shows when they do not. The links take
  /// their own colour again.
  void SetResultsShown(bool shown);

  /// Changes the caption of `lblNoResults`, which is a link for as long as it says that a run goes on.
  void ShowNoResultsCaption(std::string_view caption);

 private:
  const MainControls& controls_;
  FormCardGrid& grid_;
};

}  // namespace quillon
