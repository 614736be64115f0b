#pragma once

// For tests: message boxes that nobody has to click, and that keep what they showed.

#include <vector>

#include "support/message_boxes.h"

namespace quillon {

class RecordedMessages : public MessageBoxes {
 public:
  MessageAnswer Show(const Message& message) override {
    Shown.push_back(message);
    return MessageAnswer::kOk;
  }

  std::vector<Message> Shown;
};

}  // namespace quillon
