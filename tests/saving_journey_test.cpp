// Saving while processes are killed, and while several save at once. QUILLON_KILLS in the environment makes the first
// test longer.

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <thread>
#include <variant>

#include "ranges/range_lists.h"
#include "shell/settings_file.h"
#include "shell/situations.h"
#include "support/files.h"
#include "testing/temporary_program.h"
#include "tests/program_run.h"
#include "tests/saving_loop.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

ProgramRun LoopRun(const ProgramFolder& folder, const std::string& name, int rounds) {
  ProgramRun run;
  run.Program = QUILLON_SAVING_LOOP_PROGRAM;
  run.Arguments = {folder.Path.string(), name, std::to_string(rounds)};
  return run;
}

int KillCount() {
  const char* const wanted = std::getenv("QUILLON_KILLS");
  return wanted == nullptr ? 40 : std::atoi(wanted);
}

enum class Loops { kRunning, kEnded };

void ExpectWholeRanges(const ProgramFolder& folder, Loops loops) {
  for (const std::string& fileName : RangeFolderEntries(folder)) {
    const std::string name = RangeNameOfFile(fileName);
    EXPECT_TRUE(name == "A" || name == "A moved" || name == "B" || name == "B moved" || name == kSharedRange)
        << fileName << " is not one of the ranges";
    const std::string text = LoadRangeText(folder, name);
    if (text.empty() && loops == Loops::kRunning) continue;  // renamed since the folder was listed
    ASSERT_FALSE(text.empty()) << name;
    EXPECT_EQ(text, EvenRangeText(RangeWeightOf(text, "AA"))) << name;
  }
}

void ExpectWholeSituations(const ProgramFolder& folder) {
  for (const std::string& name : SituationNames(folder)) {
    EXPECT_TRUE(name == "A" || name == "B" || name == kSharedRange) << name << " is not one of the situations";
    const std::string text = ReadAllBytes(SituationFilePath(folder, name));
    const auto read = SituationOfText(text);
    ASSERT_TRUE(std::holds_alternative<ReadSituation>(read)) << text;
    const int round = std::atoi(std::get<ReadSituation>(read).Situation.Entered.Pot.c_str());
    EXPECT_EQ(text, TextOfSituation(LongSituation(round)).Line) << name;
  }
}

// Every line is whole, and the keys are those of the loops.
void ExpectWholeSettings(const ProgramFolder& folder) {
  std::ifstream file(SettingsFilePath(folder), std::ios::binary);
  std::string line;
  if (!std::getline(file, line)) return;
  EXPECT_EQ(line, "[Values]\r");
  while (std::getline(file, line)) {
    const std::size_t equals = std::min(line.find('='), line.size());
    const int round = std::atoi(line.c_str() + std::min(equals + 1, line.size()));
    EXPECT_EQ(line.substr(equals), "=" + LongSetting(round) + "\r");
    EXPECT_EQ(equals, 2U) << line;
  }
}

std::size_t ScratchFilesIn(const fs::path& folder) {
  std::size_t count = 0;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder))
    count += entry.path().extension() == ".tmp" ? 1U : 0U;
  return count;
}

void MakeOld(const fs::path& folder) {
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    if (entry.is_regular_file()) fs::last_write_time(entry, fs::file_time_type::clock::now() - std::chrono::hours(2));
  }
}

// When the range folder was last changed: saving or renaming a range changes it.
fs::file_time_type LastChange(const ProgramFolder& folder) {
  return fs::last_write_time(RangeFolderPath(folder));
}

void WaitUntil(const std::function<bool()>& happened) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
  while (!happened() && std::chrono::steady_clock::now() < end)
    std::this_thread::sleep_for(std::chrono::microseconds(200));
}

// Waits for the loop's first change; the very first loop also stores a setting, which comes late in a round. On a busy
// machine a process may take longer to start than a round takes.
void WaitForWork(const ProgramFolder& folder, fs::file_time_type last, bool first) {
  WaitUntil([&] { return LastChange(folder) != last; });
  if (first) WaitUntil([&] { return fs::exists(SettingsFilePath(folder)); });
}

TEST(Saving, KilledAtAnyMomentLeavesEveryRangeWhole) {
  const TemporaryProgram program;
  std::mt19937 random(20240501);  // NOLINT(cert-msc51-cpp): the same moments at every run, as near as a clock can tell
  std::uniform_int_distribution<int> moment(0, 20'000);
  SaveRangeText(program.Folder(), "A", EvenRangeText(1));

  const int kills = KillCount();
  for (int kill = 0; kill < kills && !testing::Test::HasFailure(); ++kill) {
    {
      const fs::file_time_type last = LastChange(program.Folder());
      RunningProgram loop(LoopRun(program.Folder(), "A", 0));
      WaitForWork(program.Folder(), last, kill == 0);
      std::this_thread::sleep_for(std::chrono::microseconds(moment(random)));
      EXPECT_EQ(loop.Status(), std::nullopt) << loop.Errors();
    }
    SCOPED_TRACE("kill " + std::to_string(kill));
    ExpectWholeRanges(program.Folder(), Loops::kEnded);
    ExpectWholeSituations(program.Folder());
    ExpectWholeSettings(program.Folder());
    EXPECT_TRUE(RangeExists(program.Folder(), "A") || RangeExists(program.Folder(), "A moved"));
    EXPECT_EQ(ScratchFilesIn(RangeFolderPath(program.Folder())), 0U);
    EXPECT_EQ(ScratchFilesIn(SituationFolderPath(program.Folder())), 0U);
  }

  const std::size_t left = ScratchFilesIn(program.Folder().Path);
  std::cout << kills << " kills, of which " << left << " left a scratch file behind\n";
  MakeOld(program.Folder().Path);
  RemoveStaleScratchFiles(program.Folder().Path);
  EXPECT_EQ(ScratchFilesIn(program.Folder().Path), 0U) << "the next start deletes them";
  EXPECT_TRUE(fs::exists(SettingsFilePath(program.Folder())));
  EXPECT_THAT(SituationNames(program.Folder()), testing::ElementsAre("A", kSharedRange));
}

TEST(Saving, TwoProgramsAtOnceLoseNothing) {
  constexpr int kRounds = 100;
  const TemporaryProgram program;
  RunningProgram first(LoopRun(program.Folder(), "A", kRounds));
  RunningProgram second(LoopRun(program.Folder(), "B", kRounds));
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(120);
  while ((!first.Status() || !second.Status()) && std::chrono::steady_clock::now() < end) {
    ExpectWholeRanges(program.Folder(), Loops::kRunning);
    ExpectWholeSituations(program.Folder());
    ExpectWholeSettings(program.Folder());
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  ASSERT_EQ(first.Status(), 0) << first.Errors();
  ASSERT_EQ(second.Status(), 0) << second.Errors();

  for (const std::string name : {"A", "B"}) {
    EXPECT_EQ(LoadRangeText(program.Folder(), name), EvenRangeText(kRounds - 1 + 0.75));
    EXPECT_FALSE(RangeExists(program.Folder(), name + std::string(kMovedEnd)));
    EXPECT_EQ(ReadAllBytes(SituationFilePath(program.Folder(), name)),
              TextOfSituation(LongSituation(kRounds - 1)).Line);
    for (int index = 0; index < kKeysOfALoop; ++index) {
      EXPECT_EQ(ReadIniValue("Values", LoopKey(name, index), program.Folder()),
                LongSetting(kRounds - kKeysOfALoop + index))
          << name << index;
    }
  }
  EXPECT_EQ(ScratchFilesIn(program.Folder().Path), 0U);
}

}  // namespace
}  // namespace quillon
