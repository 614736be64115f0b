// quillon-cli: the command-line companion's outermost frame.

#include <chrono>
#include <exception>
#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

#include "shell/program_folder.h"
#include "support/environment.h"
#include "support/folders.h"
#include "support/run_time_error.h"
#include "tools/companion.h"
#include "tools/interrupt.h"
#include "tools/terminal.h"

namespace {

int Run(const std::vector<std::string>& arguments) {
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
