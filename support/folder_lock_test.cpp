#include "support/folder_lock.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>

#include "testing/file_calls.h"
#include "testing/temporary_folder.h"

namespace quillon {
namespace {

using std::chrono::steady_clock;

class LockingAFolder : public testing::Test, public TemporaryFolder {};

TEST_F(LockingAFolder, OneHasItAtATime) {
  constexpr int kTurns = 200;
  int inside = 0;
  std::atomic<bool> met = false;
  const auto takeTurns = [&] {
    for (int turn = 0; turn < kTurns; ++turn) {
      const FolderLock lock(Path());
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

TEST_F(LockingAFolder, IsOverWhenItsHolderIs) {
  for (int turn = 0; turn < 2; ++turn)
    EXPECT_TRUE(FolderLock(Path()).Held());
  EXPECT_TRUE(std::filesystem::is_empty(Path()));
  EXPECT_FALSE(FolderLock(Path() / "missing").Held());
}

TEST_F(LockingAFolder, WaitForOneWhoHangsHasAnEnd) {
  const FolderLock hanging(Path());
  const auto start = steady_clock::now();
  const FolderLock lock(Path());
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
    const FolderLock lock(Path(), calls);
    EXPECT_EQ(lock.Held(), c.held) << c.rule;
  }
}

}  // namespace
}  // namespace quillon
