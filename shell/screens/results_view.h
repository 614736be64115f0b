#pragma once

// The results in the main window: the cells of the grid, the texts around it, and the side panel's links to it
// ("results/results_grid.h").

#include <string_view>

#include "results/results_grid.h"
#include "shell/screens/main_layout.h"
#include "toolkit/form_card_grid.h"

namespace quillon {

class ResultsView {
 public:
  ResultsView(const MainControls& controls, FormCardGrid& grid) : controls_(controls), grid_(grid) {}

  /// Paints the cells in index order, describes each, then shows the texts. Fails as MakeGridTexts does.
  void Present(const Analysis& analysis);

  /// Shows or hides the links to results, in their own colour; the note that there are none is the alternative.
  void SetResultsShown(bool shown);

  /// Sets the caption of `lblNoResults`, which is a link while it says that a run is going on.
  void ShowNoResultsCaption(std::string_view caption);

 private:
  const MainControls& controls_;
  FormCardGrid& grid_;
};

}  // namespace quillon
