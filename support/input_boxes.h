#pragma once

// How the logic asks the user for a line of text: one box at a time, with a prompt, a title and a text to start from.
// The window shows it, a test answers it.

#include <string>
#include <string_view>

namespace quillon {

class InputBoxes {
 public:
  virtual ~InputBoxes() = default;

  /// Shows one box with `defaultText` in its line, all of it selected, waits for the user, and returns what the line
  /// holds. A box that is cancelled or closed gives the empty text, as one does whose line was emptied: nobody can tell
  /// the two apart.
  virtual std::string Ask(std::string_view prompt, std::string_view title, std::string_view defaultText) = 0;
};

}  // namespace quillon
