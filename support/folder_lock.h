#pragma once

// One at a time in a folder. Two copies of the program may run from the same folder, and a file that one of them reads,
// changes and writes back would lose what the other has written in between.

#include <filesystem>

#include "support/files.h"

namespace quillon {

/// Holds the lock of a folder from its making to its end. The lock binds only those who ask for it. It is the folder
/// itself that is locked, so nothing is left behind, and a process that dies releases it.
///
/// Making one waits while somebody else holds the lock, but no longer than a second: a copy of the program that hangs
/// must not hang the others. Then, and where the folder cannot be locked, things go on without a lock; that is no worse
/// than it would be without locks. Never fails.
class FolderLock {
 public:
  explicit FolderLock(const std::filesystem::path& folder, FileCalls& calls = SystemFileCalls());
  FolderLock(const FolderLock&) = delete;
  FolderLock(FolderLock&&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;
  FolderLock& operator=(FolderLock&&) = delete;
  ~FolderLock();

  /// Whether the lock was acquired.
  [[nodiscard]] bool Held() const { return held_; }

 private:
  FileCalls& calls_;
  int folder_ = -1;
  bool held_ = false;
};

}  // namespace quillon
