#include "support/folders.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <utility>
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

class Folders : public testing::Test {
 protected:
  [[nodiscard]] const fs::path& Home() const { return home_.Path(); }

 private:
  TemporaryFolder home_;
};

std::optional<RunTimeError> FailureOfMaking(const fs::path& path, FileCalls& calls = SystemFileCalls()) {
  try {
    MakeFolder(path, calls);
  } catch (const RunTimeError& error) {
    return error;
  }
  return std::nullopt;
}

TEST_F(Folders, ExistWhereTheyCanBeListed) {
  fs::create_directory(Home() / "empty");
  fs::create_directories(Home() / "full" / "inner");
  fs::create_directory(Home() / PathOf("Grüße €"));
  std::ofstream(Home() / "file") << "x";

  struct Case {
    const char* rule;
    fs::path path;
    bool exists;
  };
  const std::vector<Case> cases = {
      {"a folder with something in it", Home() / "full", true},
      {"a folder with nothing in it", Home() / "empty", true},
      {"a folder with a separator at its end", Home() / "empty/", true},
      {"a name beyond ASCII", Home() / PathOf("Grüße €"), true},
      {"the root", "/", true},
      {"nothing, which gets the root's separator", "", true},
      {"what is not there", Home() / "missing", false},
      {"what is not there, with a separator", Home() / "missing/", false},
      {"what is not there in a folder that is not there", Home() / "missing" / "inner", false},
      {"a file", Home() / "file", false},
      {"something in a file", Home() / "file" / "inner", false},
      {"a name that no folder can have", Home() / std::string(300, 'x'), false},
  };
  for (const Case& c : cases)
    EXPECT_EQ(FolderExists(c.path), c.exists) << c.rule;
}

TEST_F(Folders, AreSeenWithoutAStandardInput) {
  const ClosedInput closed;
  EXPECT_TRUE(FolderExists(Home()));
}

TEST_F(Folders, AnyErrorCountsAsNotExisting) {
  for (const int error : {EACCES, EIO, ELOOP, EMFILE, ENOMEM, ENOTDIR}) {
    WatchedCalls calls(FailAll(Call::kOpen, error));
    EXPECT_FALSE(FolderExists(Home(), calls)) << "error number " << error;
  }
}

TEST_F(Folders, AnInterruptedLookIsTakenAgain) {
  WatchedCalls calls(FailAll(Call::kOpen, EINTR, 3));
  EXPECT_TRUE(FolderExists(Home(), calls));
}

TEST_F(Folders, AreMade) {
  EXPECT_FALSE(FailureOfMaking(Home() / "Saved Grids").has_value());
  EXPECT_TRUE(fs::is_directory(Home() / "Saved Grids"));
}

TEST_F(Folders, ThatCannotBeMadeAreFatal) {
  std::ofstream(Home() / "file") << "x";
  struct Case {
    const char* rule;
    fs::path path;
    RunTimeFault fault;
    const char* reason;
  };
  const std::vector<Case> cases = {
      {"one that is there", Home(), RunTimeFault::kPathFileAccess, "File exists"},
      {"a file's name", Home() / "file", RunTimeFault::kPathFileAccess, "File exists"},
      {"no outer folder", Home() / "a" / "b", RunTimeFault::kPathNotFound, "No such file or directory"},
      {"a file for an outer folder", Home() / "file" / "b", RunTimeFault::kPathNotFound, "directory"},
      {"too long a name", Home() / std::string(300, 'x'), RunTimeFault::kBadFileName, "File name too long"},
  };
  for (const Case& c : cases) {
    const std::optional<RunTimeError> failure = FailureOfMaking(c.path);
    ASSERT_TRUE(failure.has_value()) << c.rule;
    EXPECT_EQ(failure->Fault(), c.fault) << c.rule;
    EXPECT_THAT(failure->what(), AllOf(HasSubstr(c.path.string()), HasSubstr(c.reason))) << c.rule;
  }
}

TEST_F(Folders, AFaultOfTheSystemsIsToldWithPathAndReason) {
  const std::vector<std::pair<int, RunTimeFault>> cases = {
      {ENOSPC, RunTimeFault::kDiskFull},
      {EACCES, RunTimeFault::kPermissionDenied},
      {EROFS, RunTimeFault::kPathFileAccess},
      {EIO, RunTimeFault::kDeviceError},
  };
  for (const auto& [error, fault] : cases) {
    WatchedCalls calls(FailAll(Call::kMakeFolder, error));
    const std::optional<RunTimeError> failure = FailureOfMaking(Home() / "Ranges", calls);
    ASSERT_TRUE(failure.has_value()) << "error number " << error;
    EXPECT_EQ(failure->Fault(), fault) << "error number " << error;
    EXPECT_THAT(failure->what(), HasSubstr((Home() / "Ranges").string())) << "error number " << error;
  }
}

TEST_F(Folders, AreMadeIfMissingAndElseLeftAlone) {
  const fs::path ranges = Home() / "Ranges";
  MakeFolderIfMissing(ranges);
  ASSERT_TRUE(fs::is_directory(ranges));
  std::ofstream(ranges / "x.txt") << "AA (1), ";
  MakeFolderIfMissing(ranges);
  EXPECT_TRUE(fs::exists(ranges / "x.txt"));
}

TEST_F(Folders, OneThatMayNotBeListedIsFatalWhereItIsNeeded) {
  WatchedCalls calls(FailAll(Call::kOpen, EACCES));
  EXPECT_THROW(MakeFolderIfMissing(Home(), calls), RunTimeError);
}

TEST_F(Folders, ListTheirFilesAsText) {
  for (const char* name : {"b.txt", "a", "Käse 漢字", ".quillon-4711-0.tmp"})
    std::ofstream(Home() / PathOf(name)) << "x";
  fs::create_directory(Home() / "inner");
  EXPECT_THAT(FileNamesIn(Home()), testing::UnorderedElementsAre("b.txt", "a", "Käse 漢字"));
  EXPECT_EQ(FaultOf([&] { return FileNamesIn(Home() / "gone"); }), RunTimeFault::kPathNotFound);
}

TEST_F(Folders, HaveTheFileOfAName) {
  EXPECT_EQ(FileOfName(Home(), "Käse").filename(), PathOf("Käse"));
  EXPECT_EQ(FileOfName(Home(), "/etc"), Home() / "etc") << "no name leads out by being absolute";
  std::ofstream(Home() / "file") << "x";
  EXPECT_TRUE(IsThere(Home() / "file"));
  EXPECT_FALSE(IsThere(Home() / "nowhere"));
}

}  // namespace
}  // namespace quillon
