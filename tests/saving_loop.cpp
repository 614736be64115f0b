// Saves and renames ranges, saves situations and stores settings, round after round, with the program's own routines:
//
//   saving_loop FOLDER NAME ROUNDS
//
// With ROUNDS 0 until it is killed. A failure is written to standard error, with exit status 1.

#include "tests/saving_loop.h"

#include <exception>
#include <iostream>
#include <span>
#include <stdexcept>
#include <string>

#include "ranges/range_files.h"
#include "shell/settings_file.h"
#include "shell/situations.h"
#include "support/files.h"
#include "testing/recorded_input.h"
#include "testing/recorded_messages.h"

namespace quillon {
namespace {

// The setting that this loop stored in its last round must still be there, whatever others have stored since.
void RequireEarlierSetting(const ProgramFolder& folder, const std::string& name, int round) {
  if (round == 0) return;
  const std::string key = LoopKey(name, (round - 1) % kKeysOfALoop);
  if (ReadIniValue("Values", key, folder) == LongSetting(round - 1)) return;
  throw std::runtime_error("lost: the setting " + key + " of round " + std::to_string(round - 1));
}

// What Ctrl+S does, with Yes if the name is taken.
void SaveSituation(const ProgramFolder& folder, const std::string& name, int round) {
  RecordedInput inputs;
  RecordedMessages messages;
  inputs.Answers = {name};
  messages.Answers = {MessageAnswer::kYes};
  if (AskAndSaveSituation(LongSituation(round), {}, folder, std::ref(inputs), messages) == name) return;
  throw std::runtime_error("not saved: the situation " + name);
}

void RunRound(const ProgramFolder& folder, const std::string& name, int round) {
  RequireEarlierSetting(folder, name, round);
  const std::string moved = name + std::string(kMovedEnd);
  SaveRangeText(folder, name, EvenRangeText(round));
  RenameRange(folder, name, moved, EvenRangeText(round + 0.25));
  SaveRangeText(folder, kSharedRange, EvenRangeText(round + 0.5));
  SaveSituation(folder, name, round);
  SaveSituation(folder, std::string(kSharedRange), round);
  WriteIniValue("Values", LoopKey(name, round % kKeysOfALoop), LongSetting(round), folder);
  RenameRange(folder, moved, name, EvenRangeText(round + 0.75));
}

int Main(std::span<char*> arguments) {
  if (arguments.size() != 4) return 2;
  const ProgramFolder folder{arguments[1]};
  const std::string name = arguments[2];
  const int rounds = std::stoi(arguments[3]);
  try {
    for (int round = 0; rounds == 0 || round < rounds; ++round)
      RunRound(folder, name, round);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  return 0;
}

}  // namespace
}  // namespace quillon

int main(int argumentCount, char** arguments) {
  return quillon::Main(std::span(arguments, static_cast<std::size_t>(argumentCount)));
}
