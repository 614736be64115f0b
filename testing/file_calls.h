#pragma once

// The system's own file calls, for a test to watch or to make fail.

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <sys/types.h>

#include "support/files.h"

namespace quillon {

/// The system's own calls under another name. A test derives from it and overrides what it watches or makes fail.
class PassingCalls : public FileCalls {
 public:
  int Open(const std::string& path, int flags, mode_t mode) override { return system_.Open(path, flags, mode); }
  ssize_t Read(int file, std::span<char> buffer) override { return system_.Read(file, buffer); }
  ssize_t Write(int file, std::string_view bytes) override { return system_.Write(file, bytes); }
  int Sync(int file) override { return system_.Sync(file); }
  int Close(int file) override { return system_.Close(file); }
  int Rename(const std::string& from, const std::string& to) override { return system_.Rename(from, to); }
  int Unlink(const std::string& path) override { return system_.Unlink(path); }
  int MakeFolder(const std::string& path) override { return system_.MakeFolder(path); }
  int Mode(int file) override { return system_.Mode(file); }
  int SetMode(int file, mode_t mode) override { return system_.SetMode(file, mode); }
  int TryLock(int file) override { return system_.TryLock(file); }

 private:
  FileCalls& system_ = SystemFileCalls();
};

/// Calls of which one fails, or all from one on. Counting up through the calls of an action until none fails any more
/// makes each of them fail in turn.
class FailingCalls final : public PassingCalls {
 public:
  enum class Lasting { kOnce, kForGood };

  /// Lets `callsUntilFailure` calls through. A call that fails returns `error`, negated; writes and reads that do not
  /// are cut to `largestPiece`.
  explicit FailingCalls(int callsUntilFailure, int error = EIO, Lasting lasting = Lasting::kOnce,
                        std::size_t largestPiece = std::string_view::npos)
      : left_(callsUntilFailure), error_(error), lasting_(lasting), largestPiece_(largestPiece) {}

  [[nodiscard]] bool HasFailed() const { return left_ < 0; }

  int Open(const std::string& path, int flags, mode_t mode) override {
    return Fails() ? -error_ : PassingCalls::Open(path, flags, mode);
  }
  ssize_t Read(int file, std::span<char> buffer) override {
    return Fails() ? -error_ : PassingCalls::Read(file, buffer.first(std::min(buffer.size(), largestPiece_)));
  }
  ssize_t Write(int file, std::string_view bytes) override {
    return Fails() ? -error_ : PassingCalls::Write(file, bytes.substr(0, largestPiece_));
  }
  int Sync(int file) override { return Fails() ? -error_ : PassingCalls::Sync(file); }
  /// As with the system's own, the file is closed even so.
  int Close(int file) override {
    const int closed = PassingCalls::Close(file);
    return Fails() ? -error_ : closed;
  }
  int Rename(const std::string& from, const std::string& to) override {
    return Fails() ? -error_ : PassingCalls::Rename(from, to);
  }
  int Unlink(const std::string& path) override { return Fails() ? -error_ : PassingCalls::Unlink(path); }
  int MakeFolder(const std::string& path) override { return Fails() ? -error_ : PassingCalls::MakeFolder(path); }
  int Mode(int file) override { return Fails() ? -error_ : PassingCalls::Mode(file); }
  int SetMode(int file, mode_t mode) override { return Fails() ? -error_ : PassingCalls::SetMode(file, mode); }
  int TryLock(int file) override { return Fails() ? -error_ : PassingCalls::TryLock(file); }

 private:
  bool Fails() {
    left_ = std::max(left_ - 1, -2);
    return lasting_ == Lasting::kForGood ? left_ < 0 : left_ == -1;
  }

  int left_;
  int error_;
  Lasting lasting_;
  std::size_t largestPiece_;
};

}  // namespace quillon
