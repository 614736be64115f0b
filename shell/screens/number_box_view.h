#pragma once

// The amount boxes with their borders, and the two labels that follow the last of them.

#include "results/results_window.h"
#include "shell/number_boxes.h"
#include "toolkit/form_builder.h"

namespace quillon {

class NumberBoxView : public NumberBoxWindow {
 public:
  NumberBoxView(FormControls& controls, ResultsWindow& results, MessageBoxes& messages)
      : controls_(controls), results_(results), messages_(messages) {}

  [[nodiscard]] std::string BoxText(std::int16_t index) const override;
  void SetBoxText(std::int16_t index, std::string_view text) override;
  void MoveCaretToEnd(std::int16_t index) override;
  void SetBoxBorderWidth(std::int16_t index, int width) override;
  void SetResultsShown(bool shown) override;
  void ShowOpponentOdds(const OpponentOdds& texts) override;
  [[nodiscard]] MessageBoxes& Messages() override { return messages_; }

 private:
  FormControls& controls_;
  ResultsWindow& results_;
  MessageBoxes& messages_;
};

/// The text of `txtNumber(index)`.
[[nodiscard]] std::string NumberBoxText(const FormControls& controls, std::int16_t index);

/// Sets it, which counts as the user's typing where it is another text.
void SetNumberBoxText(FormControls& controls, std::int16_t index, std::string_view text);

}  // namespace quillon
