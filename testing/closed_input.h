#pragma once

// Runs without a standard input, as some desktops start programs. The next file opened has the number 0.

#include <unistd.h>

namespace quillon {

class ClosedInput {
 public:
  ClosedInput() : kept_(::dup(STDIN_FILENO)) { ::close(STDIN_FILENO); }
  ClosedInput(const ClosedInput&) = delete;
  ClosedInput(ClosedInput&&) = delete;
  ClosedInput& operator=(const ClosedInput&) = delete;
  ClosedInput& operator=(ClosedInput&&) = delete;
  ~ClosedInput() {
    if (kept_ < 0) return;
    ::dup2(kept_, STDIN_FILENO);
    ::close(kept_);
  }

 private:
  int kept_;
};

}  // namespace quillon
