#pragma once

// Message boxes that answer themselves, and record what they showed.

#include <deque>
#include <vector>

#include "support/message_boxes.h"

namespace quillon {

class RecordedMessages : public MessageBoxes {
 public:
  MessageAnswer Show(const Message& message) override {
    Shown.push_back(message);
    if (Answers.empty()) return MessageAnswer::kOk;
    const MessageAnswer answer = Answers.front();
    Answers.pop_front();
    return answer;
  }

  std::vector<Message> Shown;
  std::deque<MessageAnswer> Answers;  // to the next boxes, in order; kOk for further ones
};

}  // namespace quillon
