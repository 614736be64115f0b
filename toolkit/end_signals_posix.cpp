// A signal handler may do almost nothing, so it only writes a byte to a pipe, which the event loop reads.

#include <QSocketNotifier>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

#include "support/run_time_error.h"
#include "toolkit/end_signals.h"

namespace quillon {
namespace {

constexpr std::array kSignals = {SIGHUP, SIGINT, SIGTERM};

// Global, for the handler.
std::atomic<int> wakeUpEnd = -1;

void WakeUp(int /*signal*/) {
  const int error = errno;
  constexpr char kByte = 0;
  // A full pipe wakes the event loop too.
  if (write(wakeUpEnd, &kByte, 1) < 0) errno = error;
}

}  // namespace

class EndSignals::Watch {
 public:
  explicit Watch(std::function<void()> end) {
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
  Q_DISABLE_COPY_MOVE(Watch)
  ~Watch() {
    for (std::size_t i = 0; i < kSignals.size(); ++i)
      sigaction(kSignals.at(i), &before_.at(i), nullptr);
    for (const int descriptor : pipe_)
      close(descriptor);
  }

 private:
  std::array<struct sigaction, kSignals.size()> before_{};
  std::array<int, 2> pipe_{-1, -1};
  std::unique_ptr<QSocketNotifier> notifier_;
};

EndSignals::EndSignals(std::function<void()> end) : watch_(std::make_unique<Watch>(std::move(end))) {}

EndSignals::~EndSignals() = default;

}  // namespace quillon
