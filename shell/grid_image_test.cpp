#include "shell/grid_image.h"

#include <cerrno>
#include <deque>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

#include "support/run_time_error.h"
#include "testing/file_calls.h"
#include "testing/recorded_messages.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const std::string kBitmap("BM\0\x01 pixels", 11);

Message OpenNow() {
  return {"Open Now?", "Screen shot saved successfully.\r\n\r\nDo you want to open the screen shot now?",
          MessageIcon::kQuestion, MessageButtons::kYesNo};
}

std::string Content(const fs::path& path) {
  std::ostringstream content;
  content << std::ifstream(path, std::ios::binary).rdbuf();
  return content.str();
}

class RecordedGridScreen final : public GridImageWindow {
 public:
  [[nodiscard]] TwipRect GridContainer() const override { return {240, 180, 6135, 7815}; }
  std::string AskSaveName(const SaveDialog& dialog) override {
    FolderWasThere = fs::is_directory(dialog.StartFolder);
    Dialogs.push_back(dialog);
    if (Chosen.empty()) return {};
    std::string name = Chosen.front();
    Chosen.pop_front();
    return name;
  }
  [[nodiscard]] std::string CaptureRegion(const CaptureRect& rect) override {
    Captured.push_back(rect);
    return Bitmap;
  }
  [[nodiscard]] MessageBoxes& Messages() override { return Boxes; }
  void OpenImage(const std::string& fileName) override { Opened.push_back(fileName); }

  std::deque<std::string> Chosen;  // in the dialogs to come, the first first; they are cancelled once these are used up
  std::string Bitmap = kBitmap;
  bool FolderWasThere = false;
  std::vector<SaveDialog> Dialogs;
  std::vector<CaptureRect> Captured;
  RecordedMessages Boxes;
  std::vector<std::string> Opened;
};

class GridImage : public testing::Test {
 public:
  [[nodiscard]] fs::path SavedGrids() const { return program.Folder().Path / "Saved Grids"; }
  [[nodiscard]] std::string File(const char* name) const { return (SavedGrids() / name).string(); }
  std::string Save(const std::string& earlierName = {}) { return SaveGridImage(earlierName, screen, program.Folder()); }

  TemporaryProgram program;
  RecordedGridScreen screen;
};

TEST_F(GridImage, DialogIsSetUpForBitmapsInTheFolderOfSavedGrids) {
  Save();
  EXPECT_THAT(screen.Dialogs,
              ElementsAre(SaveDialog{"24-bit Bitmap | *.bmp", "Save Expected Value Grid", SavedGrids(), ""}));
}

TEST_F(GridImage, FolderIsMadeAgainBeforeTheDialog) {
  ASSERT_FALSE(fs::exists(SavedGrids()));
  Save();
  EXPECT_TRUE(screen.FolderWasThere);
  std::ofstream(File("kept.bmp")) << "old";
  Save();
  EXPECT_EQ(Content(File("kept.bmp")), "old") << "a folder that is there stays as it is";
  fs::remove_all(SavedGrids());
  Save();
  EXPECT_TRUE(screen.FolderWasThere);
}

TEST_F(GridImage, FileHoldsTheCaptureOfTheGridContainer) {
  screen.Chosen = {File("grid.bmp")};
  EXPECT_EQ(Save(), File("grid.bmp"));
  EXPECT_THAT(screen.Captured, ElementsAre(CaptureRect{240, 180, 6375, 7995}));
  EXPECT_EQ(Content(File("grid.bmp")), kBitmap);
  EXPECT_THAT(screen.Boxes.Shown, ElementsAre(OpenNow()));
}

TEST_F(GridImage, NameIsTakenAsItWasTyped) {
  screen.Chosen = {File("no extension"), File("odd.PNG"), File("Ü–€.bmp")};
  for (const char* name : {"no extension", "odd.PNG", "Ü–€.bmp"}) {
    EXPECT_EQ(Save(), File(name));
    EXPECT_EQ(Content(File(name)), kBitmap);
  }
}

TEST_F(GridImage, ExistingFileIsOverwrittenWithoutAQuestion) {
  fs::create_directory(SavedGrids());
  std::ofstream(File("grid.bmp")) << "a longer file than the new one will be";
  screen.Chosen = {File("grid.bmp")};
  Save();
  EXPECT_EQ(Content(File("grid.bmp")), kBitmap);
  EXPECT_EQ(screen.Boxes.Shown.size(), 1U);
}

TEST_F(GridImage, CancelOnAFreshStartDoesNothing) {
  EXPECT_EQ(Save(), "");
  EXPECT_THAT(screen.Captured, IsEmpty());
  EXPECT_THAT(screen.Boxes.Shown, IsEmpty());
  EXPECT_TRUE(fs::is_empty(SavedGrids()));
}

