#pragma once

// Input boxes that answer themselves, and record their questions.

#include <deque>
#include <ostream>
#include <string>
#include <vector>

#include "support/line_question.h"

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

class RecordedInput {
 public:
  std::string operator()(const LineQuestion& question) {
    Asked.push_back({std::string(question.Prompt), std::string(question.Title), std::string(question.Proposal)});
    if (Answers.empty()) return {};
    std::string answer = Answers.front();
    Answers.pop_front();
    return answer;
  }

  std::vector<InputQuestion> Asked;
  std::deque<std::string> Answers;  // to the next boxes, in order; further ones are cancelled
};

}  // namespace quillon
