// quillon-cli: the command-line companion's outermost frame.

#include <array>
#include <chrono>
#include <exception>
#include <fcntl.h>
#include <iostream>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

#include "shell/program_folder.h"
#include "support/environment.h"
#include "support/files.h"
#include "support/folders.h"
#include "support/run_time_error.h"
#include "tools/companion.h"
#include "tools/interrupt.h"
#include "tools/terminal.h"

namespace {

// Whatever is opened next takes the number of a standard stream that is closed, and would be read or written as if it
// were the stream. What is put there instead can only be opened: reading or writing it fails, as it does when closed.
void OccupyClosedStreams() {
  constexpr std::array<std::pair<int, int>, 3> kStreams = {
      {{STDIN_FILENO, O_WRONLY}, {STDOUT_FILENO, O_RDONLY}, {STDERR_FILENO, O_RDONLY}}};
  quillon::FileCalls& calls = quillon::SystemFileCalls();
  for (const auto& [descriptor, direction] : kStreams) {
    if (calls.Mode(descriptor) < 0) calls.Open("/dev/null", direction | O_CLOEXEC, 0);
  }
}

int Run(const std::vector<std::string>& arguments) {
  OccupyClosedStreams();
  quillon::DescriptorInput standardInput(STDIN_FILENO, "standard input");
  std::istream input(&standardInput);
  const quillon::Surroundings surroundings{
      std::cout,
      std::cerr,
      [] { return quillon::ProgramFolderPath(quillon::ExecutableFolder(), quillon::ProcessVariable); },
      quillon::TerminalOf(isatty(STDOUT_FILENO) != 0, isatty(STDERR_FILENO) != 0, quillon::ProcessVariable),
      std::chrono::steady_clock::now,
      &input};
  const int status = quillon::RunCompanion(arguments, surroundings);
  // An answer that did not get out is no answer.
  if (!std::cout.flush()) throw quillon::RunTimeError(quillon::RunTimeFault::kDeviceError, "standard output");
  return status;
}

}  // namespace

int main(int count, char** arguments) {
  try {
    return Run(std::vector<std::string>(arguments + 1, arguments + count));
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return quillon::kFailed;
  }
}
