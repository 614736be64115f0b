#pragma once

// How the logic asks the user for a line of text: one box at a time. The window shows it, a test answers it.

#include <functional>
#include <string>
#include <string_view>

namespace quillon {

/// A question for a line of text.
struct LineQuestion {
  std::string_view Prompt;
  std::string_view Title;
  std::string_view Proposal{};  // in the line at first, all selected
};

/// Shows the question's box, waits for the user, and returns the line. A box that is cancelled or closed returns the
/// empty text, like one whose line was cleared; the two cannot be told apart.
using AskLine = std::function<std::string(const LineQuestion&)>;

}  // namespace quillon
