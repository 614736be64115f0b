#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstddef>
#include <io.h>
#include <span>
#include <string>
#include <windows.h>

#include "support/files.h"
#include "support/text_windows.h"
#include "tools/interrupt.h"

namespace quillon {
namespace {

std::atomic<bool> watching = false;
std::atomic<bool> came = false;
std::atomic<HANDLE> readFrom = nullptr;

constexpr DWORD kPauseMilliseconds = 10;

// Runs on a thread of its own. On a console a pending read ends by itself; others are cancelled here, repeatedly until
// they have returned, since a read may be just about to start.
BOOL WINAPI NoteInterrupt(DWORD event) {
  if (event != CTRL_C_EVENT || !watching || came.exchange(true)) return FALSE;
  for (HANDLE waiting = readFrom; waiting != nullptr; waiting = readFrom) {
    CancelIoEx(waiting, nullptr);
    Sleep(kPauseMilliseconds);
  }
  return TRUE;
}

// Typed input as UTF-8, which a console's bytes cannot express. Ends at Ctrl+Z at the start of a line. Ctrl+C ends a
// read, and another thread learns of it, unless Ctrl+C is ignored: then reading goes on.
std::ptrdiff_t ReadTyped(HANDLE console, std::span<char> buffer) {
  constexpr wchar_t kCtrlZ = 0x1A;
  constexpr int kMostPauses = 50;
  std::wstring typed(buffer.size() / 3, L'\0');  // a UTF-16 unit becomes at most three bytes
  DWORD count = 0;
  for (bool ended = true; ended;) {
    SetLastError(ERROR_SUCCESS);
    const bool read = ReadConsoleW(console, typed.data(), static_cast<DWORD>(typed.size()), &count, nullptr) != 0;
    ended = count == 0 && GetLastError() == ERROR_OPERATION_ABORTED;
    if (!read && !ended) return -EIO;
    for (int pause = 0; ended && !came && pause < kMostPauses; ++pause)
      Sleep(kPauseMilliseconds);
    if (came) return 0;
  }
  if (count == 0 || typed.front() == kCtrlZ) return 0;
  const std::string bytes = NarrowText({typed.data(), count});
  return std::ranges::copy(bytes, buffer.begin()).out - buffer.begin();
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
  DWORD mode = 0;
  const bool isTyped = GetConsoleMode(readFrom, &mode) != 0;
  const std::ptrdiff_t count = came      ? 0
                               : isTyped ? ReadTyped(readFrom, buffer_)
                                         : SystemFileCalls().Read(descriptor_, buffer_);
  readFrom = nullptr;
  if (came || count == 0) return traits_type::eof();
  if (count < 0) FailOnFile(static_cast<int>(-count), name_);
  setg(buffer_.data(), buffer_.data(), buffer_.data() + count);
  return traits_type::to_int_type(buffer_.front());
}

}  // namespace quillon
