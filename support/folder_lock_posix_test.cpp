#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/folder_lock.h"
#include "testing/closed_input.h"
#include "testing/temporary_folder.h"

namespace quillon {
namespace {

TEST(LockOfAFolder, GivesBackTheNumberOfAMissingStandardInput) {
  const TemporaryFolder folder;
  const ClosedInput closed;
  EXPECT_TRUE(FolderLock(folder.Path()).Held());
  EXPECT_EQ(::fcntl(STDIN_FILENO, F_GETFD), -1);
}

TEST(LockOfAFolder, IsOverWhenItsProcessDies) {
  const TemporaryFolder folder;
  const pid_t child = ::fork();
  if (child == 0) {
    const FolderLock lock(folder.Path());
    ::_exit(lock.Held() ? 0 : 1);
  }
  int status = -1;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  EXPECT_TRUE(FolderLock(folder.Path()).Held());
}

}  // namespace
}  // namespace quillon
