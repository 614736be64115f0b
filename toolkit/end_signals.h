#pragma once

// How a terminal, a logout or a user asks the window's process to end: by a signal (SIGHUP, SIGINT, SIGTERM), or on
// Windows by a message at the end of the session.

#include <functional>
#include <memory>

namespace quillon {

class EndSignals {
 public:
  /// Calls `end` when the process is asked to end: from the event loop, and on Windows before the system's message is
  /// answered, which ends the process. A signal that was ignored at start, as by nohup, stays ignored. Only one such
  /// object may exist at a time.
  explicit EndSignals(std::function<void()> end);
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;
  /// Restores the signals' old handlers.
  ~EndSignals();

 private:
  class Watch;
  std::unique_ptr<Watch> watch_;
};

}  // namespace quillon
