#include "shell/start_up.h"

#include <chrono>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "hand/hand_classes.h"
#include "shell/situations.h"
#include "support/folders.h"
#include "testing/fault_of.h"
#include "testing/file_calls.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

// An empty program folder.
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
  EXPECT_FALSE(std::filesystem::exists(SettingsFilePath(program.Folder()))) << "only a write creates it";
}

TEST(PrepareFolders, AFolderThatCannotBeMadeIsFatal) {
  for (const char* blocked : {"Ranges", "Saved Grids"}) {
    const EmptyProgram program;
    Put(program.Folder().Path / blocked, "a file");
    EXPECT_THAT(FaultTextOf([&] { PrepareFolders(program.Folder()); }),
                AllOf(HasSubstr("'75': Path/File access error"), HasSubstr(blocked)));
  }
}

TEST(PrepareFolders, ClearsAwayWhatAKilledProgramLeftOfASave) {
  const TemporaryProgram program;
  program.Write("Tight.txt", "AA (1), ");
  std::filesystem::create_directory(SituationFolderPath(program.Folder()));
  const std::vector<std::filesystem::path> folders = {program.Folder().Path, RangeFolderPath(program.Folder()),
                                                      SituationFolderPath(program.Folder())};
  for (const std::filesystem::path& folder : folders) {
    Put(folder / ".quillon-1-0.tmp", "half");
    std::filesystem::last_write_time(folder / ".quillon-1-0.tmp",
                                     std::filesystem::file_time_type::clock::now() - std::chrono::hours(2));
  }
  PrepareFolders(program.Folder());
  for (const std::filesystem::path& folder : folders)
    EXPECT_FALSE(std::filesystem::exists(folder / ".quillon-1-0.tmp")) << folder;
  EXPECT_EQ(program.Read("Tight.txt"), "AA (1), ");
}

TEST(MainWindow, IsAsWideAsPanelAndFirstScreenAreDesigned) {
  EXPECT_EQ(MainWindowSize({0, 1440, 3300, 9000}, 12000), (TwipSize{15300, 9045}));
  EXPECT_EQ(MainWindowSize({10, 1440, 3300, 9000}, 10000), (TwipSize{13310, 9045}));
  EXPECT_EQ(MainWindowTitle(), "Quillon 0.9");
}

TEST(BoxTexts, AreStoredAndFoundAsTheyStood) {
  const TemporaryProgram program;
  const std::vector<std::string> texts = {"abc", "", "=735+220-178", "5 €", " 5 "};
  EXPECT_THAT(StoredBoxTexts(2, program.Folder()), ElementsAre("", ""));
  WriteIniValue("Values", "1", "old", program.Folder());
  WriteIniValues(BoxTextSettings(texts), program.Folder());
  WriteIniValue("Values", "5", "no such box", program.Folder());
  EXPECT_EQ(StoredBoxTexts(5, program.Folder()), texts) << "an empty box empties its value";
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
