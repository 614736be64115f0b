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
#include <utility>
#include <vector>

#include "support/run_time_error.h"
#include "testing/closed_input.h"
#include "testing/fault_of.h"
#include "testing/file_calls.h"
#include "testing/ordinary_user.h"
#include "testing/saved_files.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

using ReadingBytes = Files;
using ReplacingAFile = Files;

TEST_F(ReadingBytes, GivesEveryByteAsItIs) {
  std::string bytes;
  for (int i = 0; i < 3 * 4096 + 17; ++i)  // several buffers plus a remainder
    bytes += static_cast<char>(i % 251);
  Put(File(), bytes);
  EXPECT_EQ(ReadAllBytes(File()), bytes);
}

TEST_F(ReadingBytes, WhatIsThereButUnreadableIsToldFromWhatIsEmpty) {
  constexpr std::uintmax_t kLimit = std::uintmax_t{64} << 20U;
  struct Case {
    const char* rule;
    fs::path path;
    std::optional<std::string> bytes;
  };
  Put(File(), "");
  Put(Folder() / "long.txt", kOld);
  fs::resize_file(Folder() / "long.txt", kLimit + 1);
  for (const Case& c : std::vector<Case>{{"a missing file", Folder() / "missing.txt", ""},
                                         {"an empty file", File(), ""},
                                         {"a folder", Folder(), std::nullopt},
                                         {"a name too long", Folder() / std::string(5000, 'x'), std::nullopt},
                                         {"a file beyond the limit", Folder() / "long.txt", std::nullopt}}) {
    EXPECT_EQ(TryReadAllBytes(c.path), c.bytes) << c.rule;
    EXPECT_EQ(ReadAllBytes(c.path), "") << c.rule;
  }
  fs::resize_file(Folder() / "long.txt", kLimit);
  EXPECT_EQ(ReadAllBytes(Folder() / "long.txt").size(), kLimit);
  Put(File(), kOld);
  for (const Call call : {Call::kOpen, Call::kRead}) {
    WatchedCalls calls(FailAll(call, EACCES));
    EXPECT_EQ(TryReadAllBytes(File(), calls), std::nullopt) << "call " << static_cast<int>(call);
  }
}

// The first file opened then has the number 0.
TEST_F(Files, NeedNoStandardInput) {
  for (const WatchedCalls::Fault& fault : {WatchedCalls::Fault(), FailAll(Call::kRename, EACCES)}) {
    Put(File(), kOld);
    WatchedCalls calls(fault);
    {
      const ClosedInput closed;
      EXPECT_EQ(ReadAllBytes(File(), calls), kOld);
      ReplaceFile(File(), kNew, ScratchFolder(), calls);
    }
    EXPECT_EQ(BytesOf(File()), kNew);
    EXPECT_EQ(calls.Count(Call::kSync), fault ? 4 : 2)
        << "the file and its folder, in place the copy and its folder too";
    EXPECT_EQ(calls.Count(Call::kClose), calls.Count(Call::kOpen));
    ExpectNoScratchFiles();
  }
}

TEST_F(ReadingBytes, ShortReadsAreJoined) {
  Put(File(), kOld);
  WatchedCalls calls({}, 1);
  EXPECT_EQ(ReadAllBytes(File(), calls), kOld);
}

TEST_F(ReadingBytes, InterruptedCallIsMadeAgain) {
  Put(File(), kOld);
  for (int number = 1; number <= 5; ++number) {
    WatchedCalls calls(FailOnce(number, EINTR));
    EXPECT_EQ(ReadAllBytes(File(), calls), kOld) << "call " << number;
  }
}

TEST_F(Files, OfTextAreInTheCodePageAndWrittenWithALineEnd) {
  WriteAllText("\u00FF\u20AC\u2660 \r\n", File(), ScratchFolder());
  EXPECT_EQ(BytesOf(File()), "\xFF\x80? \r\n\r\n");
  EXPECT_EQ(ReadAllText(File()), "\u00FF\u20AC? \r\n\r\n");
}

TEST_F(ReplacingAFile, NewContentTakesThePlaceOfTheOld) {
  for (const std::string& bytes : {std::string(100000, 'x'), std::string("\0\r\n\xFF\x1A", 5), std::string()}) {
    ReplaceFile(File(), bytes, ScratchFolder());
    EXPECT_EQ(BytesOf(File()), bytes);
  }
  EXPECT_EQ(Listing(Folder()), std::vector<std::string>{"Button.txt"});
  ExpectNoScratchFiles();
}

