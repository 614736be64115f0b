// The user's files after every action that writes them, with each system call failing in turn: each file has its old or
// its new content, and the user is told.

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "shell/settings_file.h"
#include "shell/situations.h"
#include "support/files.h"
#include "support/run_time_error.h"
#include "testing/file_calls.h"
#include "testing/range_texts.h"
#include "testing/recorded_input.h"
#include "testing/recorded_messages.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

// Every file below the program's folder with its content.
using Files = std::map<std::string, std::string>;

Files FilesOf(const ProgramFolder& folder) {
  Files files;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder.Path)) {
    if (!entry.is_regular_file()) continue;
    std::ostringstream bytes;
    bytes << std::ifstream(entry.path(), std::ios::binary).rdbuf();
    files[entry.path().lexically_relative(folder.Path).generic_string()] = bytes.str();
  }
  return files;
}

bool IsScratch(const std::string& name) {
  return name.find(".quillon-") != std::string::npos;
}

void RemoveScratch(Files& files) {
  std::erase_if(files, [](const auto& file) { return IsScratch(file.first) && !file.first.starts_with("Ranges/"); });
}

// The text that the range dialogs write.
std::string Edited() {
  return TextWith("AA QQ", "KK");
}

// What Ctrl+S does, with Yes if the name is taken.
void SaveSituation(const std::string& name, const ProgramFolder& folder) {
  RecordedInput inputs;
  RecordedMessages messages;
  inputs.Answers = {name};
  messages.Answers = {MessageAnswer::kYes};
  const ScreenSituation situation = {AnalysisMode::kPreflopCall, {"150", "50", {}, std::string(900, 'x'), {}}};
  EXPECT_EQ(AskAndSaveSituation(situation, {}, folder, std::ref(inputs), messages), name);
}

struct Action {
  const char* Name;
  std::function<void(const ProgramFolder&)> Do;
  // At least one of these always exists.
  std::vector<std::string> NeverAllGone;
  bool MaySwallow = false;  // a failure may be silent, since the file is not worth stopping for
};

const std::vector<Action>& Actions() {
  static const std::vector<Action> actions = {
      {"Save", [](const ProgramFolder& folder) { SaveRangeText(folder, "Old", Edited()); }, {"Ranges/Old.txt"}},
      {"SaveUnderANewName",
       [](const ProgramFolder& folder) { SaveRangeText(folder, "New", Edited()); },
       {"Ranges/Old.txt"}},
      {"SaveAsScratchRange",
       [](const ProgramFolder& folder) { SaveRangeText(folder, "Temp Range1", Edited()); },
       {"Ranges/Temp Range1.txt"}},
      {"Rename",
       [](const ProgramFolder& folder) { RenameRange(folder, "Old", "New", Edited()); },
       {"Ranges/Old.txt", "Ranges/New.txt"}},
      {"Delete", [](const ProgramFolder& folder) { DeleteRange(folder, "Old"); }, {}},
      {"SaveSituation", [](const ProgramFolder& folder) { SaveSituation("Old", folder); }, {"Situations/Old.json"}},
      {"FirstSituation",
       [](const ProgramFolder& folder) {
         fs::remove_all(SituationFolderPath(folder));
         SaveSituation("New", folder);
       },
       {}},
      {"DeleteSituation",
       [](const ProgramFolder& folder) {
         RecordedMessages messages;
         messages.Answers = {MessageAnswer::kYes};
         EXPECT_TRUE(AskAndDeleteSituation("Old", folder, messages));
       },
       {}},
      {"Settings",
       [](const ProgramFolder& folder) { WriteIniValue("Values", "0", "735", folder); },
       {"settings.ini"},
       true},
      {"NewImage",
       [](const ProgramFolder& folder) {
         ReplaceFile(folder.Path / "Saved Grids" / "new.bmp", "BM new picture", folder.Path, *folder.Calls);
       },
       {}},
      {"ImageOverAnother",
       [](const ProgramFolder& folder) {
         ReplaceFile(folder.Path / "old.bmp", "BM new picture", folder.Path, *folder.Calls);
       },
       {"old.bmp"}},
  };
  return actions;
}

struct Disk {
  const char* Name;
  int Error;
  FailingCalls::Lasting Lasting = FailingCalls::Lasting::kOnce;
  std::size_t LargestPiece = std::string_view::npos;
};

constexpr std::array kDisks = {
    Disk{"Full", ENOSPC},
    Disk{"Forbidden", EACCES},
    Disk{"Broken", EIO},
    Disk{"Interrupted", EINTR},
    Disk{"FullFromThenOn", ENOSPC, FailingCalls::Lasting::kForGood},
    Disk{"BrokenFromThenOn", EIO, FailingCalls::Lasting::kForGood},
    Disk{"BrokenInSmallPieces", EIO, FailingCalls::Lasting::kOnce, 400},
    Disk{"InterruptedInSmallPieces", EINTR, FailingCalls::Lasting::kOnce, 400},
};

