#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <fcntl.h>
#include <optional>
#include <pty.h>
#include <spawn.h>
#include <string_view>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <system_error>
#include <termios.h>
#include <unistd.h>
#include <utility>

#include "tests/program_run.h"

namespace quillon {
namespace {

void Demand(bool success, const char* call, int error = errno) {
  if (!success) throw std::system_error(error, std::generic_category(), call);
}

// An open file, closed with the object.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) { Demand(number >= 0, "open"); }
  Descriptor(const Descriptor&) = delete;
  Descriptor(Descriptor&&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor() { Close(); }

  [[nodiscard]] int Number() const { return number_; }
  void Close() {
    if (number_ >= 0) close(number_);
    number_ = -1;
  }

 private:
  int number_;
};

// A pseudo terminal that passes bytes unchanged: no carriage returns are added to line feeds.
class PseudoTerminal {
 public:
  PseudoTerminal() : PseudoTerminal(Open()) {}

  [[nodiscard]] int ProgramSide() const { return programSide_.Number(); }

  /// Everything that arrives until no process has the program's side open any more.
  [[nodiscard]] std::string ReadToEnd() {
    programSide_.Close();
    std::string text;
    std::array<char, 4096> buffer{};
    // The end is reported as a failure (EIO), not as an end of file.
    for (ssize_t size = 0; (size = read(ownSide_.Number(), buffer.data(), buffer.size())) > 0;)
      text.append(buffer.data(), static_cast<std::size_t>(size));
    return text;
  }

 private:
  explicit PseudoTerminal(std::pair<int, int> sides) : ownSide_(sides.first), programSide_(sides.second) {}

  static std::pair<int, int> Open() {
    termios settings{};
    cfmakeraw(&settings);
    std::pair<int, int> sides;
    Demand(openpty(&sides.first, &sides.second, nullptr, &settings, nullptr) == 0, "openpty");
    // A copy of either side in the program would keep the terminal open for good.
    for (const int side : {sides.first, sides.second})
      Demand(fcntl(side, F_SETFD, FD_CLOEXEC) == 0, "fcntl");  // NOLINT(*-vararg): so the call is declared
    return sides;
  }

  Descriptor ownSide_;
  Descriptor programSide_;
};

// A memory file that captures a stream.
class KeptText {
 public:
  KeptText() : file_(memfd_create("kept", MFD_CLOEXEC)) {}

  [[nodiscard]] int Number() const { return file_.Number(); }
  [[nodiscard]] std::string Text() const {
    struct stat state {};
    Demand(fstat(file_.Number(), &state) == 0, "fstat");
    std::string text(static_cast<std::size_t>(state.st_size), '\0');
    Demand(pread(file_.Number(), text.data(), text.size(), 0) == static_cast<ssize_t>(text.size()), "pread");
    return text;
  }

 private:
  Descriptor file_;
};

// What happens in the new process before its program starts.
class Preparation {
 public:
  Preparation() {
    Demand(posix_spawn_file_actions_init(&actions_) == 0, "posix_spawn_file_actions_init");
    Demand(posix_spawnattr_init(&attributes_) == 0, "posix_spawnattr_init");
    // Tests may run in the background, where Ctrl+C is ignored; the program starts as in the foreground.
    sigset_t interrupt;
    sigemptyset(&interrupt);
    sigaddset(&interrupt, SIGINT);
    posix_spawnattr_setsigdefault(&attributes_, &interrupt);
    posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGDEF);
  }
  Preparation(const Preparation&) = delete;
  Preparation(Preparation&&) = delete;
  Preparation& operator=(const Preparation&) = delete;
  Preparation& operator=(Preparation&&) = delete;
  ~Preparation() {
    posix_spawnattr_destroy(&attributes_);
    posix_spawn_file_actions_destroy(&actions_);
  }

  [[nodiscard]] const posix_spawn_file_actions_t& Actions() const { return actions_; }
  [[nodiscard]] const posix_spawnattr_t& Attributes() const { return attributes_; }

  void EnterFolder(const std::filesystem::path& folder) {
    Check(posix_spawn_file_actions_addchdir_np(&actions_, folder.c_str()));
  }
  void Open(int stream, const char* path, int flags) {
    Check(posix_spawn_file_actions_addopen(&actions_, stream, path, flags, 0));
  }
  void Lead(int stream, int target) { Check(posix_spawn_file_actions_adddup2(&actions_, target, stream)); }
  void Close(int stream) { Check(posix_spawn_file_actions_addclose(&actions_, stream)); }

 private:
  static void Check(int error) { Demand(error == 0, "posix_spawn_file_actions", error); }

