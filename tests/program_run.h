#pragma once

// For journeys: starts a real program in a process of its own, waits for its end, and keeps what it said. Each of its
// standard streams can be kept, led to a terminal, to a disk that is full, or not be there at all.

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace quillon {

enum class StreamEnd { kKept, kTerminal, kFullDisk, kClosed };

struct ProgramRun {
  std::filesystem::path Program;
  std::vector<std::string> Arguments;
  std::filesystem::path CurrentFolder = "/";

  /// What is set on top of the test's own environment, from which COLORTERM is taken out.
  std::map<std::string, std::string> Environment;

  StreamEnd Output = StreamEnd::kKept;
  StreamEnd Errors = StreamEnd::kKept;
  bool InputClosed = false;  // otherwise standard input is there and empty
};

struct ProgramOutcome {
  int Status = -1;  // the exit status; 128 and the signal's number where a signal ended the program
  std::string Output;
  std::string Errors;
  std::string Terminal;  // what came to the terminal by either stream, in that order
};

/// Runs the program to its end. std::system_error if it cannot be started. Not for runs that fill a terminal and a
/// kept stream without end: nothing limits what is kept.
[[nodiscard]] ProgramOutcome RunProgram(const ProgramRun& run);

}  // namespace quillon
