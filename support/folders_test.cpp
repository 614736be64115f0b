#include "support/folders.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "support/run_time_error.h"
#include "testing/closed_input.h"
#include "testing/fault_of.h"
#include "testing/file_calls.h"
#include "testing/temporary_folder.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::HasSubstr;

class Folders : public testing::Test, public TemporaryFolder {};

TEST_F(Folders, ExistWhereTheyCanBeListed) {
  fs::create_directory(Path() / "empty");
  fs::create_directories(Path() / "full" / "inner");
  fs::create_directory(Path() / PathOf("Grüße €"));
  std::ofstream(Path() / "file") << "x";

  struct Case {
    const char* rule;
    fs::path path;
    bool exists;
  };
  const std::vector<Case> cases = {
      {"a folder with something in it", Path() / "full", true},
      {"a folder with a separator at its end", Path() / "empty/", true},
      {"a name beyond ASCII", Path() / PathOf("Grüße €"), true},
      {"the root", "/", true},
      {"nothing, which gets the root's separator", "", true},
      {"what is not there", Path() / "missing", false},
      {"a file", Path() / "file", false},
      {"something in a file", Path() / "file" / "inner", false},
      {"a name that no folder can have", Path() / std::string(300, 'x'), false},
  };
  for (const Case& c : cases)
    EXPECT_EQ(FolderExists(c.path), c.exists) << c.rule;
  const ClosedInput closed;
  EXPECT_TRUE(FolderExists(Path())) << "a process without a standard input";
}

TEST_F(Folders, AnyErrorCountsAsNotExisting) {
  WatchedCalls failing(FailAll(Call::kOpen, EIO));
  EXPECT_FALSE(FolderExists(Path(), failing));
  WatchedCalls interrupted(FailAll(Call::kOpen, EINTR, 3));
  EXPECT_TRUE(FolderExists(Path(), interrupted)) << "the check is repeated";
}

TEST_F(Folders, ThatCannotBeMadeAreFatal) {
  std::ofstream(Path() / "file") << "x";
  struct Case {
    const char* rule;
    fs::path path;
    RunTimeFault fault;
    const char* reason;
  };
  const std::vector<Case> cases = {
      {"a file's name", Path() / "file", RunTimeFault::kPathFileAccess, "File exists"},
      {"no outer folder", Path() / "a" / "b", RunTimeFault::kPathNotFound, "No such file or directory"},
      {"a file for an outer folder", Path() / "file" / "b", RunTimeFault::kPathNotFound, "directory"},
      {"too long a name", Path() / std::string(300, 'x'), RunTimeFault::kBadFileName, "File name too long"},
  };
  for (const Case& c : cases) {
    const auto make = [&] { MakeFolder(c.path); };
    EXPECT_EQ(FaultOf(make), c.fault) << c.rule;
    EXPECT_THAT(FaultTextOf(make), AllOf(HasSubstr(c.path.string()), HasSubstr(c.reason))) << c.rule;
  }
  WatchedCalls full(FailAll(Call::kMakeFolder, ENOSPC));
  EXPECT_EQ(FaultOf([&] { MakeFolder(Path() / "Ranges", full); }), RunTimeFault::kDiskFull);
  WatchedCalls unlisted(FailAll(Call::kOpen, EACCES));
  EXPECT_EQ(FaultOf([&] { MakeFolderIfMissing(Path(), unlisted); }), RunTimeFault::kPathFileAccess);
}

TEST_F(Folders, AreMadeIfMissingAndElseLeftAlone) {
  const fs::path ranges = Path() / "Ranges";
  MakeFolderIfMissing(ranges);
  ASSERT_TRUE(fs::is_directory(ranges));
  std::ofstream(ranges / "x.txt") << "AA (1), ";
  MakeFolderIfMissing(ranges);
  EXPECT_TRUE(fs::exists(ranges / "x.txt"));
}

TEST_F(Folders, ListTheirFilesAsText) {
  for (const char* name : {"b.txt", "a", "Käse 漢字", ".quillon-4711-0.tmp"})
    std::ofstream(Path() / PathOf(name)) << "x";
  fs::create_directory(Path() / "inner");
  EXPECT_THAT(FileNamesIn(Path()), testing::UnorderedElementsAre("b.txt", "a", "Käse 漢字"));
  EXPECT_EQ(FaultOf([&] { return FileNamesIn(Path() / "gone"); }), RunTimeFault::kPathNotFound);
}

TEST_F(Folders, HaveTheFileOfAName) {
  EXPECT_EQ(FileOfName(Path(), "Käse").filename(), PathOf("Käse"));
  EXPECT_EQ(FileOfName(Path(), "/etc"), Path() / "etc") << "an absolute name does not lead out";
  std::ofstream(Path() / "file") << "x";
  EXPECT_TRUE(IsThere(Path() / "file"));
  EXPECT_FALSE(IsThere(Path() / "nowhere"));
}

}  // namespace
}  // namespace quillon
