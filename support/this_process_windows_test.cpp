#include <bit>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <io.h>
#include <string>
#include <windows.h>

#include "support/text_windows.h"
#include "support/this_process.h"

namespace quillon {
namespace {

TEST(UsableCores, AreThoseThatTheProcessMayUse) {
  DWORD_PTR mine = 0;
  DWORD_PTR all = 0;
  ASSERT_NE(GetProcessAffinityMask(GetCurrentProcess(), &mine, &all), 0);
  EXPECT_EQ(UsableCores(), static_cast<unsigned>(std::popcount(mine)));
  ASSERT_NE(SetProcessAffinityMask(GetCurrentProcess(), mine & (~mine + 1)), 0);
  EXPECT_EQ(UsableCores(), 1U);
  ASSERT_NE(SetProcessAffinityMask(GetCurrentProcess(), mine), 0);
  ASSERT_NE(SetThreadAffinityMask(GetCurrentThread(), mine & (~mine + 1)), 0U);
  EXPECT_EQ(UsableCores(), 1U) << "for a thread restricted to one";
  ASSERT_NE(SetThreadAffinityMask(GetCurrentThread(), mine), 0U);
}

TEST(ProcessVariable, IsUtf8) {
  ASSERT_NE(_wputenv(L"QUILLON_TEST=Gr\u00FC\u00DFe \u6F22"), -1);
  EXPECT_EQ(ProcessVariable("QUILLON_TEST"), "Grüße 漢");
  EXPECT_EQ(ProcessVariable("QUILLON_NO_SUCH"), "");
}

// Runs the current test again in a process of its own. True in that process; false in this one, after that one has
// ended.
bool IsInItsOwnProcess(DWORD kind, bool hasStreams) {
  constexpr const wchar_t* kMark = L"QUILLON_TEST_PROCESS";
  if (_wgetenv(kMark) != nullptr) return true;
  const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
  std::wstring program(1U << 15U, L'\0');
  program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
  std::wstring line = L"\"" + program + L"\" --gtest_brief=1 --gtest_filter=" +
                      WideText(std::string(test.test_suite_name()) + "." + test.name());
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  if (hasStreams) start.hStdOutput = start.hStdError = GetStdHandle(STD_OUTPUT_HANDLE);
  SetEnvironmentVariableW(kMark, L"1");
  PROCESS_INFORMATION process{};
  const bool started = CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, kind, nullptr, nullptr,
                                      &start, &process) != 0;
  SetEnvironmentVariableW(kMark, nullptr);
  EXPECT_TRUE(started);
  if (!started) return false;
  DWORD status = STILL_ACTIVE;
  EXPECT_EQ(WaitForSingleObject(process.hProcess, 20000), WAIT_OBJECT_0);
  EXPECT_NE(GetExitCodeProcess(process.hProcess, &status), 0);
  EXPECT_EQ(status, 0U) << "failed tests of that process";
  TerminateProcess(process.hProcess, 1);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return false;
}

TEST(StandardStreams, ThatAreMissingGetAFileThatIsOfNoUse) {
  if (!IsInItsOwnProcess(DETACHED_PROCESS, false)) return;
  PrepareStandardStreams();
  char byte = 'x';
  for (const int stream : {kInputStream, kOutputStream, kErrorStream}) {
    EXPECT_GE(_get_osfhandle(stream), 0) << stream;
    EXPECT_EQ(stream == kInputStream ? _read(stream, &byte, 1) : _write(stream, &byte, 1), -1) << stream;
  }
  const int next = _open("NUL", _O_RDONLY);
  EXPECT_EQ(next, kErrorStream + 1) << "no other file is left open";
  _close(next);
}

TEST(Console, HasItsCodePageAgainAfterCtrlC) {
  if (!IsInItsOwnProcess(CREATE_NO_WINDOW, true)) return;
  constexpr UINT kBefore = 850;
  ASSERT_NE(SetConsoleOutputCP(kBefore), 0);
  // Called last, and keeps the process running.
  SetConsoleCtrlHandler([](DWORD /*event*/) -> BOOL { return TRUE; }, TRUE);
  PrepareStandardStreams();
  EXPECT_EQ(GetConsoleOutputCP(), CP_UTF8);
  ASSERT_NE(GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0), 0);
  for (int attempt = 0; attempt < 500 && GetConsoleOutputCP() != kBefore; ++attempt)
    Sleep(10);
  EXPECT_EQ(GetConsoleOutputCP(), kBefore);
}

}  // namespace
}  // namespace quillon
