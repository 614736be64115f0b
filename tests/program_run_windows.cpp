#include <system_error>
#include <windows.h>

#include "support/files.h"
#include "support/text_windows.h"
#include "testing/temporary_folder.h"
#include "tests/program_run.h"

namespace quillon {
namespace {

void Demand(bool success, const char* call) {
  if (!success) throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), call);
}

// An argument in quotes, as programs parse their command line: a quote in it, and the backslashes before one, are each
// escaped by a backslash.
std::wstring InQuotes(const std::wstring& argument) {
  std::wstring text = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t c : argument) {
    if (c == L'"') text.append(backslashes + 1, L'\\');
    backslashes = c == L'\\' ? backslashes + 1 : 0;
    text += c;
  }
  return text.append(backslashes, L'\\') + L'"';
}

// A file that captures a stream.
HANDLE OpenKept(const std::filesystem::path& path) {
  SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, &inherited,
                                  CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  Demand(file != INVALID_HANDLE_VALUE, "CreateFileW");
  return file;
}

HANDLE HandleOf(std::intptr_t process) {
  return reinterpret_cast<HANDLE>(process);  // NOLINT: that is what the number is
}

}  // namespace

struct RunningProgram::Streams {
  TemporaryFolder Folder;
  std::filesystem::path Output = Folder.Path() / "output";
  std::filesystem::path Errors = Folder.Path() / "errors";
};

RunningProgram::RunningProgram(const ProgramRun& run) : streams_(std::make_unique<Streams>()) {
  std::wstring line = InQuotes(run.Program.native());
  for (const std::string& argument : run.Arguments)
    line += L" " + InQuotes(WideText(argument));
  for (const auto& [name, value] : run.Environment)
    SetEnvironmentVariableW(WideText(name).c_str(), WideText(value).c_str());

  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  const HANDLE output = OpenKept(streams_->Output);
  const HANDLE errors = OpenKept(streams_->Errors);
  start.hStdOutput = run.Output == StreamEnd::kKept ? output : nullptr;
  start.hStdError = run.Errors == StreamEnd::kKept ? errors : nullptr;
  PROCESS_INFORMATION process{};
  const bool started = CreateProcessW(run.Program.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                      run.CurrentFolder.c_str(), &start, &process) != 0;
  CloseHandle(output);
  CloseHandle(errors);
  for (const auto& [name, value] : run.Environment)
    SetEnvironmentVariableW(WideText(name).c_str(), nullptr);
  Demand(started, "CreateProcessW");
  CloseHandle(process.hThread);
  process_ = reinterpret_cast<std::intptr_t>(process.hProcess);  // NOLINT: HandleOf takes it back
}

RunningProgram::~RunningProgram() {
  TerminateProcess(HandleOf(process_), 1);
  WaitForSingleObject(HandleOf(process_), INFINITE);
  CloseHandle(HandleOf(process_));
}

int RunningProgram::Id() const {
  return static_cast<int>(GetProcessId(HandleOf(process_)));
}

std::string RunningProgram::Output() const {
  return ReadAllBytes(streams_->Output);
}

std::string RunningProgram::Errors() const {
  return ReadAllBytes(streams_->Errors);
}

std::optional<int> RunningProgram::Status() {
  DWORD status = 0;
  if (!status_ && WaitForSingleObject(HandleOf(process_), 0) == WAIT_OBJECT_0) {
    Demand(GetExitCodeProcess(HandleOf(process_), &status) != 0, "GetExitCodeProcess");
    status_ = static_cast<int>(status);
  }
  return status_;
}

}  // namespace quillon
