#include "support/files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "support/run_time_error.h"
#include "testing/closed_input.h"
#include "testing/file_calls.h"
#include "testing/ordinary_user.h"
#include "testing/saved_files.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

using ReadingBytes = Files;
using ReadingText = Files;
using ReplacingAFile = Files;
using WritingText = Files;

TEST_F(ReadingBytes, GivesEveryByteAsItIs) {
  std::string bytes;
  for (int i = 0; i < 3 * 4096 + 17; ++i)  // several buffers and a rest
    bytes += static_cast<char>(i % 251);
  Put(File(), bytes);
  EXPECT_EQ(ReadAllBytes(File()), bytes);
}

TEST_F(ReadingBytes, NeedsNoStandardInput) {
  Put(File(), kOld);
  const ClosedInput closed;
  EXPECT_EQ(ReadAllBytes(File()), kOld);
}

TEST_F(ReadingBytes, WhatCannotBeReadIsEmpty) {
  EXPECT_EQ(ReadAllBytes(Folder() / "missing.txt"), "") << "a missing file";
  EXPECT_EQ(ReadAllBytes(Folder() / "missing" / "missing.txt"), "") << "a file in a missing folder";
  EXPECT_EQ(ReadAllBytes(Folder()), "") << "a folder";
  EXPECT_EQ(ReadAllBytes({}), "") << "no path";
  EXPECT_EQ(ReadAllBytes(Folder() / std::string(5000, 'x')), "") << "a name too long";
  Put(File(), "");
  EXPECT_EQ(ReadAllBytes(File()), "") << "an empty file";
}

TEST_F(ReadingBytes, WhatIsThereButUnreadableIsToldFromWhatIsEmpty) {
  EXPECT_EQ(TryReadAllBytes(Folder() / "missing.txt"), "") << "a missing file";
  Put(File(), "");
  EXPECT_EQ(TryReadAllBytes(File()), "") << "an empty file";
  Put(File(), kOld);
  EXPECT_EQ(TryReadAllBytes(File()), kOld) << "a file";
  EXPECT_EQ(TryReadAllBytes(Folder()), std::nullopt) << "a folder";
  for (const Call call : {Call::kOpen, Call::kRead}) {
    WatchedCalls calls(FailAll(call, EACCES));
    EXPECT_EQ(TryReadAllBytes(File(), calls), std::nullopt) << "call " << static_cast<int>(call);
  }
  fs::resize_file(File(), (std::uintmax_t{64} << 20U) + 1);
  EXPECT_EQ(TryReadAllBytes(File()), std::nullopt) << "a file beyond the limit";
}

TEST_F(ReadingBytes, FileBeyondTheLimitCountsAsUnreadable) {
  constexpr std::uintmax_t kLimit = std::uintmax_t{64} << 20U;
  Put(File(), "AA (1), ");
  fs::resize_file(File(), kLimit);
  EXPECT_EQ(ReadAllBytes(File()).size(), kLimit);
  fs::resize_file(File(), kLimit + 1);
  EXPECT_EQ(ReadAllBytes(File()), "");
}

TEST_F(ReadingBytes, ShortReadsAreJoined) {
  Put(File(), kOld);
  WatchedCalls calls({}, 1);
  EXPECT_EQ(ReadAllBytes(File(), calls), kOld);
}

TEST_F(ReadingBytes, FailureOfAnyCallIsAnEmptyTextOrTheWholeOne) {
  Put(File(), kOld);
  const std::size_t callCount = [this] {
    WatchedCalls calls;
    static_cast<void>(ReadAllBytes(File(), calls));
    return calls.Made().size();
  }();
  ASSERT_GE(callCount, 4U) << "open, read, read at the end, close";
  for (const int error : {EIO, EACCES, EISDIR}) {
    for (std::size_t number = 1; number <= callCount; ++number) {
      WatchedCalls calls(FailOnce(static_cast<int>(number), error));
      const std::string bytes = ReadAllBytes(File(), calls);
      const bool all = calls.Made().at(number - 1).Call == Call::kClose;
      EXPECT_EQ(bytes, all ? kOld : "") << "call " << number << ", error " << error;
    }
  }
}

