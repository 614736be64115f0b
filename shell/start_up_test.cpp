#include "shell/start_up.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "hand/hand_classes.h"
#include "ranges/range_lists.h"
#include "shell/situations.h"
#include "shell/version.h"
#include "support/folders.h"
#include "support/run_time_error.h"
#include "testing/file_calls.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

// A program's folder with nothing in it.
class EmptyProgram : public TemporaryProgram {
 public:
  EmptyProgram() { std::filesystem::remove_all(RangeFolderPath(Folder())); }
};

TEST(PrepareFolders, MakesBothTheRangesFirst) {
  const EmptyProgram program;
  WatchedCalls calls;
  PrepareFolders({program.Folder().Path, &calls});
  std::vector<std::string> made;
  for (const MadeCall& call : calls.Made()) {
    if (call.Call == Call::kMakeFolder) made.push_back(std::filesystem::path(call.Path).filename().string());
  }
  EXPECT_THAT(made, ElementsAre("Ranges", "Saved Grids"));
  EXPECT_TRUE(FolderExists(program.Folder().Path / "Ranges"));
  EXPECT_TRUE(FolderExists(program.Folder().Path / "Saved Grids"));
  EXPECT_FALSE(std::filesystem::exists(SettingsFilePath(program.Folder()))) << "only a write makes it";
}

TEST(PrepareFolders, KeepsWhatIsInThem) {
  const TemporaryProgram program;
  program.Write("Button.txt", "AA (1), \r\n");
  PrepareFolders(program.Folder());
  EXPECT_EQ(program.Read("Button.txt"), "AA (1), \r\n");
}

TEST(PrepareFolders, AFolderThatCannotBeMadeIsFatal) {
  for (const char* blocked : {"Ranges", "Saved Grids"}) {
    const EmptyProgram program;
    std::ofstream(program.Folder().Path / blocked) << "a file";
    try {
      PrepareFolders(program.Folder());
      FAIL() << blocked;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Fault(), RunTimeFault::kPathFileAccess) << blocked;
      EXPECT_THAT(error.what(), HasSubstr(blocked));
    }
  }
}

TEST(PrepareFolders, ClearsAwayWhatAKilledProgramLeftOfASave) {
  const TemporaryProgram program;
  const std::filesystem::path left = program.Folder().Path / ".quillon-1-0.tmp";
  std::ofstream(left) << "half";
  program.Write(".quillon-1-1.tmp", "half");
  program.Write("Tight.txt", "AA (1), ");
  const auto longAgo = std::filesystem::file_time_type::clock::now() - std::chrono::hours(2);
  std::filesystem::last_write_time(left, longAgo);
  std::filesystem::last_write_time(program.RangeFile(".quillon-1-1.tmp"), longAgo);

  const std::filesystem::path amongSituations = SituationFolderPath(program.Folder()) / ".quillon-1-2.tmp";
  std::filesystem::create_directory(SituationFolderPath(program.Folder()));
  std::ofstream(amongSituations) << "half";
  std::filesystem::last_write_time(amongSituations, longAgo);

  PrepareFolders(program.Folder());
  EXPECT_FALSE(std::filesystem::exists(left));
  EXPECT_FALSE(std::filesystem::exists(amongSituations));
  EXPECT_FALSE(std::filesystem::exists(program.RangeFile(".quillon-1-1.tmp")));
  EXPECT_TRUE(std::filesystem::exists(program.RangeFile("Tight.txt")));
}

TEST(MainWindow, IsAsWideAsPanelAndFirstScreenAreDesigned) {
  EXPECT_EQ(MainWindowSize({0, 1440, 3300, 9000}, 12000), (TwipSize{15300, 9045}));
  EXPECT_EQ(MainWindowSize({10, 1440, 3300, 9000}, 10000), (TwipSize{13310, 9045}));
}

TEST(MainWindow, HasTheVersionInItsTitle) {
  EXPECT_EQ(kVersionText, "0.9");
  EXPECT_EQ(MainWindowTitle(), "Quillon 0.9");
}

TEST(BoxTexts, AreStoredAndFoundAsTheyStood) {
  const TemporaryProgram program;
  const std::vector<std::string> texts = {"abc", "", "=735+220-178", "5 €", " 5 "};
  WriteIniValue("Values", "1", "old", program.Folder());
  WriteIniValues(BoxTextSettings(texts), program.Folder());
  WriteIniValue("Values", "5", "no such box", program.Folder());
  EXPECT_EQ(StoredBoxTexts(5, program.Folder()), texts) << "an empty box empties its value";
}

TEST(BoxTexts, AreEmptyWhereNothingIsStored) {
  const TemporaryProgram program;
  EXPECT_THAT(StoredBoxTexts(2, program.Folder()), ElementsAre("", ""));
}

TEST(HandListEntries, AreNoneAndAllClasses) {
  const std::vector<std::string> entries = HandListEntries();
  ASSERT_EQ(entries.size(), 170U);
  EXPECT_EQ(entries.front(), "None");
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    EXPECT_EQ(entries[static_cast<std::size_t>(index) + 1], HandLabel(index));
}

}  // namespace
}  // namespace quillon
