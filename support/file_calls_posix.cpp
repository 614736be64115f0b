#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/files.h"

namespace quillon {
namespace {

constexpr mode_t kFolderMode = 0777;  // minus the user's umask
constexpr mode_t kPermissions = 0777;  // the permission bits of a file's mode

template <typename Result>
Result OrError(Result result) {
  return result < 0 ? static_cast<Result>(-errno) : result;
}

int FlagsOf(OpenFor purpose) {
  switch (purpose) {
    case OpenFor::kReading:
      return O_RDONLY | O_NONBLOCK;
    case OpenFor::kStreaming:
      return O_RDONLY;
    case OpenFor::kWriting:
      return O_WRONLY | O_NONBLOCK;
    case OpenFor::kRewriting:
      return O_WRONLY | O_TRUNC;
    case OpenFor::kCreating:
      return O_WRONLY | O_CREAT | O_EXCL;
    case OpenFor::kListing:
      return O_RDONLY | O_DIRECTORY;
  }
  return O_RDONLY;
}

class PosixFileCalls final : public FileCalls {
 public:
  int Open(const std::string& path, OpenFor purpose, FileMode mode) override {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the call is so
    return OrError(::open(path.c_str(), FlagsOf(purpose) | O_CLOEXEC, mode));
  }
  std::ptrdiff_t Read(int file, std::span<char> buffer) override {
    return OrError(::read(file, buffer.data(), buffer.size()));
  }
  std::ptrdiff_t Write(int file, std::string_view bytes) override {
    return OrError(::write(file, bytes.data(), bytes.size()));
  }
  int Sync(int file) override { return OrError(::fsync(file)); }
  int Close(int file) override { return OrError(::close(file)); }
  int Rename(const std::string& from, const std::string& to) override {
    return OrError(std::rename(from.c_str(), to.c_str()));
  }
  int Unlink(const std::string& path) override { return OrError(::unlink(path.c_str())); }
  int MakeFolder(const std::string& path) override { return OrError(::mkdir(path.c_str(), kFolderMode)); }
  int Mode(int file) override {
    struct stat status {};
    const int result = OrError(::fstat(file, &status));
    return result < 0 ? result : static_cast<int>(status.st_mode & kPermissions);
  }
  int SetMode(int file, FileMode mode) override { return OrError(::fchmod(file, mode)); }
  int TryLock(int file) override { return OrError(::flock(file, LOCK_EX | LOCK_NB)); }
};

}  // namespace

FileCalls& SystemFileCalls() {
  static PosixFileCalls calls;
  return calls;
}

std::filesystem::path PathOf(std::string_view text) {
  return text;
}

FolderListing ListFolder(const std::filesystem::path& folder) {
  FolderListing listing;
  std::filesystem::directory_iterator entry(folder, listing.Error);
  for (const std::filesystem::directory_iterator end; !listing.Error && entry != end; entry.increment(listing.Error)) {
    std::error_code unknown;
    listing.Entries.push_back({entry->path(), entry->is_directory(unknown)});
  }
  return listing;
}

std::error_code ErrorOfPath(const std::filesystem::path& path) {
  std::error_code error;
  static_cast<void>(std::filesystem::symlink_status(path, error));
  return error;
}

std::optional<std::chrono::seconds> AgeOfFile(const std::filesystem::path& path) {
  std::error_code unknown;
  if (!std::filesystem::is_regular_file(std::filesystem::symlink_status(path, unknown))) return {};
  const std::filesystem::file_time_type written = std::filesystem::last_write_time(path, unknown);
  if (unknown) return {};
  return std::chrono::floor<std::chrono::seconds>(std::filesystem::file_time_type::clock::now() - written);
}

std::filesystem::path EndOfLinks(const std::filesystem::path& path) {
  constexpr int kMostLinks = 40;  // the system's own limit
  std::filesystem::path end = path;
  std::error_code none;
  for (int link = 0; link < kMostLinks && std::filesystem::is_symlink(end, none); ++link)
    end = end.parent_path() / std::filesystem::read_symlink(end, none);
  return end;
}

std::string ReasonOf(int systemError) {
  return std::generic_category().message(systemError);
}

bool IsQuotaError(int systemError) {
  return systemError == EDQUOT;
}

}  // namespace quillon
