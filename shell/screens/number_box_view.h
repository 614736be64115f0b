#pragma once

// The amount boxes with their borders, and the two labels that follow the last of them ("shell/number_boxes.h"). An
// index is that of a box, 0 to 4.

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

  /// Sets the text of a box, one that was kept. Earlier results go, and the odds follow as they do at a start.
  void Set(std::int16_t index, std::string_view text);

  /// Sets texts that the last run left; an empty one leaves its box as it is.
  void Restore(std::span<const std::string> texts);

 private:
  void Bind(std::int16_t index);
  void Change(std::int16_t index);
  void WorkOut(std::int16_t index);
  void ShowOdds(OpponentOdds (*oddsOf)(const ShoveBoxTexts& boxes));
  [[nodiscard]] TextBox& Box(std::int16_t index) const { return controls_.Get<TextBox>("txtNumber", index); }

  const MainControls& controls_;
  MessageBoxes& messages_;
  std::function<void()> hideResults_;
};

}  // namespace quillon