// The calls from the first opening for that purpose onwards.
std::vector<Call> CallsFrom(const WatchedCalls& calls, OpenFor purpose) {
  std::vector<Call> order;
  for (const MadeCall& entry : calls.Made()) {
    if (!order.empty() || entry.Purpose == purpose) order.push_back(entry.Call);
  }
  return order;
}

TEST_F(ReplacingAFile, ContentReachesTheDiskBeforeItTakesTheName) {
  Put(File(), kOld);
  WatchedCalls calls;
  ReplaceFile(File(), kNew, ScratchFolder(), calls);

  // The new name must survive a power failure too: the folder is synced after the rename.
  EXPECT_THAT(CallsFrom(calls, OpenFor::kCreating),
              testing::ElementsAre(Call::kOpen, Call::kSetMode, Call::kWrite, Call::kSync, Call::kClose, Call::kRename,
                                   Call::kOpen, Call::kSync, Call::kClose));
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
    EXPECT_EQ(BytesOf(File()), kNew) << c.rule;
    ExpectNoScratchFiles();
    ASSERT_FALSE(calls.ScratchFiles().empty()) << c.rule;
    EXPECT_EQ(fs::path(calls.ScratchFiles().back()).parent_path(), Folder()) << c.rule;
    Put(File(), kOld);
  }
}

TEST_F(ReplacingAFile, WhatIsNoFileOrHasNoPlaceFailsAndStays) {
  for (const auto& [path, fault] : std::vector<std::pair<fs::path, RunTimeFault>>{
           {Folder(), RunTimeFault::kPathFileAccess},
           {Folder() / "missing" / "Button.txt", RunTimeFault::kPathNotFound},
           {Folder() / std::string(5000, 'x'), RunTimeFault::kBadFileName}}) {
    const auto error = FailureOfReplacing(path, ScratchFolder(), SystemFileCalls());
    ASSERT_TRUE(error) << path;
    EXPECT_EQ(error->Fault(), fault) << path;
    EXPECT_THAT(error->what(), testing::HasSubstr(path.filename().string()));
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
  EXPECT_EQ(BytesOf(File()), kOld);
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
          EXPECT_EQ(BytesOf(File()), kNew);
          continue;
        }
        EXPECT_NE(failure, EINTR) << "an interruption is no failure";
        EXPECT_EQ(fs::exists(File()), old.has_value());
        EXPECT_EQ(BytesOf(File()), old.value_or(""));
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
      {"the disk takes nothing", Call::kWrite, 0, RunTimeFault::kDeviceError},
      {"every folder is on another disk", Call::kRename, EXDEV, RunTimeFault::kDeviceError},
  };
  for (const Case& c : cases) {
    Put(File(), kOld);
    WatchedCalls calls(FailAll(c.call, c.error));
    const auto error = Replace(calls);
    ASSERT_TRUE(error) << c.rule;
    EXPECT_EQ(error->Fault(), c.fault) << c.rule;
    EXPECT_THAT(error->what(), testing::HasSubstr("Button.txt")) << c.rule;
    EXPECT_EQ(BytesOf(File()), kOld) << c.rule;
    ExpectNoScratchFiles();
  }
}

TEST_F(WritingInPlace, FullDiskThatTakesNoCopyLeavesTheOldContent) {
  Put(File(), kOld);
  WatchedCalls calls([this](const MadeCall& entry, int) -> std::optional<int> {
    if (entry.Purpose != OpenFor::kCreating) return std::nullopt;
    return fs::path(entry.Path).parent_path() == ScratchFolder() ? -ENOSPC : -EACCES;
  });
  const auto error = Replace(calls);
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Fault(), RunTimeFault::kDiskFull);
  EXPECT_EQ(BytesOf(File()), kOld);
}

TEST_F(WritingInPlace, EachRefusalOfTheNameLeadsToIt) {
  for (const int refusal : {EACCES, EPERM, EROFS, EBUSY}) {
    Put(File(), kOld);
    WatchedCalls calls(FailAll(Call::kRename, refusal));
    EXPECT_FALSE(Replace(calls)) << refusal;
    EXPECT_EQ(BytesOf(File()), kNew) << refusal;
    ExpectNoScratchFiles();
  }
}

