#pragma once

// Input boxes that answer themselves, and record their questions.

#include <deque>
#include <ostream>
#include <string>
#include <vector>

#include "support/input_boxes.h"

namespace quillon {

struct InputQuestion {
  std::string prompt;
  std::string title;
  std::string defaultText;

  bool operator==(const InputQuestion&) const = default;
  friend std::ostream& operator<<(std::ostream& stream, const InputQuestion& question) {
    return stream << question.title << ": " << question.prompt << " [" << question.defaultText << "]";
  }
};

class RecordedInput : public InputBoxes {
 public:
  std::string Ask(std::string_view prompt, std::string_view title, std::string_view defaultText) override {
    Asked.push_back({std::string(prompt), std::string(title), std::string(defaultText)});
    if (Answers.empty()) return {};
    std::string answer = Answers.front();
    Answers.pop_front();
    return answer;
  }

  std::vector<InputQuestion> Asked;
  std::deque<std::string> Answers;  // to the next boxes, in order; further ones are cancelled
};

}  // namespace quillon
