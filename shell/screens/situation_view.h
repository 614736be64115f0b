#pragma once

// Ctrl+S and Ctrl+O of the main window: saves an input screen's contents under a name, and restores them
// ("shell/situations.h").

#include <QWidget>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>

#include "analysis/analysis_state.h"
#include "analysis/analysis_window.h"
#include "analysis/input_screens.h"
#include "ranges/dialogs/range_choosers.h"
#include "shell/screens/navigation_view.h"
#include "shell/screens/number_box_view.h"
#include "shell/situations.h"
#include "support/line_question.h"

namespace quillon {

class SituationView {
 public:
  /// What the view works on. All of it outlives the view.
  struct Parts {
    QWidget& Form;
    const AnalysisWindow& Inputs;
    NumberBoxView& Amounts;
    const RangeChoosers& Choosers;
    const NavigationView& Screens;
    std::function<void(std::int16_t link)> ClickNav;
    MessageBoxes& Messages;
    AskLine Ask;
    ProgramFolder Folder;
  };

  explicit SituationView(Parts parts) : parts_(std::move(parts)) {}

  /// Whether an input screen is shown.
  [[nodiscard]] bool CanSave() const { return ShownInputs() != nullptr; }

  /// Saves the entries of the current screen, including a sum that is still being typed. On a screen that is not an
  /// input screen the user is told where to save.
  void Save();

  /// Lets the user choose a situation, shows its screen and fills it in, clearing boxes and lists that it lacks. During
  /// a run, which reads the boxes, the user is told to wait.
  void Open(const AnalysisState& state);

 private:
  [[nodiscard]] const InputScreen* ShownInputs() const;
  void Show(const ScreenSituation& situation);

  Parts parts_;
  std::string lastName_;  // saved or opened
};

}  // namespace quillon
