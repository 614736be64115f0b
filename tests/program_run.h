#pragma once

// Starts a real program in a process of its own, waits for its end, and keeps its output. Each standard stream can be
// captured, connected to a terminal or to a full disk, or missing. On Windows streams are captured or missing, and no
// program can be suspended.

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

  /// Added to the test's own environment, from which COLORTERM, NO_COLOR and TERM are removed.
  std::map<std::string, std::string> Environment;

  StreamEnd Output = StreamEnd::kKept;
  StreamEnd Errors = StreamEnd::kKept;
  bool InputClosed = false;  // otherwise standard input is open and empty
};

struct ProgramOutcome {
  int Status = -1;  // the exit status; 128 plus the signal's number if a signal ended the program
  std::string Output;
  std::string Errors;
  std::string Terminal;  // what either stream wrote to the terminal, in order
};

/// Runs the program to its end. std::system_error if it cannot be started. Not for endless output, since everything is
/// kept.
[[nodiscard]] ProgramOutcome RunProgram(const ProgramRun& run);

/// A program running next to the test, killed with this object. Its streams are not terminals.
class RunningProgram {
 public:
  /// std::system_error if it cannot be started.
  explicit RunningProgram(const ProgramRun& run);
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram(RunningProgram&&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;
  RunningProgram& operator=(RunningProgram&&) = delete;
  ~RunningProgram();

  /// Its process number, for signals.
  [[nodiscard]] int Id() const;

  /// Its output so far.
  [[nodiscard]] std::string Output() const;
  [[nodiscard]] std::string Errors() const;

  /// As ProgramOutcome::Status; nothing while it runs.
  [[nodiscard]] std::optional<int> Status();

  /// Suspends it, and resumes it. Signals and events sent meanwhile reach it then. HoldUp returns once it is suspended.
  void HoldUp();
  void LetGoOn();

 private:
  struct Streams;

  std::unique_ptr<Streams> streams_;
  std::intptr_t process_ = 0;
  std::optional<int> status_;
};

}  // namespace quillon
