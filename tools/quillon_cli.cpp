// quillon-cli: the command-line companion's outermost frame.

#include <chrono>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

#include "support/folders.h"
#include "support/run_time_error.h"
#include "tools/companion.h"
#include "tools/interrupt.h"
#include "tools/terminal.h"

namespace {

std::string Variable(const char* name) {
  const char* const value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): there is one thread
  return value == nullptr ? "" : value;
}

int Run(const std::vector<std::string>& arguments) {
  quillon::DescriptorInput standardInput(STDIN_FILENO, "standard input");
  std::istream input(&standardInput);
  const quillon::Surroundings surroundings{
      std::cout,
      std::cerr,
      quillon::ExecutableFolder(),
      quillon::TerminalOf(isatty(STDOUT_FILENO) != 0, isatty(STDERR_FILENO) != 0, Variable),
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
