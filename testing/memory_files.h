#pragma once

// Files in memory, for targets that would otherwise write to the disk a million times. Folders are ignored: any path
// can be opened.

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "support/files.h"

namespace quillon {

class MemoryFiles final : public FileCalls {
 public:
  struct OpenFile {
    std::string path;
    std::size_t place = 0;
  };

  static constexpr std::size_t kLongestName = 255;

  std::map<std::string, std::string> Contents;  // by path
  std::map<int, OpenFile> Opened;
  int NextFile = 3;

  int Open(const std::string& path, OpenFor purpose, FileMode /*mode*/) override {
    if (path.size() - path.rfind('/') > kLongestName + 1) return -ENAMETOOLONG;
    const bool isThere = Contents.contains(path);
    if (purpose != OpenFor::kListing) {
      if (isThere == (purpose == OpenFor::kCreating)) return isThere ? -EEXIST : -ENOENT;
      Contents.try_emplace(path);
    }
    Opened[NextFile] = {path, 0};
    return NextFile++;
  }
  std::ptrdiff_t Read(int file, std::span<char> buffer) override {
    OpenFile& from = Opened.at(file);
    const std::string_view rest = std::string_view(Contents[from.path]).substr(from.place);
    const std::size_t count = std::min(rest.size(), buffer.size());
    std::memcpy(buffer.data(), rest.data(), count);
    from.place += count;
    return static_cast<std::ptrdiff_t>(count);
  }
  std::ptrdiff_t Write(int file, std::string_view bytes) override {
    Contents[Opened.at(file).path] += bytes;
    return static_cast<std::ptrdiff_t>(bytes.size());
  }
  int Sync(int /*file*/) override { return 0; }
  int Close(int file) override { return Opened.erase(file) == 1 ? 0 : -EBADF; }
  int Rename(const std::string& from, const std::string& to) override {
    auto moved = Contents.extract(from);
    if (moved.empty()) return -ENOENT;
    Contents.insert_or_assign(to, std::move(moved.mapped()));
    return 0;
  }
  int Unlink(const std::string& path) override { return Contents.erase(path) == 1 ? 0 : -ENOENT; }
  int MakeFolder(const std::string& /*path*/) override { return 0; }
  int Mode(int /*file*/) override { return 0644; }
  int SetMode(int /*file*/, FileMode /*mode*/) override { return 0; }
  int TryLock(int /*file*/) override { return 0; }

  /// Whether every opened file has been closed.
  [[nodiscard]] bool AllClosed() const { return Opened.empty(); }
};

}  // namespace quillon
