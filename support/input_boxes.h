#pragma once

// How the logic asks the user for a line of text: one box at a time, with a prompt, a title and an initial text. The
// window shows it, a test answers it.

#include <string>
#include <string_view>

namespace quillon {

class InputBoxes {
 public:
  virtual ~InputBoxes() = default;

  /// Shows a box with `defaultText` in its line, all selected, waits for the user, and returns the line. A box that is
  /// cancelled or closed returns the empty text, like one whose line was cleared; the two cannot be told apart.
  virtual std::string Ask(std::string_view prompt, std::string_view title, std::string_view defaultText) = 0;
};

}  // namespace quillon