class FileFaults : public testing::TestWithParam<std::tuple<Disk, Action>> {
 protected:
  // The result of an action on fresh files with these calls.
  struct Outcome {
    Files Left;
    std::optional<RunTimeError> Failure;
  };

  static Outcome Run(FileCalls& calls) {
    const TemporaryProgram program;
    fs::create_directory(program.Folder().Path / "Saved Grids");
    program.Write("Old.txt", TextWith("AA", "KK") + "\r\n");
    program.Write("Temp Range1.txt", TextWith("22") + "\r\n");
    program.Write("zzz.txt", TextWith("72o") + "\r\n");
    std::ofstream(SettingsFilePath(program.Folder()), std::ios::binary) << "[Values]\r\n0=150\r\n1=50\r\n";
    fs::create_directory(SituationFolderPath(program.Folder()));
    std::ofstream(SituationFilePath(program.Folder(), "Old"), std::ios::binary) << "{\"mode\":\"equity\"}\n";
    std::ofstream(program.Folder().Path / "old.bmp", std::ios::binary) << "BM old picture, which is longer";

    Outcome outcome;
    try {
      std::get<1>(GetParam()).Do({program.Folder().Path, &calls});
    } catch (const RunTimeError& error) {
      outcome.Failure = error;
    }
    outcome.Left = FilesOf(program.Folder());
    return outcome;
  }
};

// The files before each action.
Files FilesBefore() {
  return {{"Ranges/Old.txt", TextWith("AA", "KK") + "\r\n"}, {"Ranges/Temp Range1.txt", TextWith("22") + "\r\n"},
          {"Ranges/zzz.txt", TextWith("72o") + "\r\n"},      {"Situations/Old.json", "{\"mode\":\"equity\"}\n"},
          {"old.bmp", "BM old picture, which is longer"},    {"settings.ini", "[Values]\r\n0=150\r\n1=50\r\n"}};
}

// Nothing if the file is missing.
std::optional<std::string> ContentIn(const Files& files, const std::string& name) {
  const auto found = files.find(name);
  return found == files.end() ? std::nullopt : std::optional(found->second);
}

void ExpectOldOrNew(const Files& left, const Files& before, const Files& after, const Action& action) {
  Files names = before;
  names.insert(after.begin(), after.end());
  names.insert(left.begin(), left.end());
  for (const auto& [name, ignored] : names) {
    const std::optional<std::string> content = ContentIn(left, name);
    EXPECT_TRUE(content == ContentIn(before, name) || content == ContentIn(after, name)) << name;
  }
  const bool someLeft = std::any_of(action.NeverAllGone.begin(), action.NeverAllGone.end(),
                                    [&](const std::string& name) { return left.contains(name); });
  EXPECT_TRUE(someLeft || action.NeverAllGone.empty());
}

TEST_P(FileFaults, LeaveEachFileAsItWasOrAsItWasToBe) {
  const auto& [disk, action] = GetParam();
  const Files before = FilesBefore();
  const Files after = Run(SystemFileCalls()).Left;
  ASSERT_NE(before, after);

  int failures = 0;
  bool reached = true;
  for (int call = 0; reached; ++call) {
    ASSERT_LT(call, 300);
    SCOPED_TRACE("call " + std::to_string(call));
    FailingCalls calls(call, disk.Error, disk.Lasting, disk.LargestPiece);
    Outcome outcome = Run(calls);
    reached = calls.HasFailed();
    if (disk.Lasting == FailingCalls::Lasting::kForGood) RemoveScratch(outcome.Left);
    ExpectOldOrNew(outcome.Left, before, after, action);

    failures += outcome.Left != after ? 1 : 0;
    const bool wasDone = outcome.Left == after && !outcome.Failure;
    const bool wasTold = outcome.Failure && !action.MaySwallow;
    const bool wasLetGo = !outcome.Failure && action.MaySwallow;
    EXPECT_TRUE(wasDone || wasTold || wasLetGo) << "a failure was not reported, or reported needlessly";
    EXPECT_TRUE(wasDone || disk.Error != EINTR) << "an interruption is not a failure";
  }
  EXPECT_EQ(failures > 0, disk.Error != EINTR);
}

INSTANTIATE_TEST_SUITE_P(ByDiskAndAction, FileFaults,
                         testing::Combine(testing::ValuesIn(kDisks), testing::ValuesIn(Actions())),
                         [](const auto& row) {
                           return std::string(std::get<0>(row.param).Name) + std::get<1>(row.param).Name;
                         });

}  // namespace
}  // namespace quillon
