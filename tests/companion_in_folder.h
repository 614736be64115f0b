#pragma once

// For tests of bad input: the real companion on a program folder, and what a folder holds, so that a test can say that
// nothing in it has changed.

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "ranges/range_files.h"
#include "tests/program_run.h"

namespace quillon {

/// The companion's run with these arguments, on the ranges of that folder.
[[nodiscard]] inline ProgramOutcome RunCompanionIn(const ProgramFolder& folder, std::vector<std::string> arguments) {
  ProgramRun run;
  run.Program = QUILLON_CLI_PROGRAM;
  run.Arguments = std::move(arguments);
  run.Arguments.insert(run.Arguments.end(), {"--folder", folder.Path.string()});
  run.CurrentFolder = folder.Path;
  return RunProgram(run);
}

/// An option with its value, any text but one with a NUL character.
[[nodiscard]] inline std::vector<std::string> Option(const std::string& name, const std::string& value) {
  if (value.empty()) return {name, value};
  return {name + "=" + value};
}

/// Arguments one after the other.
[[nodiscard]] inline std::vector<std::string> Joined(const std::vector<std::vector<std::string>>& parts) {
  std::vector<std::string> all;
  for (const auto& part : parts)
    all.insert(all.end(), part.begin(), part.end());
  return all;
}

/// Every file below the folder with the time of its last change and its bytes.
[[nodiscard]] inline std::map<std::string, std::string> StateOf(const std::filesystem::path& folder) {
  std::map<std::string, std::string> state;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    std::ostringstream text;
    text << entry.last_write_time().time_since_epoch().count() << ' '
         << std::ifstream(entry.path(), std::ios::binary).rdbuf();
    state[entry.path().string()] = text.str();
  }
  return state;
}

}  // namespace quillon
