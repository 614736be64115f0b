#pragma once

// The command-line companion: the window's analysis, for scripts and for machines without a display. The command line
// takes the place of boxes and lists, messages go to standard error, and the finished run is printed.

#include <chrono>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <span>
#include <string>

#include "tools/terminal.h"

namespace quillon {

/// The exit statuses of the companion. kFailed is for a run-time error, which ends the program from its outermost
/// frame, and for a listing that had to leave a file out.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kWrongUsage = 2;
inline constexpr int kRefused = 3;
inline constexpr int kInterrupted = 130;  // of a batch ended by Ctrl+C; the shells' status for that signal

/// The companion's environment.
struct Surroundings {
  std::ostream& Output;
  std::ostream& Errors;
  /// The parent of "Ranges" unless --folder names another. Only called for named ranges, so typed ones need no folder.
  std::function<std::filesystem::path()> ProgramFolder;
  quillon::Terminal Terminal{};
  std::function<std::chrono::steady_clock::time_point()> Now = std::chrono::steady_clock::now;
  std::istream* Input = nullptr;  // where "-" reads a range, and a batch its lines; null is empty
};

/// Runs the arguments (without the program's name) and returns the exit status. Amounts are read as in an amount box,
/// including sums such as "=735+220-178", but without the marks of a locale, so that a script means the same
/// everywhere. A comma that cuts an amount short gives a warning, and the input checks run as after a click on the
/// window's button: a refusal is printed as "title: message". A range without a file is refused, with the nearest
/// names; one whose file cannot be read is reported before the run fails on it. If the terminal supports it, a run of
/// more than half a second shows a bar. Fails as the input checks, Analyze and the output format do. Only saving a
/// range writes anything.
[[nodiscard]] int RunCompanion(std::span<const std::string> arguments, const Surroundings& surroundings);

}  // namespace quillon
