#pragma once

// The command-line companion: the same analysis as the window's, for scripts and for machines without a display. What
// the window's boxes and lists hold comes from the command line, what its message boxes say goes to standard error, and
// the finished run is printed.

#include <chrono>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <span>
#include <string>

#include "tools/terminal.h"

namespace quillon {

/// The exit statuses of the companion. kFailed is that of a run-time error, which ends the program from its outermost
/// frame, and of a listing that had to leave a file out.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kWrongUsage = 2;
inline constexpr int kRefused = 3;
inline constexpr int kInterrupted = 130;  // of a batch that Ctrl+C ended; what shells say of that signal

/// What the companion finds around it.
struct Surroundings {
  std::ostream& Output;
  std::ostream& Errors;
  /// Where "Ranges" is looked for unless --folder names another folder. Asked only where a range is named or saved, so
  /// that whoever types his ranges needs no folder.
  std::function<std::filesystem::path()> ProgramFolder;
  quillon::Terminal Terminal{};
  std::function<std::chrono::steady_clock::time_point()> Now = std::chrono::steady_clock::now;
  std::istream* Input = nullptr;  // where "-" reads a range, and a batch its lines; without it there is nothing
};

/// Does what the arguments (without the program's name) ask for, and returns the exit status. An amount is taken as an
/// amount box takes it, a sum such as "=735+220-178" included, but without the marks of a locale, so that a script
/// means the same everywhere. A comma that cuts it short is warned of, and the input checks run as they do after a
/// click on the window's button: a refusal is printed as "title: message". A range that there is no file of is refused,
/// with the names that are nearest to its own; one whose file cannot be read is pointed out before the run fails over
/// it. Where the terminal takes it, a run that goes on for more than half a second shows a bar. Fails as the input
/// checks, Analyze and AnalysisOutput do. Only
/// saving a range writes anything.
[[nodiscard]] int RunCompanion(std::span<const std::string> arguments, const Surroundings& surroundings);

}  // namespace quillon
