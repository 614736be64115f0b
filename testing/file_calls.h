#pragma once

// The system's file calls, watched or made to fail by a test.

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

/// A recorded call. `Path` is empty for calls on an open file.
struct MadeCall {
  quillon::Call Call;
  std::string Path = {};
  std::optional<OpenFor> Purpose = {};  // only for kOpen
};

/// Forwards every call to the system, records it, and makes the chosen ones fail.
class WatchedCalls : public FileCalls {
 public:
  /// The negated error number for call number `number` (from 1), or nothing to let it through.
  using Fault = std::function<std::optional<int>(const MadeCall& call, int number)>;

  /// Reads and writes are cut to `largestPiece`.
  explicit WatchedCalls(Fault fault = {}, std::size_t largestPiece = std::string_view::npos)
      : fault_(std::move(fault)), largestPiece_(largestPiece) {}

  int Open(const std::string& path, OpenFor purpose, FileMode mode) override {
    return Do({Call::kOpen, path, purpose}, [&] { return system_.Open(path, purpose, mode); });
  }
  std::ptrdiff_t Read(int file, std::span<char> buffer) override {
    return Do({Call::kRead}, [&] { return system_.Read(file, buffer.first(std::min(buffer.size(), largestPiece_))); });
  }
  std::ptrdiff_t Write(int file, std::string_view bytes) override {
    return Do({Call::kWrite}, [&] { return system_.Write(file, bytes.substr(0, largestPiece_)); });
  }
  int Sync(int file) override {
    return Do({Call::kSync}, [&] { return system_.Sync(file); });
  }
  /// As with the system's own, the file is closed even if this fails.
  int Close(int file) override {
    const int closed = system_.Close(file);
    return Do({Call::kClose}, [&] { return closed; });
  }
  int Rename(const std::string& from, const std::string& to) override {
    return Do({Call::kRename, from}, [&] { return system_.Rename(from, to); });
  }
  int Unlink(const std::string& path) override {
    return Do({Call::kUnlink, path}, [&] { return system_.Unlink(path); });
  }
  int MakeFolder(const std::string& path) override {
    return Do({Call::kMakeFolder, path}, [&] { return system_.MakeFolder(path); });
  }
  int Mode(int file) override {
    return Do({Call::kMode}, [&] { return system_.Mode(file); });
  }
  int SetMode(int file, FileMode mode) override {
    return Do({Call::kSetMode}, [&] { return system_.SetMode(file, mode); });
  }
  int TryLock(int file) override {
    return Do({Call::kTryLock}, [&] { return system_.TryLock(file); });
  }

  [[nodiscard]] const std::vector<MadeCall>& Made() const { return made_; }
  [[nodiscard]] std::ptrdiff_t Count(Call call) const { return std::ranges::count(made_, call, &MadeCall::Call); }

  /// The paths at which a new file was requested.
  [[nodiscard]] std::vector<std::string> ScratchFiles() const {
    std::vector<std::string> paths;
    for (const MadeCall& call : made_) {
      if (call.Purpose == OpenFor::kCreating) paths.push_back(call.Path);
    }
    return paths;
  }

 private:
  // The system's result, or the fault instead.
  template <typename Pass>
  auto Do(MadeCall call, Pass pass) -> decltype(pass()) {
    made_.push_back(std::move(call));
    const auto error = fault_ ? fault_(made_.back(), static_cast<int>(made_.size())) : std::nullopt;
    return error ? *error : pass();
  }

  Fault fault_;
  std::size_t largestPiece_;
  std::vector<MadeCall> made_;
  FileCalls& system_ = SystemFileCalls();
};

/// Makes the first `times` calls of this kind fail.
[[nodiscard]] inline WatchedCalls::Fault FailAll(Call call, int error, int times = 1'000'000) {
  return [call, error, left = times](const MadeCall& made, int /*number*/) mutable -> std::optional<int> {
    if (made.Call != call || left-- <= 0) return std::nullopt;
    return -error;
  };
}

/// Makes one call fail, or all from one on. Counting up through the calls of an action until none fails any more makes
/// each of them fail in turn.
class FailingCalls final : public WatchedCalls {
 public:
  enum class Lasting { kOnce, kForGood };

  /// Lets `callsUntilFailure` calls through. A failing call returns `error`, negated.
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
