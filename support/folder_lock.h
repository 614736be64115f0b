#pragma once

// A lock on a folder. Two copies of the program may run from the same folder, and when one of them reads, changes and
// rewrites a file, it would lose what the other has written in between.

#include <filesystem>

#include "support/files.h"

namespace quillon {

/// Locks a folder for the lifetime of the object. The lock is advisory. The folder itself is locked, so no lock file is
/// left over, and a process that dies releases the lock.
///
/// The constructor waits at most a second for another holder: a copy of the program that hangs must not hang the
/// others. After that, or if the folder cannot be locked, the object holds no lock. Never fails.
class FolderLock {
 public:
  explicit FolderLock(const std::filesystem::path& folder, FileCalls& calls = SystemFileCalls());
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;
  ~FolderLock();

  /// Whether the lock was acquired.
  [[nodiscard]] bool Held() const { return held_; }

 private:
  FileCalls& calls_;
  int folder_ = -1;
  bool held_ = false;
};

}  // namespace quillon