TEST_F(WritingInPlace, CopyIsKeptUntilTheFileIsOnTheDisk) {
  WatchedCalls calls(FailAll(Call::kRename, EACCES));
  EXPECT_FALSE(Replace(calls));
  EXPECT_THAT(CallsFrom(calls, OpenFor::kRewriting),
              testing::ElementsAre(Call::kOpen, Call::kWrite, Call::kSync, Call::kClose, Call::kUnlink));
  EXPECT_THAT(calls.ScratchFiles().back(), testing::EndsWith(".copy")) << "a name that no start deletes";
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
      EXPECT_EQ(BytesOf(File()), kNew);
    } else if (BytesOf(File()) != kOld) {
      const std::string copy = calls.ScratchFiles().back();
      EXPECT_EQ(BytesOf(copy), kNew);
      EXPECT_EQ(error->Fault(), RunTimeFault::kDiskFull);
      EXPECT_THAT(error->what(), testing::HasSubstr("the new content is in " + copy));
      ++copies;
    }
    for (const std::string& name : Listing(ScratchFolder()))
      fs::remove(ScratchFolder() / name);
  }
  EXPECT_GE(copies, 3) << "writing, syncing and closing can each fail";
}

TEST_F(ReplacingAFile, NameThatAKilledProcessLeftIsPassedOver) {
  WatchedCalls calls;
  ReplaceFile(File(), kNew, ScratchFolder(), calls);
  const std::string used = calls.ScratchFiles().at(0);
  const std::size_t numberStart = used.rfind('-') + 1;
  const unsigned long next = std::stoul(used.substr(numberStart)) + 1;
  const std::string left = used.substr(0, numberStart) + std::to_string(next) + ".tmp";
  Put(left, "left");

  WatchedCalls later;
  ReplaceFile(File(), kOld, ScratchFolder(), later);
  EXPECT_EQ(BytesOf(File()), kOld);
  EXPECT_EQ(fs::path(later.ScratchFiles().back()).parent_path(), ScratchFolder());
  EXPECT_EQ(BytesOf(left), "left");
}

TEST_F(ReplacingAFile, FolderFullOfScratchNamesEndsTheSearch) {
  WatchedCalls calls([](const MadeCall& entry, int) {
    return entry.Purpose == OpenFor::kCreating ? std::optional(-EEXIST) : std::nullopt;
  });
  EXPECT_TRUE(Replace(calls));
  EXPECT_EQ(calls.ScratchFiles().size(), 200U) << "a hundred in the scratch folder and as many next to the file";
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
      Case{".quillon-3-0.tmp", -6000, false},  // a clock that was set back
      Case{"quillon-1-0.tmp", 6000, false},      Case{".quillon-notes.tmp", 6000, false},
      Case{".quillon-1-0.tmp.txt", 6000, false}, Case{".quillon-1-0x.tmp", 6000, false},
      Case{".quillon-1-0", 6000, false},         Case{"settings.ini", 6000, false},
      Case{".quillon-1-0.copy", 6000, false},  // may be the only whole copy
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

TEST_F(DeletingAFile, FailureNamesTheFileAndTheReason) {
  const auto failureOf = [&](const fs::path& path, FileCalls& calls = SystemFileCalls()) {
    return FaultTextOf([&] { DeleteFile(Folder() / path, calls); });
  };
  EXPECT_THAT(failureOf("Button.txt"), testing::HasSubstr("'53': File not found"));
  EXPECT_THAT(failureOf(PathOf("Käse.txt")), testing::HasSubstr("Käse.txt: No such file or directory"));
  EXPECT_THAT(failureOf("missing/Button.txt"), testing::HasSubstr("'76': Path not found"));
  EXPECT_THAT(failureOf(""), testing::HasSubstr("'75': Path/File access error"));
  Put(File(), kOld);
  WatchedCalls calls(FailAll(Call::kUnlink, EACCES));
  EXPECT_THAT(failureOf("Button.txt", calls), testing::HasSubstr("'70': Permission denied"));
  EXPECT_EQ(BytesOf(File()), kOld);
  WatchedCalls interrupted(FailOnce(1, EINTR));
  EXPECT_EQ(failureOf("Button.txt", interrupted), "") << "an interruption is no failure";
  EXPECT_FALSE(fs::exists(File()));
}

}  // namespace
}  // namespace quillon