TEST_F(ReadingBytes, InterruptedCallIsMadeAgain) {
  Put(File(), kOld);
  for (int number = 1; number <= 5; ++number) {
    WatchedCalls calls(FailOnce(number, EINTR));
    EXPECT_EQ(ReadAllBytes(File(), calls), kOld) << "call " << number;
  }
}

TEST_F(ReadingText, BytesOfTheCodePageBecomeText) {
  Put(File(), "\xFF\x80 \x81");
  EXPECT_EQ(ReadAllText(File()), "\u00FF\u20AC \xC2\x81");
}

TEST_F(ReadingText, MissingFileReadsAsAnEmptyOne) {
  EXPECT_EQ(ReadAllText(File()), "");
}

TEST_F(WritingText, AddsOneLineEnd) {
  WriteAllText("AA (1), ", File(), ScratchFolder());
  EXPECT_EQ(Content(File()), "AA (1), \r\n");
  WriteAllText("", File(), ScratchFolder());
  EXPECT_EQ(Content(File()), "\r\n");
  WriteAllText("a\r\n", File(), ScratchFolder());
  EXPECT_EQ(Content(File()), "a\r\n\r\n");
}

TEST_F(WritingText, WritesTheCodePage) {
  WriteAllText("\u00FF\u20AC\u2660", File(), ScratchFolder());
  EXPECT_EQ(Content(File()), "\xFF\x80?\r\n");
}

TEST_F(WritingText, FailsAsReplaceFileDoes) {
  Put(File(), kOld);
  WatchedCalls calls(FailAll(Call::kWrite, ENOSPC));
  EXPECT_THROW(WriteAllText("AA (1), ", File(), ScratchFolder(), calls), RunTimeError);
  EXPECT_EQ(Content(File()), kOld);
}

TEST_F(ReplacingAFile, MakesTheFileOfTheBytesAsTheyAre) {
  const std::string bytes("\0\r\n\xFF\x1A", 5);
  ReplaceFile(File(), bytes, ScratchFolder());
  EXPECT_EQ(Content(File()), bytes);
  ExpectNoScratchFiles();
}

TEST_F(ReplacingAFile, NewContentTakesThePlaceOfTheOld) {
  Put(File(), std::string(100000, 'x'));
  ReplaceFile(File(), kNew, ScratchFolder());
  EXPECT_EQ(Content(File()), kNew);
  ReplaceFile(File(), "", ScratchFolder());
  EXPECT_EQ(Content(File()), "");
  EXPECT_EQ(Listing(Folder()), std::vector<std::string>{"Button.txt"});
  ExpectNoScratchFiles();
}

TEST_F(ReplacingAFile, ShortWritesAreJoined) {
  WatchedCalls calls({}, 1);
  ReplaceFile(File(), kNew, ScratchFolder(), calls);
  EXPECT_EQ(Content(File()), kNew);
}

// Names of the calls from the scratch file's birth to its taking the target's name.
TEST_F(ReplacingAFile, ContentReachesTheDiskBeforeItTakesTheName) {
  Put(File(), kOld);
  WatchedCalls calls;
  ReplaceFile(File(), kNew, ScratchFolder(), calls);

  std::vector<Call> order;
  bool scratch = false;
  for (const auto& entry : calls.Made()) {
    scratch = scratch || entry.Purpose == OpenFor::kCreating;
    if (scratch) order.push_back(entry.Call);
    if (entry.Call == Call::kRename) break;
  }
  EXPECT_THAT(
      order, testing::ElementsAre(Call::kOpen, Call::kSetMode, Call::kWrite, Call::kSync, Call::kClose, Call::kRename));

  // The new name itself must last too: the folder is synced after the rename.
  order.clear();
  bool renamed = false;
  for (const auto& entry : calls.Made()) {
    if (renamed) order.push_back(entry.Call);
    renamed = renamed || entry.Call == Call::kRename;
  }
  EXPECT_THAT(order, testing::ElementsAre(Call::kOpen, Call::kSync, Call::kClose));
}

