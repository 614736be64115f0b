#pragma once

// The amount boxes with their borders, and the two labels that depend on the last of them ("shell/number_boxes.h").
// Indexes are those of boxes, 0 to 4.

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "shell/number_boxes.h"
#include "shell/screens/main_layout.h"
#include "support/message_boxes.h"
#include "toolkit/text_box.h"

namespace quillon {

class NumberBoxView {
 public:
  /// `hideResults` hides the links that lead to results.
  NumberBoxView(const MainControls& controls, MessageBoxes& messages, std::function<void()> hideResults);

  /// The text of a box.
  [[nodiscard]] std::string Text(std::int16_t index) const;
  [[nodiscard]] std::vector<std::string> Texts() const;

  /// Sets the text of a box to a saved one. Earlier results are hidden, and the odds are updated as at start.
  void Set(std::int16_t index, std::string_view text);

  /// Sets the texts of the last run; an empty one leaves its box unchanged.
  void Restore(std::span<const std::string> texts);

 private:
  void Bind(std::int16_t index);
  void Change(std::int16_t index, OpponentOdds (*oddsOf)(const ShoveBoxTexts& boxes));
  void WorkOut(std::int16_t index);
  [[nodiscard]] TextBox& Box(std::int16_t index) const { return controls_.Get<TextBox>("txtNumber", index); }

  const MainControls& controls_;
  MessageBoxes& messages_;
  std::function<void()> hideResults_;
};

}  // namespace quillon