TEST_F(GridImage, CancelAfterASaveSavesNothingAndKeepsTheNameForTheNextDialog) {
  screen.Chosen = {File("a.bmp"), File("b.bmp")};
  std::string name = Save();
  name = Save(name);
  screen.Bitmap = "BM newer";
  name = Save(name);
  EXPECT_EQ(name, File("b.bmp"));
  EXPECT_EQ(Content(File("a.bmp")), kBitmap);
  EXPECT_EQ(Content(File("b.bmp")), kBitmap);
  EXPECT_EQ(screen.Boxes.Shown.size(), 2U) << "one for each file that was saved";
  Save(name);
  EXPECT_EQ(screen.Dialogs.at(0).FileName, "");
  EXPECT_EQ(screen.Dialogs.at(1).FileName, File("a.bmp"));
  EXPECT_EQ(screen.Dialogs.at(2).FileName, File("b.bmp"));
  EXPECT_EQ(screen.Dialogs.at(3).FileName, File("b.bmp"));
}

TEST_F(GridImage, OnlyYesOpensThePicture) {
  for (const MessageAnswer answer : {MessageAnswer::kYes, MessageAnswer::kNo, MessageAnswer::kCancel}) {
    screen.Chosen = {File("grid.bmp")};
    screen.Boxes.Answers = {answer};
    Save();
  }
  EXPECT_THAT(screen.Opened, ElementsAre(File("grid.bmp")));
  EXPECT_EQ(screen.Boxes.Shown.size(), 3U);
}

TEST_F(GridImage, FolderThatCannotBeMadeIsFatalAndNamed) {
  std::ofstream(SavedGrids()) << "a file in its place";
  try {
    Save();
    FAIL() << "nothing was thrown";
  } catch (const RunTimeError& error) {
    EXPECT_THAT(error.what(), HasSubstr(SavedGrids().string()));
  }
  EXPECT_THAT(screen.Dialogs, IsEmpty());
}

TEST_F(GridImage, FileThatCannotBeWrittenIsFatalAndLeavesTheOldOne) {
  class NoWriting final : public PassingCalls {
   public:
    ssize_t Write(int /*file*/, std::string_view /*bytes*/) override { return -ENOSPC; }
  };
  fs::create_directory(SavedGrids());
  std::ofstream(File("grid.bmp")) << "old";
  screen.Chosen = {File("grid.bmp")};
  NoWriting calls;
  try {
    static_cast<void>(SaveGridImage({}, screen, {program.Folder().Path, &calls}));
    FAIL() << "nothing was thrown";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Fault(), RunTimeFault::kDiskFull);
    EXPECT_THAT(error.what(), HasSubstr("grid.bmp"));
  }
  EXPECT_EQ(Content(File("grid.bmp")), "old");
  EXPECT_THAT(screen.Boxes.Shown, IsEmpty()) << "nothing was saved";
}

TEST_F(GridImage, ScratchFileStandsInTheProgramsFolder) {
  class Watching final : public PassingCalls {
   public:
    int Rename(const std::string& from, const std::string& to) override {
      Scratch.emplace_back(from);
      return PassingCalls::Rename(from, to);
    }
    std::vector<fs::path> Scratch;
  };
  screen.Chosen = {File("grid.bmp")};
  Watching calls;
  EXPECT_EQ(SaveGridImage({}, screen, {program.Folder().Path, &calls}), File("grid.bmp"));
  ASSERT_EQ(calls.Scratch.size(), 1U);
  EXPECT_EQ(calls.Scratch.front().parent_path(), program.Folder().Path);
}

TEST(CaptureRectOf, RoundsEachEdgeToAWholeTwip) {
  struct Case {
    const char* rule;
    TwipRect rect;
    CaptureRect edges;
  };
  const std::vector<Case> cases = {
      {"the grid", {240, 180, 6135, 7815}, {240, 180, 6375, 7995}},
      {"ties go to even", {0.5F, 1.5F, 2, 2}, {0, 2, 2, 4}},
      {"the sum is rounded, not its parts", {0.4F, 0.4F, 0.4F, 0.2F}, {0, 0, 1, 1}},
      {"left of its container", {-240, -0.5F, 100, 100}, {-240, 0, -140, 100}},
      {"nothing", {}, {}},
  };
  for (const Case& c : cases)
    EXPECT_EQ(CaptureRectOf(c.rect), c.edges) << c.rule;
}

TEST(PixelsOf, RoundsCornerAndSizeEachOnItsOwn) {
  const CaptureRect grid = {240, 180, 6375, 7995};
  EXPECT_EQ(PixelsOf(grid, 15, 15), (PixelRect{16, 12, 409, 521}));
  EXPECT_EQ(PixelsOf(grid, 12, 12), (PixelRect{20, 15, 511, 651})) << "511.25 and 651.25";
  EXPECT_EQ(PixelsOf(grid, 7.5, 7.5), (PixelRect{32, 24, 818, 1042}));
  EXPECT_EQ(PixelsOf(grid, 15, 12), (PixelRect{16, 15, 409, 651})) << "each direction has its own";
  EXPECT_EQ(PixelsOf({0, 0, 15, 45}, 10, 10), (PixelRect{0, 0, 2, 4})) << "ties go to even";
}

}  // namespace
}  // namespace quillon