TEST_F(ReplacingAFile, NeedsNoStandardInput) {
  Put(File(), kOld);
  WatchedCalls calls;
  {
    const ClosedInput closed;
    ReplaceFile(File(), kNew, ScratchFolder(), calls);
  }
  EXPECT_EQ(Content(File()), kNew);
  EXPECT_EQ(calls.Count(Call::kSync), 2) << "the file and its folder";
  EXPECT_EQ(calls.Count(Call::kClose), calls.Count(Call::kOpen));
}

TEST_F(ReplacingAFile, ScratchFileIsANewOneInItsFolder) {
  WatchedCalls calls;
  ReplaceFile(File(), kNew, ScratchFolder(), calls);
  ReplaceFile(File(), kNew, ScratchFolder(), calls);
  const std::vector<std::string> scratch = calls.ScratchFiles();
  ASSERT_EQ(scratch.size(), 2U);
  EXPECT_NE(scratch[0], scratch[1]);
  for (const std::string& path : scratch)
    EXPECT_EQ(fs::path(path).parent_path(), ScratchFolder());
}

TEST_F(ReplacingAFile, ScratchFolderThatCannotBeUsedGivesWayToTheTargetsOwn) {
  Put(File(), kOld);
  struct Case {
    const char* rule;
    WatchedCalls::Fault fault;
    fs::path scratch;
  };
  const auto failInScratchFolder = [this](int error) {
    return [this, error](const MadeCall& entry, int) -> std::optional<int> {
      const bool there = fs::path(entry.Path).parent_path() == ScratchFolder();
      return entry.Call == Call::kOpen && there ? std::optional(-error) : std::nullopt;
    };
  };
  const std::vector<Case> cases = {
      {"missing", [](const auto&, int) { return std::nullopt; }, Folder().parent_path() / "missing"},
      {"not to be written", failInScratchFolder(EACCES), ScratchFolder()},
      {"on a disk that is read-only", failInScratchFolder(EROFS), ScratchFolder()},
      {"on another disk",
       [this](const MadeCall& entry, int) {
         const bool apart = entry.Call == Call::kRename && fs::path(entry.Path).parent_path() == ScratchFolder();
         return apart ? std::optional(-EXDEV) : std::nullopt;
       },
       ScratchFolder()},
  };
  for (const Case& c : cases) {
    WatchedCalls calls(c.fault);
    EXPECT_FALSE(FailureOfReplacing(File(), c.scratch, calls)) << c.rule;
    EXPECT_EQ(Content(File()), kNew) << c.rule;
    ExpectNoScratchFiles();
    ASSERT_FALSE(calls.ScratchFiles().empty()) << c.rule;
    EXPECT_EQ(fs::path(calls.ScratchFiles().back()).parent_path(), Folder()) << c.rule;
    Put(File(), kOld);
  }
}

TEST_F(ReplacingAFile, WhatIsNoFileOrHasNoPlaceFailsAndStays) {
  struct Case {
    const char* rule;
    fs::path path;
    RunTimeFault fault;
  };
  for (const Case& c : std::vector<Case>{
           {"a folder", Folder(), RunTimeFault::kPathFileAccess},
           {"a file in a missing folder", Folder() / "missing" / "Button.txt", RunTimeFault::kPathNotFound},
           {"a name too long", Folder() / std::string(5000, 'x'), RunTimeFault::kBadFileName}}) {
    const auto error = FailureOfReplacing(c.path, ScratchFolder(), SystemFileCalls());
    ASSERT_TRUE(error) << c.rule;
    EXPECT_EQ(error->Fault(), c.fault) << c.rule;
    EXPECT_THAT(error->what(), testing::HasSubstr(c.path.filename().string())) << c.rule;
    ExpectNoScratchFiles();
  }
}

// The folder would allow the rename; the file's own permissions do not.
TEST_F(ReplacingAFile, FileProtectedByTheSystemIsNotReplaced) {
  Put(File(), kOld);
  fs::permissions(File(), fs::perms::owner_read | fs::perms::others_read);
  for (const fs::path& folder : {File().parent_path(), ScratchFolder()})
    fs::permissions(folder, fs::perms::all);
  const auto error = [this] {
    const OrdinaryUser user;
    return Replace(SystemFileCalls());
  }();
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Fault(), RunTimeFault::kPermissionDenied);
  EXPECT_THAT(error->what(), testing::HasSubstr("Button.txt"));
  EXPECT_EQ(Content(File()), kOld);
  ExpectNoScratchFiles();
}

