#include "support/folder_lock.h"

#include <cerrno>
#include <chrono>
#include <thread>

#include "support/uninterrupted.h"

namespace quillon {
namespace {

constexpr std::chrono::seconds kLongestWait{1};
constexpr std::chrono::milliseconds kPause{2};

int OpenFolder(const std::filesystem::path& folder, FileCalls& calls) {
  return Uninterrupted([&] { return calls.Open(folder.string(), OpenFor::kListing, 0); });
}

// Polls, because a blocking wait has no time limit.
bool WaitForLock(int folder, FileCalls& calls) {
  const auto end = std::chrono::steady_clock::now() + kLongestWait;
  int result = calls.TryLock(folder);
  while ((result == -EWOULDBLOCK || result == -EINTR) && std::chrono::steady_clock::now() < end) {
    std::this_thread::sleep_for(kPause);
    result = calls.TryLock(folder);
  }
  return result >= 0;
}

}  // namespace

FolderLock::FolderLock(const std::filesystem::path& folder, FileCalls& calls)
    : calls_(calls), folder_(OpenFolder(folder, calls)), held_(folder_ >= 0 && WaitForLock(folder_, calls)) {}

FolderLock::~FolderLock() {
  if (folder_ >= 0) calls_.Close(folder_);
}

}  // namespace quillon
