// quillon-cli: the command-line companion's outermost frame.

#include <chrono>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "shell/program_folder.h"
#include "support/run_time_error.h"
#include "support/this_process.h"
#include "tools/companion.h"
#include "tools/interrupt.h"
#include "tools/terminal.h"

namespace {

int Run(const std::vector<std::string>& arguments) {
  quillon::PrepareStandardStreams();
  quillon::DescriptorInput standardInput(quillon::kInputStream, "standard input");
  std::istream input(&standardInput);
  const quillon::Surroundings surroundings{
      std::cout,
      std::cerr,
      [] { return quillon::ProgramFolderPath(quillon::ExecutableFolder(), quillon::ProcessVariable); },
      quillon::TerminalOf(quillon::IsTerminal(quillon::kOutputStream), quillon::IsTerminal(quillon::kErrorStream),
                          quillon::TerminalsHaveColors(), quillon::ProcessVariable),
      std::chrono::steady_clock::now,
      &input};
  const int status = quillon::RunCompanion(arguments, surroundings);
  // Output that cannot be written is a failure.
  if (!std::cout.flush()) throw quillon::RunTimeError(quillon::RunTimeFault::kDeviceError, "standard output");
  return status;
}

}  // namespace

int main(int count, char** arguments) {
  try {
    return Run(quillon::ProcessArguments(count, arguments));
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return quillon::kFailed;
  }
}
