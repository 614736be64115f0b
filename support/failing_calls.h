#pragma once

// For tests: the system's own calls, of which one fails, or all from one on. Counting up through the calls of an action
// until none fails any more makes each of them fail in turn.

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <string>
#include <string_view>

#include "support/files.h"

namespace quillon {

class FailingCalls final : public FileCalls {
 public:
  enum class Lasting { kOnce, kForGood };

  /// Lets `callsUntilFailure` calls through. A call that fails gives back `error`, negated; writes and reads that do
  /// not are cut to `largestPiece`.
  explicit FailingCalls(int callsUntilFailure, int error = EIO, Lasting lasting = Lasting::kOnce,
                        std::size_t largestPiece = std::string_view::npos)
      : left_(callsUntilFailure), error_(error), lasting_(lasting), largestPiece_(largestPiece) {}

  [[nodiscard]] bool HasFailed() const { return left_ < 0; }

  int Open(const std::string& path, int flags, mode_t mode) override {
    return Fails() ? -error_ : system_.Open(path, flags, mode);
  }
  ssize_t Read(int file, std::span<char> buffer) override {
    return Fails() ? -error_ : system_.Read(file, buffer.first(std::min(buffer.size(), largestPiece_)));
  }
  ssize_t Write(int file, std::string_view bytes) override {
    return Fails() ? -error_ : system_.Write(file, bytes.substr(0, largestPiece_));
  }
  int Sync(int file) override { return Fails() ? -error_ : system_.Sync(file); }
  /// As with the system's own, the file is closed even so.
  int Close(int file) override {
    const int closed = system_.Close(file);
    return Fails() ? -error_ : closed;
  }
  int Rename(const std::string& from, const std::string& to) override {
    return Fails() ? -error_ : system_.Rename(from, to);
  }
  int Unlink(const std::string& path) override { return Fails() ? -error_ : system_.Unlink(path); }
  int MakeFolder(const std::string& path) override { return Fails() ? -error_ : system_.MakeFolder(path); }
  int Mode(int file) override { return Fails() ? -error_ : system_.Mode(file); }
  int SetMode(int file, mode_t mode) override { return Fails() ? -error_ : system_.SetMode(file, mode); }
  int TryLock(int file) override { return Fails() ? -error_ : system_.TryLock(file); }

 private:
  bool Fails() {
    left_ = std::max(left_ - 1, -2);
    return lasting_ == Lasting::kForGood ? left_ < 0 : left_ == -1;
  }

  int left_;
  int error_;
  Lasting lasting_;
  std::size_t largestPiece_;
  FileCalls& system_ = SystemFileCalls();
};

}  // namespace quillon
