#include <atomic>
#include <cerrno>
#include <io.h>
#include <windows.h>

#include "support/files.h"
#include "tools/interrupt.h"

namespace quillon {
namespace {

std::atomic<bool> watching = false;
std::atomic<bool> came = false;
std::atomic<HANDLE> readFrom = nullptr;

// Runs on a thread of its own. A read that waits ends by itself where it is of a console, and here where it is not: it
// may be just about to wait, so it is ended again and again until it has returned.
BOOL WINAPI NoteInterrupt(DWORD event) {
  constexpr DWORD kPauseMilliseconds = 10;
  if (event != CTRL_C_EVENT || !watching || came.exchange(true)) return FALSE;
  for (HANDLE waiting = readFrom; waiting != nullptr; waiting = readFrom) {
    CancelIoEx(waiting, nullptr);
    Sleep(kPauseMilliseconds);
  }
  return TRUE;
}

}  // namespace

InterruptWatch::InterruptWatch() {
  came = false;
  watching = true;
  SetConsoleCtrlHandler(NoteInterrupt, TRUE);
}

InterruptWatch::~InterruptWatch() {
  watching = false;
  SetConsoleCtrlHandler(NoteInterrupt, FALSE);
}

bool InterruptWatch::Came() {
  return came;
}

DescriptorInput::int_type DescriptorInput::underflow() {
  // NOLINTNEXTLINE: that is what the number is
  readFrom = reinterpret_cast<HANDLE>(_get_osfhandle(descriptor_));
  const std::ptrdiff_t count = came ? 0 : SystemFileCalls().Read(descriptor_, buffer_);
  readFrom = nullptr;
  if (came || count == 0) return traits_type::eof();
  if (count < 0) FailOnFile(static_cast<int>(-count), name_);
  setg(buffer_.data(), buffer_.data(), buffer_.data() + count);
  return traits_type::to_int_type(buffer_.front());
}

}  // namespace quillon