// Each call in turn fails once, until a run makes too few calls for it. Writes are short.
TEST_F(ReplacingAFile, FailureOfAnyCallLeavesTheOldOrTheNewContentWhole) {
  for (const int failure : {ENOSPC, EACCES, EIO, EINTR, EROFS}) {
    for (const std::optional<std::string>& old : {std::optional(kOld), std::optional<std::string>()}) {
      bool reached = true;
      for (int number = 1; reached; ++number) {
        SCOPED_TRACE("error " + std::to_string(failure) + ", call " + std::to_string(number));
        fs::remove(File());
        if (old) Put(File(), *old);
        WatchedCalls calls(FailOnce(number, failure), 5);
        const auto error = Replace(calls);
        reached = calls.Made().size() >= static_cast<std::size_t>(number);
        ExpectNoScratchFiles();
        if (!error) {
          EXPECT_EQ(Content(File()), kNew);
          continue;
        }
        EXPECT_NE(failure, EINTR) << "an interruption is no failure";
        EXPECT_EQ(fs::exists(File()), old.has_value());
        EXPECT_EQ(Content(File()), old.value_or(""));
        EXPECT_EQ(error->Fault(), RunTimeFaultOf(failure));
        EXPECT_THAT(error->what(), testing::HasSubstr(File().string()));
      }
    }
  }
}

TEST_F(ReplacingAFile, LastingFailureLeavesTheOldContentAndNoScratchFile) {
  struct Case {
    const char* rule;
    Call call;
    int error;
    RunTimeFault fault;
  };
  const std::vector<Case> cases = {
      {"no file can be opened", Call::kOpen, EACCES, RunTimeFault::kPermissionDenied},
      {"the disk is full", Call::kWrite, ENOSPC, RunTimeFault::kDiskFull},
      {"the disk takes nothing", Call::kWrite, 0, RunTimeFault::kDeviceError},
      {"the disk does not sync", Call::kSync, EIO, RunTimeFault::kDeviceError},
      {"the disk is full when the file is closed", Call::kClose, ENOSPC, RunTimeFault::kDiskFull},
      {"every folder is on another disk", Call::kRename, EXDEV, RunTimeFault::kDeviceError},
  };
  for (const Case& c : cases) {
    Put(File(), kOld);
    WatchedCalls calls(FailAll(c.call, c.error));
    const auto error = Replace(calls);
    ASSERT_TRUE(error) << c.rule;
    EXPECT_EQ(error->Fault(), c.fault) << c.rule;
    EXPECT_THAT(error->what(), testing::HasSubstr("Button.txt")) << c.rule;
    EXPECT_EQ(Content(File()), kOld) << c.rule;
    ExpectNoScratchFiles();
  }
}

TEST_F(WritingInPlace, FullDiskThatTakesNoCopyLeavesTheOldContent) {
  WatchedCalls calls([this](const MadeCall& entry, int) -> std::optional<int> {
    if (entry.Purpose != OpenFor::kCreating) return std::nullopt;
    return fs::path(entry.Path).parent_path() == ScratchFolder() ? -ENOSPC : -EACCES;
  });
  const auto error = Replace(calls);
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Fault(), RunTimeFault::kDiskFull);
  EXPECT_EQ(Content(File()), kOld);
}

TEST_F(WritingInPlace, EachRefusalOfTheNameLeadsToIt) {
  for (const int refusal : {EACCES, EPERM, EROFS, EBUSY}) {
    Put(File(), kOld);
    WatchedCalls calls(FailAll(Call::kRename, refusal));
    EXPECT_FALSE(Replace(calls)) << refusal;
    EXPECT_EQ(Content(File()), kNew) << refusal;
    ExpectNoScratchFiles();
  }
}

