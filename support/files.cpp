#include "support/files.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "support/run_time_error.h"
#include "support/windows_1252.h"

namespace quillon {
namespace {

constexpr std::size_t kLargestFile = std::size_t{64} << 20U;
constexpr int kMostLinks = 40;  // as many as the system follows
constexpr mode_t kFileMode = 0666;  // less what the user's umask takes off
constexpr mode_t kFolderMode = 0777;

template <typename Result>
Result OrError(Result result) {
  return result < 0 ? static_cast<Result>(-errno) : result;
}

class RealFileCalls final : public FileCalls {
 public:
  int Open(const std::string& path, int flags, mode_t mode) override {
    return OrError(::open(path.c_str(), flags, mode));  // NOLINT(cppcoreguidelines-pro-type-vararg): the call is so
  }
  ssize_t Read(int file, std::span<char> buffer) override {
    return OrError(::read(file, buffer.data(), buffer.size()));
  }
  ssize_t Write(int file, std::string_view bytes) override {
    return OrError(::write(file, bytes.data(), bytes.size()));
  }
  int Sync(int file) override { return OrError(::fsync(file)); }
  int Close(int file) override { return OrError(::close(file)); }
  int Rename(const std::string& from, const std::string& to) override {
    return OrError(std::rename(from.c_str(), to.c_str()));
  }
  int Unlink(const std::string& path) override { return OrError(::unlink(path.c_str())); }
  int MakeFolder(const std::string& path) override { return OrError(::mkdir(path.c_str(), kFolderMode)); }
};

[[noreturn]] void Fail(int negatedError, const std::filesystem::path& path) {
  const int error = -negatedError;
  throw RunTimeError(RunTimeFaultOf(error), path.string() + ": " + std::generic_category().message(error));
}

// An interrupted call has done nothing and is made again.
template <typename Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result == -EINTR)
    result = call();
  return result;
}

int WriteWhole(int file, std::string_view bytes, FileCalls& calls) {
  while (!bytes.empty()) {
    const ssize_t written = Uninterrupted([&] { return calls.Write(file, bytes); });
    if (written < 0) return static_cast<int>(written);
    if (written == 0) return -EIO;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

// Two programs, or two saves of one, must never share a scratch file.
std::string ScratchName() {
  static std::atomic<unsigned> count{0};
  return ".quillon-" + std::to_string(::getpid()) + "-" + std::to_string(count.fetch_add(1)) + ".tmp";
}

struct Scratch {
  int file;
  std::string path;
};

Scratch OpenScratch(const std::filesystem::path& folder, FileCalls& calls) {
  std::string path = (folder / ScratchName()).string();
  const int file = Uninterrupted([&] { return calls.Open(path, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kFileMode); });
  return {file, std::move(path)};
}

// Writes the scratch file and gives it the target's name: 0, or the negated error number with the scratch file gone.
int ReplaceThrough(const Scratch& scratch, const std::string& target, std::string_view bytes, FileCalls& calls) {
  int result = WriteWhole(scratch.file, bytes, calls);
  if (result >= 0) result = Uninterrupted([&] { return calls.Sync(scratch.file); });
  const int closed = calls.Close(scratch.file);
  // An interrupted close has closed the file all the same, and the content was on the disk before it.
  if (result >= 0 && closed < 0 && closed != -EINTR) result = closed;
  if (result >= 0) result = Uninterrupted([&] { return calls.Rename(scratch.path, target); });
  if (result < 0) calls.Unlink(scratch.path);
  return result;
}

// A file that may not be written must not be replaced either, although the folder's permissions would allow it: 0, or
// the negated error number. A file that is not there may be made.
int MayBeWritten(const std::string& path, FileCalls& calls) {
  const int file = Uninterrupted([&] { return calls.Open(path, O_WRONLY | O_NONBLOCK | O_CLOEXEC, 0); });
  if (file < 0) return file == -ENOENT ? 0 : file;
  calls.Close(file);
  return 0;
}

// Where a chain of links ends, whether or not a file is there. Links that go in a circle end at one of them.
std::filesystem::path EndOfLinks(std::filesystem::path path) {
  std::error_code none;
  for (int link = 0; link < kMostLinks && std::filesystem::is_symlink(path, none); ++link)
    path = path.parent_path() / std::filesystem::read_symlink(path, none);
  return path;
}

// Makes the new name itself last through a power failure. The content is whole either way, so a system that cannot sync
// a folder stops nobody.
void SyncFolder(const std::filesystem::path& folder, FileCalls& calls) {
  const int file = calls.Open(folder.string(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
  if (file < 0) return;
  calls.Sync(file);
  calls.Close(file);
}

}  // namespace

FileCalls& SystemFileCalls() {
  static RealFileCalls calls;
  return calls;
}

std::optional<std::string> TryReadAllBytes(const std::filesystem::path& path, FileCalls& calls) {
  // Not to block: a named pipe in the user's folder must not hold the program.
  const int file = Uninterrupted([&] { return calls.Open(path.string(), O_RDONLY | O_NONBLOCK | O_CLOEXEC, 0); });
  if (file == -ENOENT) return std::string();
  if (file < 0) return std::nullopt;

  std::string bytes;
  std::array<char, 4096> buffer{};
  ssize_t count = 0;
  while ((count = Uninterrupted([&] { return calls.Read(file, buffer); })) > 0) {
    bytes.append(buffer.data(), static_cast<std::size_t>(count));
    if (bytes.size() > kLargestFile) count = -EFBIG;
    if (count < 0) break;
  }
  calls.Close(file);
  if (count < 0) return std::nullopt;
  return bytes;
}

std::string ReadAllBytes(const std::filesystem::path& path, FileCalls& calls) {
  return TryReadAllBytes(path, calls).value_or(std::string());
}

std::string ReadAllText(const std::filesystem::path& path, FileCalls& calls) {
  return Utf8FromWindows1252(ReadAllBytes(path, calls));
}

void ReplaceFile(const std::filesystem::path& path, std::string_view bytes, const std::filesystem::path& scratchFolder,
                 FileCalls& calls) {
  const std::filesystem::path target = EndOfLinks(path);
  if (const int refused = MayBeWritten(target.string(), calls); refused < 0) Fail(refused, path);

  int result = -EXDEV;
  const Scratch apart = OpenScratch(scratchFolder, calls);
  if (apart.file >= 0) result = ReplaceThrough(apart, target.string(), bytes, calls);
  if (apart.file < 0 || result == -EXDEV) {
    const Scratch beside = OpenScratch(target.parent_path(), calls);
    result = beside.file < 0 ? beside.file : ReplaceThrough(beside, target.string(), bytes, calls);
  }
  if (result < 0) Fail(result, path);
  SyncFolder(target.parent_path(), calls);
}

void DeleteFile(const std::filesystem::path& path, FileCalls& calls) {
  if (const int result = calls.Unlink(path.string()); result < 0) Fail(result, path);
}

void WriteAllText(std::string_view text, const std::filesystem::path& path, const std::filesystem::path& scratchFolder,
                  FileCalls& calls) {
  ReplaceFile(path, Windows1252FromUtf8(text) + "\r\n", scratchFolder, calls);
}

}  // namespace quillon
