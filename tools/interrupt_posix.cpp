#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/types.h>
#include <unistd.h>

#include "support/files.h"
#include "tools/interrupt.h"

namespace quillon {
namespace {

// Global, for the signal handler. A pipe, since a thread can wait for it and its input together: a flag alone could be
// set between checking and waiting.
std::array<int, 2> wakeUp = {-1, -1};
std::atomic<bool> came = false;
struct sigaction before {};

extern "C" void NoteInterrupt(int /*signal*/) {
  const int error = errno;
  came = true;
  [[maybe_unused]] const ssize_t written = write(wakeUp[1], "", 1);
  errno = error;
}

}  // namespace

InterruptWatch::InterruptWatch() {
  if (pipe2(wakeUp.data(), O_CLOEXEC | O_NONBLOCK) != 0) FailOnFile(errno, "a pipe for Ctrl+C");
  came = false;
  sigaction(SIGINT, nullptr, &before);
  if (before.sa_handler == SIG_IGN) return;
  struct sigaction action {};
  action.sa_handler = NoteInterrupt;
  action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
  sigaction(SIGINT, &action, nullptr);
}

InterruptWatch::~InterruptWatch() {
  sigaction(SIGINT, &before, nullptr);
  for (int& end : wakeUp) {
    close(end);
    end = -1;
  }
}

bool InterruptWatch::Came() {
  return came;
}

DescriptorInput::int_type DescriptorInput::underflow() {
  std::array<pollfd, 2> waited = {{{descriptor_, POLLIN, 0}, {wakeUp[0], POLLIN, 0}}};  // -1 is skipped
  while (poll(waited.data(), waited.size(), -1) < 0) {
    if (errno != EINTR) FailOnFile(errno, name_);
  }
  if (waited[1].revents != 0) return traits_type::eof();
  ssize_t count = 0;
  while ((count = read(descriptor_, buffer_.data(), buffer_.size())) < 0) {
    if (errno != EINTR) FailOnFile(errno, name_);
  }
  if (count == 0) return traits_type::eof();
  setg(buffer_.data(), buffer_.data(), buffer_.data() + count);
  return traits_type::to_int_type(buffer_.front());
}

}  // namespace quillon
