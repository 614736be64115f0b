#include "support/folder_lock.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>

#include "testing/closed_input.h"
#include "testing/file_calls.h"
#include "testing/temporary_folder.h"

namespace quillon {
namespace {

using std::chrono::steady_clock;

class LockingAFolder : public testing::Test {
 protected:
  [[nodiscard]] const std::filesystem::path& Folder() const { return folder_.Path(); }

 private:
  TemporaryFolder folder_;
};

TEST_F(LockingAFolder, OneHasItAtATime) {
  constexpr int kTurns = 200;
  int inside = 0;
  std::atomic<bool> met = false;
  const auto takeTurns = [&] {
    for (int turn = 0; turn < kTurns; ++turn) {
      const FolderLock lock(Folder());
      if (!lock.Held()) continue;
      const int before = ++inside;
      std::this_thread::yield();
      if (before != 1) met = true;
      --inside;
    }
  };
  std::thread other(takeTurns);
  takeTurns();
  other.join();
  EXPECT_FALSE(met);
}

TEST_F(LockingAFolder, LeavesNothingInTheFolder) {
  { const FolderLock lock(Folder()); }
  EXPECT_TRUE(std::filesystem::is_empty(Folder()));
}

TEST_F(LockingAFolder, NeedsNoStandardInput) {
  const ClosedInput closed;
  const FolderLock lock(Folder());
  EXPECT_TRUE(lock.Held());
}

TEST_F(LockingAFolder, IsOverWhenItsHolderIs) {
  {
    const FolderLock first(Folder());
    EXPECT_TRUE(first.Held());
  }
  const FolderLock second(Folder());
  EXPECT_TRUE(second.Held());
}

TEST_F(LockingAFolder, WaitForOneWhoHangsHasAnEnd) {
  const FolderLock hanging(Folder());
  const auto start = steady_clock::now();
  const FolderLock lock(Folder());
  EXPECT_FALSE(lock.Held());
  EXPECT_LT(steady_clock::now() - start, std::chrono::seconds(10));
}

TEST_F(LockingAFolder, IsTriedAgainWhereThatHelps) {
  struct Case {
    const char* rule;
    int error;
    bool held;
  };
  constexpr std::array kCases = {
      Case{"somebody else has it", EWOULDBLOCK, true},
      Case{"interrupted", EINTR, true},
      Case{"a disk without locks", ENOLCK, false},
      Case{"a disk that wants more than a look", EBADF, false},
  };
  for (const Case& c : kCases) {
    WatchedCalls calls(FailAll(Call::kTryLock, c.error, 3));
    const FolderLock lock(Folder(), calls);
    EXPECT_EQ(lock.Held(), c.held) << c.rule;
  }
}

TEST_F(LockingAFolder, FolderThatIsNotThereHasNone) {
  const FolderLock lock(Folder() / "missing");
  EXPECT_FALSE(lock.Held());
}

}  // namespace
}  // namespace quillon
