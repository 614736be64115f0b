#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <utility>
#include <vector>
#include <windows.h>

#include "support/text_windows.h"
#include "support/this_process.h"

namespace quillon {
namespace {

HANDLE HandleOf(int file) {
  return reinterpret_cast<HANDLE>(_get_osfhandle(file));  // NOLINT: that is what the number is
}

// Makes a stream use an open file. A closed stream's number is free, so the file has it already, but a stream missing
// from the start keeps its number.
void UseFile(int stream, int file) {
  if (file < 0 || file == stream) return;
  static_cast<void>(_dup2(file, stream));
  _close(file);
}

// The console outlives the program, so the old code page is restored for other programs, after Ctrl+C too, which skips
// what is left for the exit.
void ShowUtf8OnConsole() {
  static const UINT before = GetConsoleOutputCP();
  if (before == 0 || before == CP_UTF8 || SetConsoleOutputCP(CP_UTF8) == 0) return;
  static_cast<void>(std::atexit([] { SetConsoleOutputCP(before); }));
  SetConsoleCtrlHandler(
      [](DWORD /*event*/) -> BOOL {
        SetConsoleOutputCP(before);
        return FALSE;  // the next handler ends the program
      },
      TRUE);
}

}  // namespace

std::filesystem::path ExecutableFolder() {
  constexpr std::size_t kLongest = 1U << 16U;
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD size = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (size == 0 || path.size() > kLongest)
      throw std::filesystem::filesystem_error(
          "the program's folder", std::error_code(static_cast<int>(GetLastError()), std::system_category()));
    if (size < path.size()) return std::filesystem::path(path.substr(0, size)).parent_path();
    path.resize(path.size() * 2);
  }
}

unsigned ProcessNumber() {
  return GetCurrentProcessId();
}

// Of the thread rather than the process: on a machine with more than 64 cores, whose cores are in groups, a process in
// several groups has no mask.
unsigned UsableCores() {
  GROUP_AFFINITY mine{};
  if (GetThreadGroupAffinity(GetCurrentThread(), &mine) == 0) return 1;
  return std::max(1U, static_cast<unsigned>(std::popcount(mine.Mask)));
}

std::string ProcessVariable(const char* name) {
  const wchar_t* const value = _wgetenv(WideText(name).c_str());
  return value == nullptr ? "" : NarrowText(value);
}

// The C library takes "NUL" for a terminal too.
bool IsTerminal(int file) {
  DWORD mode = 0;
  return GetConsoleMode(HandleOf(file), &mode) != 0 && (mode & ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

// A console that knows control sequences knows these colours.
bool TerminalsHaveColors() {
  return true;
}

std::vector<std::string> ProcessArguments(int /*count*/, char** /*arguments*/) {
  int count = 0;
  // The arguments of `main` are in the system's code page, which lacks most characters.
  wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; wide != nullptr && i < count; ++i)
    arguments.push_back(NarrowText(wide[i]));
  LocalFree(wide);
  return arguments;
}

void PrepareStandardStreams() {
  constexpr std::array<std::pair<int, int>, 3> kUseless = {
      {{kInputStream, _O_WRONLY}, {kOutputStream, _O_RDONLY}, {kErrorStream, _O_RDONLY}}};
  for (const auto& [stream, direction] : kUseless) {
    if (_get_osfhandle(stream) < 0) UseFile(stream, _open("NUL", direction | _O_NOINHERIT));
    _setmode(stream, _O_BINARY);
    DWORD mode = 0;
    const HANDLE console = HandleOf(stream);
    if (stream != kInputStream && GetConsoleMode(console, &mode) != 0)
      SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
  }
  // With a small buffer the library writes to a console byte by byte, which splits multi-byte characters.
  constexpr std::size_t kRoom = 1U << 16U;
  for (std::FILE* const stream : {stdout, stderr})
    static_cast<void>(std::setvbuf(stream, nullptr, _IOFBF, kRoom));
  ShowUtf8OnConsole();
}

}  // namespace quillon