TEST_F(WritingInPlace, CopyIsKeptUntilTheFileIsOnTheDisk) {
  WatchedCalls calls(FailAll(Call::kRename, EACCES));
  EXPECT_FALSE(Replace(calls));
  std::vector<Call> order;  // from the opening of the file itself on
  bool opened = false;
  for (const auto& entry : calls.Made()) {
    opened = opened || entry.Purpose == OpenFor::kRewriting;
    if (opened) order.push_back(entry.Call);
  }
  EXPECT_THAT(order, testing::ElementsAre(Call::kOpen, Call::kWrite, Call::kSync, Call::kClose, Call::kUnlink));
  EXPECT_THAT(calls.ScratchFiles().back(), testing::EndsWith(".copy")) << "a name that no start clears away";
}

TEST_F(WritingInPlace, FailureOfAnyCallLeavesTheOldContentOrACopyOfTheNew) {
  int copies = 0;
  bool reached = true;
  for (int number = 1; reached; ++number) {
    Put(File(), kOld);
    WatchedCalls calls([number](const MadeCall& entry, int made) -> std::optional<int> {
      if (entry.Call == Call::kRename) return -EACCES;
      return made == number ? std::optional(-ENOSPC) : std::nullopt;
    });
    const auto error = Replace(calls);
    reached = calls.Made().size() >= static_cast<std::size_t>(number);
    SCOPED_TRACE("call " + std::to_string(number));
    if (!error) {
      EXPECT_EQ(Content(File()), kNew);
    } else if (Content(File()) != kOld) {
      const std::string copy = calls.ScratchFiles().back();
      EXPECT_EQ(Content(copy), kNew);
      EXPECT_EQ(error->Fault(), RunTimeFault::kDiskFull);
      EXPECT_THAT(error->what(), testing::HasSubstr("the new content is in " + copy));
      ++copies;
    }
    for (const std::string& name : Listing(ScratchFolder()))
      fs::remove(ScratchFolder() / name);
  }
  EXPECT_GE(copies, 3) << "writing, reaching the disk and closing can each fail";
}

TEST_F(ReplacingAFile, NameThatAKilledProcessLeftIsPassedOver) {
  WatchedCalls calls;
  ReplaceFile(File(), kNew, ScratchFolder(), calls);
  const std::string used = fs::path(calls.ScratchFiles().at(0)).filename().string();
  const std::size_t numberStart = used.rfind('-') + 1;
  const unsigned long next = std::stoul(used.substr(numberStart)) + 1;
  std::vector<std::string> left;
  for (unsigned long number = next; number < next + 3; ++number) {
    left.push_back(used.substr(0, numberStart) + std::to_string(number) + ".tmp");
    Put(ScratchFolder() / left.back(), "left");
  }

  WatchedCalls later;
  ReplaceFile(File(), kOld, ScratchFolder(), later);
  EXPECT_EQ(Content(File()), kOld);
  EXPECT_EQ(fs::path(later.ScratchFiles().back()).parent_path(), ScratchFolder());
  for (const std::string& name : left)
    EXPECT_EQ(Content(ScratchFolder() / name), "left");
}

TEST_F(ReplacingAFile, FolderFullOfScratchNamesEndsTheSearch) {
  WatchedCalls calls([](const MadeCall& entry, int) {
    return entry.Purpose == OpenFor::kCreating ? std::optional(-EEXIST) : std::nullopt;
  });
  EXPECT_TRUE(Replace(calls));
  EXPECT_EQ(calls.ScratchFiles().size(), 200U) << "a hundred in the scratch folder and as many beside the file";
}

TEST_F(Files, PathTooLongIsOneThatTheSystemRefusesForItsLength) {
  EXPECT_FALSE(IsPathTooLong(File()));
  EXPECT_FALSE(IsPathTooLong(Folder() / std::string(255, 'x')));
  EXPECT_TRUE(IsPathTooLong(Folder() / std::string(256, 'x')));
  WatchedCalls interrupted(FailOnce(1, EINTR));
  EXPECT_TRUE(IsPathTooLong(Folder() / std::string(256, 'x'), interrupted));
  WatchedCalls smaller(FailAll(Call::kOpen, ENAMETOOLONG));
  EXPECT_TRUE(IsPathTooLong(File(), smaller)) << "a file system with shorter names";
}

using RemovingStaleScratchFiles = Files;

