#include <cerrno>
#include <chrono>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <utility>
#include <vector>

#include "support/files.h"
#include "support/run_time_error.h"
#include "testing/file_calls.h"
#include "testing/ordinary_user.h"
#include "testing/saved_files.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

using ReadingBytes = Files;
using ReplacingAFile = Files;
using RemovingStaleScratchFiles = Files;
using DeletingAFile = Files;

TEST_F(ReadingBytes, LinkToNothingIsEmptyAndAPipeDoesNotHoldTheProgram) {
  fs::create_symlink(Folder() / "missing.txt", Folder() / "dangling.txt");
  EXPECT_EQ(ReadAllBytes(Folder() / "dangling.txt"), "");
  ASSERT_EQ(::mkfifo(File().c_str(), 0600), 0);
  EXPECT_EQ(ReadAllBytes(File()), "");
}

TEST_F(ReplacingAFile, LinkIsFollowed) {
  const fs::path elsewhere = Folder().parent_path() / "elsewhere";
  fs::create_directory(elsewhere);
  Put(elsewhere / "kept.txt", kOld);
  fs::create_symlink("../elsewhere/kept.txt", Folder() / "near.txt");
  fs::create_symlink(Folder() / "near.txt", File());
  ReplaceFile(File(), kNew, ScratchFolder());
  EXPECT_TRUE(fs::is_symlink(File()));
  EXPECT_TRUE(fs::is_symlink(Folder() / "near.txt"));
  EXPECT_FALSE(fs::is_symlink(elsewhere / "kept.txt"));
  EXPECT_EQ(BytesOf(elsewhere / "kept.txt"), kNew);
  EXPECT_THAT(Listing(elsewhere), testing::ElementsAre("kept.txt"));

  WatchedCalls calls;
  EXPECT_FALSE(FailureOfReplacing(File(), Folder().parent_path() / "missing", calls));
  EXPECT_EQ(fs::path(calls.ScratchFiles().back()).parent_path().lexically_normal(), elsewhere)
      << "next to the file, not to the link";
}

TEST_F(ReplacingAFile, CircleOfLinksAndPipeFailAndStay) {
  fs::create_symlink("circle", Folder() / "circle");
  ASSERT_EQ(::mkfifo((Folder() / "pipe").c_str(), 0600), 0);
  for (const char* name : {"circle", "pipe"}) {
    const auto error = FailureOfReplacing(Folder() / name, ScratchFolder(), SystemFileCalls());
    ASSERT_TRUE(error) << name;
    EXPECT_EQ(error->Fault(), RunTimeFault::kDeviceError) << name;
    EXPECT_THAT(error->what(), testing::HasSubstr(name));
    ExpectNoScratchFiles();
  }
  EXPECT_EQ(RunTimeFaultOf(EDQUOT), RunTimeFault::kDiskFull) << "a used-up disk quota";
  EXPECT_TRUE(fs::is_symlink(Folder() / "circle"));
  EXPECT_TRUE(fs::is_fifo(Folder() / "pipe"));
}

TEST_F(WritingInPlace, FileMayBeWrittenInAFolderThatMayNot) {
  fs::permissions(Folder(), kReadOnly);
  for (const auto& content : {std::string(5000, 'x'), kNew}) {  // the second is shorter
    const OrdinaryUser user;
    ReplaceFile(File(), content, ScratchFolder());
    EXPECT_EQ(BytesOf(File()), content);
  }
  ExpectNoScratchFiles();
}

TEST_F(WritingInPlace, NoFolderNeedsToTakeAScratchFile) {
  fs::permissions(Folder(), kReadOnly);
  for (const auto& [scratchFolder, content] :
       {std::pair(Folder(), std::string(kNew)), std::pair(Folder().parent_path() / "missing", std::string("newer"))}) {
    const OrdinaryUser user;
    ReplaceFile(File(), content, scratchFolder);
    EXPECT_EQ(BytesOf(File()), content);
  }
}

TEST_F(ReplacingAFile, NoFileStaysOpen) {
  const auto openFiles = [] { return Listing("/proc/self/fd").size(); };
  Put(File(), kOld);
  const std::size_t before = openFiles();
  for (int number = 1; number <= 12; ++number) {
    WatchedCalls calls(FailOnce(number, EIO));
    static_cast<void>(Replace(calls));
    static_cast<void>(ReadAllBytes(File(), calls));
  }
  EXPECT_EQ(openFiles(), before);
}

mode_t ModeOf(const fs::path& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
}

// Sets the process's umask for the length of a test.
class Umask {
 public:
  explicit Umask(mode_t mask) : before_(::umask(mask)) {}
  Umask(const Umask&) = delete;
  Umask(Umask&&) = delete;
  Umask& operator=(const Umask&) = delete;
  Umask& operator=(Umask&&) = delete;
  ~Umask() { ::umask(before_); }

 private:
  mode_t before_;
};

TEST_F(ReplacingAFile, NewFileHasThePermissionsOfTheOldOne) {
  const Umask umask(022);
  for (const mode_t mode : {0600U, 0644U, 0664U, 0666U, 0777U, 0200U, 0604U}) {
    Put(File(), kOld);
    ASSERT_EQ(::chmod(File().c_str(), mode), 0);
    ReplaceFile(File(), kNew, ScratchFolder());
    EXPECT_EQ(ModeOf(File()), mode);
    fs::remove(File());
  }
}

TEST_F(ReplacingAFile, FileThatWasNotThereHasTheUsersUsualPermissions) {
  const Umask umask(027);
  ReplaceFile(File(), kNew, ScratchFolder());
  EXPECT_EQ(ModeOf(File()), 0640U);
}

// While a file is saved, its scratch file must not be readable by more users than the file.
TEST_F(ReplacingAFile, ScratchFileIsNeverOpenToMoreThanTheOldFile) {
  const Umask umask(0);
  Put(File(), kOld);
  ASSERT_EQ(::chmod(File().c_str(), 0600), 0);
  WatchedCalls calls(FailAll(Call::kSetMode, EPERM));
  EXPECT_FALSE(Replace(calls)) << "a disk without permissions is still written";
  EXPECT_EQ(BytesOf(File()), kNew);
  EXPECT_EQ(ModeOf(File()), 0600U);
}

TEST_F(RemovingStaleScratchFiles, FolderAndLinkOfSuchANameStay) {
  fs::create_directory(Folder() / ".quillon-5-0.tmp");
  fs::last_write_time(Folder() / ".quillon-5-0.tmp", fs::file_time_type::clock::now() - std::chrono::hours(2));
  fs::create_symlink(".quillon-1-0", Folder() / ".quillon-6-0.tmp");
  RemoveStaleScratchFiles(Folder());
  EXPECT_TRUE(fs::is_directory(Folder() / ".quillon-5-0.tmp"));
  EXPECT_TRUE(fs::is_symlink(Folder() / ".quillon-6-0.tmp"));
}

TEST_F(DeletingAFile, OfALinkOnlyTheLinkGoes) {
  Put(Folder() / "far.txt", kOld);
  fs::create_symlink("far.txt", Folder() / "near.txt");
  fs::create_symlink("nowhere", Folder() / "lost.txt");
  DeleteFile(Folder() / "near.txt");
  DeleteFile(Folder() / "lost.txt");
  EXPECT_THAT(Listing(Folder()), testing::ElementsAre("far.txt"));
}

}  // namespace
}  // namespace quillon
