#pragma once

// How a terminal, a logout or a user asks the window's process to end: by a signal (SIGHUP, SIGINT, SIGTERM), or on
// Windows by a message at the end of the session.

#include <functional>
#include <memory>

namespace quillon {

class EndSignals {
 public:
  /// From now on `end` is called when the process is asked to end: from the event loop, and on Windows before the
  /// answer to the system, which ends the process then. A signal that the process was started to ignore, as by nohup,
  /// stays ignored. There may be one such object at a time.
  explicit EndSignals(std::function<void()> end);
  EndSignals(const EndSignals&) = delete;
  EndSignals(EndSignals&&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;
  EndSignals& operator=(EndSignals&&) = delete;
  /// The signals do again what they did before.
  ~EndSignals();

 private:
  class Watch;
  std::unique_ptr<Watch> watch_;
};

}  // namespace quillon
