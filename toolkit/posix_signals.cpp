#include "toolkit/posix_signals.h"

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

#include "support/run_time_error.h"

namespace quillon {
namespace {

// A handler knows nothing but what is global.
std::atomic<int> wakeUpEnd = -1;

void WakeUp(int /*signal*/) {
  const int error = errno;
  constexpr char kByte = 0;
  // A full pipe wakes the event loop as well.
  if (write(wakeUpEnd, &kByte, 1) < 0) errno = error;
}

}  // namespace

EndSignals::EndSignals(std::function<void()> end) {
  if (pipe2(pipe_.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
    throw RunTimeError(RunTimeFaultOf(errno), "pipe2");
  }
  wakeUpEnd = pipe_[1];
  notifier_ = std::make_unique<QSocketNotifier>(pipe_[0], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this, end = std::move(end)] {
    std::array<char, 64> bytes{};
    while (read(pipe_[0], bytes.data(), bytes.size()) > 0) {
    }
    end();
  });

  struct sigaction wake {};
  wake.sa_handler = WakeUp;
  wake.sa_flags = SA_RESTART;
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    sigaction(kSignals.at(i), nullptr, &before_.at(i));
    if (before_.at(i).sa_handler != SIG_IGN) sigaction(kSignals.at(i), &wake, nullptr);
  }
}

EndSignals::~EndSignals() {
  for (std::size_t i = 0; i < kSignals.size(); ++i)
    sigaction(kSignals.at(i), &before_.at(i), nullptr);
  for (const int descriptor : pipe_)
    close(descriptor);
}

}  // namespace quillon