  posix_spawn_file_actions_t actions_{};
  posix_spawnattr_t attributes_{};
};

void Connect(Preparation& preparation, int stream, StreamEnd end, const KeptText& kept,
             const std::optional<PseudoTerminal>& terminal) {
  switch (end) {
    case StreamEnd::kKept:
      return preparation.Lead(stream, kept.Number());
    case StreamEnd::kTerminal:
      return preparation.Lead(stream, terminal.value().ProgramSide());
    case StreamEnd::kFullDisk:
      return preparation.Open(stream, "/dev/full", O_WRONLY);
    case StreamEnd::kClosed:
      return preparation.Close(stream);
  }
}

std::vector<std::string> EnvironmentOf(const ProgramRun& run) {
  std::map<std::string, std::string> variables;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    const std::string_view text = *entry;
    const std::size_t sign = text.find('=');
    if (sign != std::string_view::npos) variables.emplace(text.substr(0, sign), text.substr(sign + 1));
  }
  for (const char* const name : {"COLORTERM", "NO_COLOR", "TERM"})
    variables.erase(name);
  for (const auto& [name, value] : run.Environment)
    variables[name] = value;

  std::vector<std::string> entries;
  entries.reserve(variables.size());
  for (const auto& [name, value] : variables)
    entries.emplace_back(name).append("=").append(value);
  return entries;
}

// A list of texts as the system calls expect it.
std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (std::string& text : texts)
    pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

pid_t Start(const ProgramRun& run, const Preparation& preparation) {
  std::vector<std::string> arguments = {run.Program.string()};
  arguments.insert(arguments.end(), run.Arguments.begin(), run.Arguments.end());
  std::vector<std::string> environment = EnvironmentOf(run);
  pid_t process = 0;
  const int error = posix_spawn(&process, run.Program.c_str(), &preparation.Actions(), &preparation.Attributes(),
                                Pointers(arguments).data(), Pointers(environment).data());
  Demand(error == 0, run.Program.c_str(), error);
  return process;
}

int ExitStatus(int status) {
  constexpr int kSignalled = 128;
  return WIFEXITED(status) ? WEXITSTATUS(status) : kSignalled + WTERMSIG(status);
}

int WaitForEnd(pid_t process) {
  int status = 0;
  Demand(waitpid(process, &status, 0) == process, "waitpid");
  return ExitStatus(status);
}

void PrepareStreams(Preparation& preparation, const ProgramRun& run, const KeptText& output, const KeptText& errors,
                    const std::optional<PseudoTerminal>& terminal) {
  preparation.EnterFolder(run.CurrentFolder);
  if (run.InputClosed) {
    preparation.Close(STDIN_FILENO);
  } else {
    preparation.Open(STDIN_FILENO, "/dev/null", O_RDONLY);
  }
  Connect(preparation, STDOUT_FILENO, run.Output, output, terminal);
  Connect(preparation, STDERR_FILENO, run.Errors, errors, terminal);
}

}  // namespace

ProgramOutcome RunProgram(const ProgramRun& run) {
  const KeptText output;
  const KeptText errors;
  std::optional<PseudoTerminal> terminal;
  if (run.Output == StreamEnd::kTerminal || run.Errors == StreamEnd::kTerminal) terminal.emplace();

  Preparation preparation;
  PrepareStreams(preparation, run, output, errors, terminal);

  ProgramOutcome outcome;
  const pid_t process = Start(run, preparation);
  // Read during the run: a terminal that nobody reads blocks the program.
  if (terminal) outcome.Terminal = terminal->ReadToEnd();
  outcome.Status = WaitForEnd(process);
  outcome.Output = output.Text();
  outcome.Errors = errors.Text();
  return outcome;
}

struct RunningProgram::Streams {
  KeptText Output;
  KeptText Errors;
};

RunningProgram::RunningProgram(const ProgramRun& run) : streams_(std::make_unique<Streams>()) {
  Preparation preparation;
  PrepareStreams(preparation, run, streams_->Output, streams_->Errors, std::nullopt);
  process_ = Start(run, preparation);
}

RunningProgram::~RunningProgram() {
  if (status_) return;
  kill(Id(), SIGKILL);
  waitpid(Id(), nullptr, 0);
}

int RunningProgram::Id() const {
  return static_cast<int>(process_);
}

std::string RunningProgram::Output() const {
  return streams_->Output.Text();
}

std::string RunningProgram::Errors() const {
  return streams_->Errors.Text();
}

std::optional<int> RunningProgram::Status() {
  if (status_) return status_;
  int status = 0;
  const pid_t ended = waitpid(Id(), &status, WNOHANG);
  Demand(ended >= 0, "waitpid");
  if (ended == process_) status_ = ExitStatus(status);
  return status_;
}

void RunningProgram::HoldUp() {
  if (Status()) return;
  Demand(kill(Id(), SIGSTOP) == 0, "kill");
  int status = 0;
  Demand(waitpid(Id(), &status, WUNTRACED) == process_, "waitpid");
  if (!WIFSTOPPED(status)) status_ = ExitStatus(status);
}

void RunningProgram::LetGoOn() {
  if (status_) return;
  Demand(kill(Id(), SIGCONT) == 0, "kill");
}

}  // namespace quillon
