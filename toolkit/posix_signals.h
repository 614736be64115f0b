#pragma once

// The signals by which a terminal, a logout or a user asks a process to end: SIGHUP, SIGINT and SIGTERM. A handler of a
// signal may do next to nothing, so it only writes a byte into a pipe, and the event loop reads it there.

#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <functional>
#include <memory>

namespace quillon {

class EndSignals {
 public:
  /// From now on each of these signals has `end` called from the event loop. One that the process was started to
  /// ignore, as by nohup, stays ignored. There may be one such object at a time.
  explicit EndSignals(std::function<void()> end);
  EndSignals(const EndSignals&) = delete;
  EndSignals(EndSignals&&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;
  EndSignals& operator=(EndSignals&&) = delete;
  /// The signals do again what they did before.
  ~EndSignals();

 private:
  static constexpr std::array kSignals = {SIGHUP, SIGINT, SIGTERM};

  std::array<struct sigaction, kSignals.size()> before_{};
  std::array<int, 2> pipe_{-1, -1};
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace quillon
