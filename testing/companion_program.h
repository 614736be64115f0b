#pragma once

// Runs the companion within a test, on a program's folder of its own.

#include <chrono>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "support/run_time_error.h"
#include "testing/range_texts.h"
#include "testing/temporary_program.h"
#include "tools/companion.h"

namespace quillon {

using Arguments = std::vector<std::string>;

/// Arguments, followed by more of them.
[[nodiscard]] inline Arguments With(Arguments arguments, const Arguments& more) {
  arguments.insert(arguments.end(), more.begin(), more.end());
  return arguments;
}

struct CompanionOutcome {
  int Status = -1;
  std::string Output;
  std::string Errors;
};

/// The environment of a run: the terminal, how far each reading advances the clock, and standard input.
struct CompanionScene {
  quillon::Terminal Terminal{};
  std::chrono::milliseconds Step{};
  std::string Typed{};
};

/// A run on the ranges of a folder. As in the program's outermost frame, a run-time error ends it with its text.
[[nodiscard]] inline CompanionOutcome RunCompanionIn(const std::filesystem::path& folder, const Arguments& arguments,
                                                     const CompanionScene& scene = {}) {
  std::chrono::steady_clock::time_point time;
  const auto now = [&time, &scene] { return time += scene.Step; };
  std::ostringstream output;
  std::ostringstream errors;
  std::istringstream input(scene.Typed);
  CompanionOutcome outcome;
  try {
    outcome.Status =
        RunCompanion(arguments, {output, errors, [&folder] { return folder; }, scene.Terminal, now, &input});
  } catch (const RunTimeError& error) {
    outcome.Status = kFailed;
    errors << error.what() << '\n';
  }
  outcome.Output = output.str();
  outcome.Errors = errors.str();
  return outcome;
}

/// A program's folder with three ranges: "Tight" (QQ+,AK), "Loose" (99+,AQ+,KQs and half 88,AJs), and "Nothing".
class CompanionProgram : public TemporaryProgram {
 public:
  CompanionProgram() {
    Write("Tight.txt", TextWith("AA KK QQ AKs AKo") + "\r\n");
    Write("Loose.txt", TextWith("AA KK QQ JJ TT 99 AKs AQs AKo AQo KQs", "88 AJs") + "\r\n");
    Write("Nothing.txt", TextWith("") + "\r\n");
  }

  [[nodiscard]] CompanionOutcome Run(const Arguments& arguments, const CompanionScene& scene = {}) const {
    return RunCompanionIn(Folder().Path, arguments, scene);
  }
};

}  // namespace quillon
