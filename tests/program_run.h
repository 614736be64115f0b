#pragma once

// For journeys: starts a real program in a process of its own, waits for its end, and keeps what it said. Each of its
// standard streams can be kept, led to a terminal, to a disk that is full, or not be there at all. On Windows streams
// are kept or not there, and no program is held up.

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

enum class StreamEnd { kKept, kTerminal, kFullDisk, kClosed };

struct ProgramRun {
  std::filesystem::path Program;
  std::vector<std::string> Arguments;
  std::filesystem::path CurrentFolder = "/";

  /// What is set on top of the test's own environment, from which COLORTERM, NO_COLOR and TERM are taken out.
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

/// Runs the program to its end. std::system_error if it cannot be started. Not for endless output:
/// nothing limits what is kept.
[[nodiscard]] ProgramOutcome RunProgram(const ProgramRun& run);

/// A program that runs beside the test, and is killed with this object if it still does. Its streams are not terminals.
class RunningProgram {
 public:
  /// std::system_error if it cannot be started.
  explicit RunningProgram(const ProgramRun& run);
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram(RunningProgram&&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;
  RunningProgram& operator=(RunningProgram&&) = delete;
  ~RunningProgram();

  /// Its number, for signals.
  [[nodiscard]] int Id() const;

  /// What it has said so far.
  [[nodiscard]] std::string Output() const;
  [[nodiscard]] std::string Errors() const;

  /// As ProgramOutcome::Status, nothing while it runs.
  [[nodiscard]] std::optional<int> Status();

  /// Stops it, and lets it continue. What it is sent meanwhile reaches it then. It is stopped when the first of them
  /// returns.
  void HoldUp();
  void LetGoOn();

 private:
  struct Streams;

  std::unique_ptr<Streams> streams_;
  std::intptr_t process_ = 0;
  std::optional<int> status_;
};

}  // namespace quillon
