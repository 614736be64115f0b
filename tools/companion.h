#pragma once

// The command-line companion: the same analysis as the window's, for scripts and for machines without a display. What
// the window's boxes and lists hold comes from the command line, what its message boxes say goes to standard error, and
// the finished run is printed.

#include <filesystem>
#include <iosfwd>
#include <span>
#include <string>

namespace quillon {

/// The exit statuses of the companion. kFailed is that of a run-time error, which ends the program from its outermost
/// frame, and of a listing that had to leave a file out.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kWrongUsage = 2;
inline constexpr int kRefused = 3;

/// What the companion finds around it.
struct Surroundings {
  std::ostream& Output;
  std::ostream& Errors;
  std::filesystem::path ProgramFolder;  // where "Ranges" is looked for unless --folder names another folder
  bool ShowProgress = false;  // standard error is a terminal
  bool ShowColors = false;  // standard output is a terminal with 24-bit colour
};

/// Does what the arguments (without the program's name) ask for, and gives back the exit status. An amount is taken as
/// an amount box takes it, a sum such as "=735+220-178" included, and the input checks run as they do behind the
/// window's button: a refusal is printed as "title: message". A named range that has no readable file is pointed out
/// before the run fails over it. Fails as RunAnalysis and AnalysisOutput do; nothing is written anywhere.
[[nodiscard]] int RunCompanion(std::span<const std::string> arguments, const Surroundings& surroundings);

}  // namespace quillon
