#pragma once

// The system's own file calls, for a test to watch or to make fail.

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/files.h"

namespace quillon {

enum class Call { kOpen, kRead, kWrite, kSync, kClose, kRename, kUnlink, kMakeFolder, kMode, kSetMode, kTryLock };

/// A call as it was made. `Path` is empty for calls on an open file.
struct MadeCall {
  quillon::Call Call;
  std::string Path;
  std::optional<OpenFor> Purpose = {};  // of kOpen
};

/// Passes every call on to the system, keeps a record of it, and makes the chosen ones fail.
class WatchedCalls : public FileCalls {
 public:
  /// The negated error number that call number `number` (from 1) returns, or nothing for one that goes through.
  using Fault = std::function<std::optional<int>(const MadeCall& call, int number)>;

  /// Reads and writes are cut to `largestPiece`.
  explicit WatchedCalls(Fault fault = {}, std::size_t largestPiece = std::string_view::npos)
      : fault_(std::move(fault)), largestPiece_(largestPiece) {}

  int Open(const std::string& path, OpenFor purpose, FileMode mode) override {
    const auto error = Record({Call::kOpen, path, purpose});
    return error ? *error : system_.Open(path, purpose, mode);
  }
  std::ptrdiff_t Read(int file, std::span<char> buffer) override {
    const auto error = Record({Call::kRead, {}});
    return error ? *error : system_.Read(file, buffer.first(std::min(buffer.size(), largestPiece_)));
  }
  std::ptrdiff_t Write(int file, std::string_view bytes) override {
    const auto error = Record({Call::kWrite, {}});
    return error ? *error : system_.Write(file, bytes.substr(0, largestPiece_));
  }
  int Sync(int file) override {
    const auto error = Record({Call::kSync, {}});
    return error ? *error : system_.Sync(file);
  }
  /// As with the system's own, the file is closed even if this fails.
  int Close(int file) override {
    const auto error = Record({Call::kClose, {}});
    const int closed = system_.Close(file);
    return error ? *error : closed;
  }
  int Rename(const std::string& from, const std::string& to) override {
    const auto error = Record({Call::kRename, from});
    return error ? *error : system_.Rename(from, to);
  }
  int Unlink(const std::string& path) override {
    const auto error = Record({Call::kUnlink, path});
    return error ? *error : system_.Unlink(path);
  }
  int MakeFolder(const std::string& path) override {
    const auto error = Record({Call::kMakeFolder, path});
    return error ? *error : system_.MakeFolder(path);
  }
  int Mode(int file) override {
    const auto error = Record({Call::kMode, {}});
    return error ? *error : system_.Mode(file);
  }
  int SetMode(int file, FileMode mode) override {
    const auto error = Record({Call::kSetMode, {}});
    return error ? *error : system_.SetMode(file, mode);
  }
  int TryLock(int file) override {
    const auto error = Record({Call::kTryLock, {}});
    return error ? *error : system_.TryLock(file);
  }

  [[nodiscard]] const std::vector<MadeCall>& Made() const { return made_; }
  [[nodiscard]] std::ptrdiff_t Count(Call call) const { return std::ranges::count(made_, call, &MadeCall::Call); }

  /// The paths at which a new file was to be made.
  [[nodiscard]] std::vector<std::string> ScratchFiles() const {
    std::vector<std::string> paths;
    for (const MadeCall& call : made_) {
      if (call.Purpose == OpenFor::kCreating) paths.push_back(call.Path);
    }
    return paths;
  }

 private:
  std::optional<int> Record(MadeCall call) {
    made_.push_back(std::move(call));
    return fault_ ? fault_(made_.back(), static_cast<int>(made_.size())) : std::nullopt;
  }

  Fault fault_;
  std::size_t largestPiece_;
  std::vector<MadeCall> made_;
  FileCalls& system_ = SystemFileCalls();
};

/// The first `times` calls of this kind fail.
[[nodiscard]] inline WatchedCalls::Fault FailAll(Call call, int error, int times = 1'000'000) {
  return [call, error, left = times](const MadeCall& made, int /*number*/) mutable -> std::optional<int> {
    if (made.Call != call || left-- <= 0) return std::nullopt;
    return -error;
  };
}

/// Calls of which one fails, or all from one on. Counting up through the calls of an action until none fails any more
/// makes each of them fail in turn.
class FailingCalls final : public WatchedCalls {
 public:
  enum class Lasting { kOnce, kForGood };

  /// Lets `callsUntilFailure` calls through. A call that fails returns `error`, negated.
  explicit FailingCalls(int callsUntilFailure, int error = EIO, Lasting lasting = Lasting::kOnce,
                        std::size_t largestPiece = std::string_view::npos)
      : WatchedCalls(
            [=](const MadeCall& /*call*/, int number) {
              const bool fails =
                  lasting == Lasting::kForGood ? number > callsUntilFailure : number == callsUntilFailure + 1;
              return fails ? std::optional(-error) : std::nullopt;
            },
            largestPiece),
        callsUntilFailure_(callsUntilFailure) {}

  [[nodiscard]] bool HasFailed() const { return std::ssize(Made()) > callsUntilFailure_; }

 private:
  int callsUntilFailure_;
};

}  // namespace quillon