TEST_F(RemovingStaleScratchFiles, OnlyOldFilesWithSuchANameGo) {
  struct Case {
    const char* name;
    int minutes;
    bool goes;
  };
  constexpr std::array kCases = {
      Case{".quillon-1-0.tmp", 61, true},        Case{".quillon-4194304-123.tmp", 6000, true},
      Case{".quillon-2-0.tmp", 59, false},  // may be in use
      Case{".quillon-3-0.tmp", -6000, false},  // a clock that was put back
      Case{"quillon-1-0.tmp", 6000, false},      Case{".quillon-notes.tmp", 6000, false},
      Case{".quillon-1-0.tmp.txt", 6000, false}, Case{".quillon-1-0x.tmp", 6000, false},
      Case{".quillon-1-0", 6000, false},         Case{"settings.ini", 6000, false},
      Case{".quillon-1-0.copy", 6000, false},  // may be all that is whole
  };
  const auto now = fs::file_time_type::clock::now();
  for (const Case& c : kCases) {
    Put(Folder() / c.name, kOld);
    fs::last_write_time(Folder() / c.name, now - std::chrono::minutes(c.minutes));
  }

  RemoveStaleScratchFiles(Folder());
  for (const Case& c : kCases)
    EXPECT_EQ(fs::exists(Folder() / c.name), !c.goes) << c.name << ", " << c.minutes << " minutes";
}

TEST_F(RemovingStaleScratchFiles, NeverFails) {
  RemoveStaleScratchFiles(Folder() / "missing");
  const fs::path scratch = Folder() / ".quillon-1-0.tmp";
  Put(scratch, kOld);
  fs::last_write_time(scratch, fs::file_time_type::clock::now() - std::chrono::hours(2));
  WatchedCalls refusing(FailAll(Call::kUnlink, EACCES));
  RemoveStaleScratchFiles(Folder(), refusing);
  EXPECT_TRUE(fs::exists(scratch));
  WatchedCalls interrupted(FailOnce(1, EINTR));
  RemoveStaleScratchFiles(Folder(), interrupted);
  EXPECT_FALSE(fs::exists(scratch)) << "an interruption is no failure";
}

using DeletingAFile = Files;

std::optional<RunTimeError> FailureOfDeleting(const fs::path& path, FileCalls& calls = SystemFileCalls()) {
  try {
    DeleteFile(path, calls);
  } catch (const RunTimeError& error) {
    return error;
  }
  return std::nullopt;
}

TEST_F(DeletingAFile, ThatFileGoesAndNoOther) {
  Put(Folder() / "Button.txt", kOld);
  Put(Folder() / "Button.txt.bak", kOld);
  DeleteFile(Folder() / "Button.txt");
  EXPECT_THAT(Listing(Folder()), testing::ElementsAre("Button.txt.bak"));
}

TEST_F(DeletingAFile, FailureNamesTheFileAndTheReason) {
  struct Case {
    fs::path path;
    RunTimeFault fault;
    const char* reason;
  };
  for (const Case& c :
       std::vector<Case>{{"Button.txt", RunTimeFault::kFileNotFound, "Button.txt: No such file or directory"},
                         {PathOf("Käse.txt"), RunTimeFault::kFileNotFound, "Käse.txt: No such file or directory"},
                         {"missing/Button.txt", RunTimeFault::kPathNotFound, "Button.txt"},
                         {"", RunTimeFault::kPathFileAccess, "Ranges"}}) {
    const auto error = FailureOfDeleting(Folder() / c.path);
    ASSERT_TRUE(error) << c.reason;
    EXPECT_EQ(error->Fault(), c.fault) << c.reason;
    EXPECT_THAT(error->what(), testing::HasSubstr(c.reason));
  }
  Put(File(), kOld);
  WatchedCalls calls(FailAll(Call::kUnlink, EACCES));
  const auto forbidden = FailureOfDeleting(File(), calls);
  ASSERT_TRUE(forbidden);
  EXPECT_EQ(forbidden->Fault(), RunTimeFault::kPermissionDenied);
  EXPECT_EQ(Content(File()), kOld);
  WatchedCalls interrupted(FailOnce(1, EINTR));
  EXPECT_FALSE(FailureOfDeleting(File(), interrupted)) << "an interruption is no failure";
  EXPECT_FALSE(fs::exists(File()));
}

}  // namespace
}  // namespace quillon
