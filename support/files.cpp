#include "support/files.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>

#include "support/run_time_error.h"
#include "support/this_process.h"
#include "support/uninterrupted.h"
#include "support/windows_1252.h"

namespace quillon {
namespace {

constexpr std::size_t kLargestFile = std::size_t{64} << 20U;
constexpr FileMode kFileMode = 0666;  // minus the user's umask

constexpr std::string_view kScratchStart = ".quillon-";
constexpr std::string_view kScratchEnd = ".tmp";
constexpr std::string_view kCopyEnd = ".copy";
constexpr std::chrono::hours kStaleAge{1};
constexpr int kMostScratchNames = 100;  // to try in one folder

int WriteWhole(int file, std::string_view bytes, FileCalls& calls) {
  while (!bytes.empty()) {
    const std::ptrdiff_t written = Uninterrupted([&] { return calls.Write(file, bytes); });
    if (written < 0) return static_cast<int>(written);
    if (written == 0) return -EIO;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

// Writes an open file to disk and closes it: 0, or the negated error number.
int WriteToDisk(int file, std::string_view bytes, FileCalls& calls) {
  int result = WriteWhole(file, bytes, calls);
  if (result >= 0) result = Uninterrupted([&] { return calls.Sync(file); });
  const int closed = calls.Close(file);
  // An interrupted close has closed the file anyway, and the content was already on disk.
  return result >= 0 && closed < 0 && closed != -EINTR ? closed : result;
}

// Two programs, or two saves of one, must never share a scratch file.
std::string ScratchName(std::string_view end) {
  static std::atomic<unsigned> count{0};
  return std::string(kScratchStart) + std::to_string(ProcessNumber()) + "-" + std::to_string(count.fetch_add(1)) +
         std::string(end);
}

bool IsStaleScratch(const std::filesystem::path& path) {
  const std::string name = path.filename().string();
  return IsScratchName(name) && name.ends_with(kScratchEnd) && AgeOfFile(path) > kStaleAge;
}

struct Scratch {
  int file;
  std::string path;
};

// A killed process may have had the same number and left scratch files, so some names may be taken.
Scratch OpenScratch(const std::filesystem::path& folder, std::string_view end, FileMode mode, FileCalls& calls) {
  Scratch scratch{-EEXIST, {}};
  for (int attempt = 0; scratch.file == -EEXIST && attempt < kMostScratchNames; ++attempt) {
    scratch.path = (folder / ScratchName(end)).string();
    scratch.file = Uninterrupted([&] { return calls.Open(scratch.path, OpenFor::kCreating, mode); });
  }
  return scratch;
}

// Writes the scratch file and renames it to the target: 0, or the negated error number with the scratch file deleted.
int ReplaceThrough(const Scratch& scratch, const std::string& target, std::optional<FileMode> mode,
                   std::string_view bytes, FileCalls& calls) {
  // The umask may have removed bits of the old mode. Failure is ignored: a disk without permissions has none to keep.
  if (mode) static_cast<void>(Uninterrupted([&] { return calls.SetMode(scratch.file, *mode); }));
  int result = WriteToDisk(scratch.file, bytes, calls);
  if (result >= 0) result = Uninterrupted([&] { return calls.Rename(scratch.path, target); });
  if (result < 0) Uninterrupted([&] { return calls.Unlink(scratch.path); });
  return result;
}

// The file to replace.
struct OldFile {
  int refusal = 0;  // the negated error number if it must not be replaced
  std::optional<FileMode> mode;  // nothing if there is no such file
};

// A write-protected file must not be replaced, even if the folder allows it. A missing file may be created.
OldFile LookAtOldFile(const std::string& path, FileCalls& calls) {
  const int file = Uninterrupted([&] { return calls.Open(path, OpenFor::kWriting, 0); });
  if (file < 0) return {file == -ENOENT ? 0 : file, std::nullopt};
  const int mode = Uninterrupted([&] { return calls.Mode(file); });
  calls.Close(file);
  if (mode < 0) return {mode, std::nullopt};
  return {0, static_cast<FileMode>(mode)};
}

// Whether an error means that the folder takes no new names, which does not rule out writing the files in it.
bool IsRefusal(int negatedError) {
  return negatedError == -EACCES || negatedError == -EPERM || negatedError == -EROFS || negatedError == -EBUSY;
}

// Makes the new name survive a power failure. Failure is ignored: the content is whole either way.
void SyncFolder(const std::filesystem::path& folder, FileCalls& calls) {
  const int file = Uninterrupted([&] { return calls.Open(folder.string(), OpenFor::kListing, 0); });
  if (file < 0) return;
  static_cast<void>(Uninterrupted([&] { return calls.Sync(file); }));
  calls.Close(file);
}

struct Rewriting {
  int result;
  std::string copy;  // holds the whole new content if writing the file has failed; otherwise empty
};

// Writes into the file itself while a scratch file keeps a copy of the new content. After a crash midway only the copy
// is whole, so no start deletes files of its name. If both folders refuse a copy there is none, but a full disk is an
// error.
Rewriting Rewrite(const std::filesystem::path& target, std::string_view bytes,
                  const std::filesystem::path& scratchFolder, FileMode mode, FileCalls& calls) {
  Scratch copy = OpenScratch(scratchFolder, kCopyEnd, mode, calls);
  const int apart = copy.file;
  if (copy.file < 0) copy = OpenScratch(target.parent_path(), kCopyEnd, mode, calls);
  const bool refused = IsRefusal(copy.file) && (IsRefusal(apart) || apart == -ENOENT);
  if (copy.file < 0 && !refused) return {IsRefusal(copy.file) ? apart : copy.file, {}};

  int result = copy.file < 0 ? 0 : WriteToDisk(copy.file, bytes, calls);
  if (result >= 0) {
    if (copy.file >= 0) SyncFolder(PathOf(copy.path).parent_path(), calls);
    const int file = Uninterrupted([&] { return calls.Open(target.string(), OpenFor::kRewriting, 0); });
    result = file < 0 ? file : WriteToDisk(file, bytes, calls);
    if (file >= 0 && result < 0) return {result, copy.file < 0 ? std::string() : copy.path};
  }
  if (copy.file >= 0) Uninterrupted([&] { return calls.Unlink(copy.path); });
  return {result, {}};
}

}  // namespace

void FailOnFile(int systemError, const std::filesystem::path& path, std::string_view addition) {
  std::error_code unknown;
  const bool folderMissing =
      systemError == ENOENT && !std::filesystem::is_directory(EndOfLinks(path).parent_path(), unknown);
  std::string detail = TextOfFileName(path.string()) + ": " + ReasonOf(systemError);
  throw RunTimeError(folderMissing ? RunTimeFault::kPathNotFound : RunTimeFaultOf(systemError),
                     detail.append(addition));
}

bool IsScratchName(std::string_view name) {
  if (!name.starts_with(kScratchStart)) return false;
  const std::string_view numbers = name.substr(kScratchStart.size());
  const std::string_view end = numbers.substr(std::min(numbers.find_first_not_of("0123456789-"), numbers.size()));
  return end == kScratchEnd || end == kCopyEnd;
}

bool IsPathTooLong(const std::filesystem::path& path, FileCalls& calls) {
  const int file = Uninterrupted([&] { return calls.Open(path.string(), OpenFor::kReading, 0); });
  if (file >= 0) calls.Close(file);
  return file == -ENAMETOOLONG;
}

std::optional<std::string> TryReadAllBytes(const std::filesystem::path& path, FileCalls& calls) {
  // Non-blocking: a named pipe in the user's folder must not hang the program.
  const int file = Uninterrupted([&] { return calls.Open(path.string(), OpenFor::kReading, 0); });
  if (file == -ENOENT) return std::string();
  if (file < 0) return std::nullopt;

  std::string bytes;
  std::array<char, 4096> buffer{};
  std::ptrdiff_t count = 0;
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
  const OldFile old = LookAtOldFile(target.string(), calls);
  if (old.refusal < 0) FailOnFile(-old.refusal, path);
  const FileMode mode = old.mode.value_or(kFileMode);

  int result = -EXDEV;
  const Scratch apart = OpenScratch(scratchFolder, kScratchEnd, mode, calls);
  if (apart.file >= 0) result = ReplaceThrough(apart, target.string(), old.mode, bytes, calls);
  if (apart.file < 0 || result == -EXDEV) {
    const Scratch beside = OpenScratch(target.parent_path(), kScratchEnd, mode, calls);
    result = beside.file < 0 ? beside.file : ReplaceThrough(beside, target.string(), old.mode, bytes, calls);
  }
  if (IsRefusal(result) && old.mode) {
    const Rewriting rewriting = Rewrite(target, bytes, scratchFolder, mode, calls);
    const std::string copy = TextOfFileName(rewriting.copy);
    if (rewriting.result < 0)
      FailOnFile(-rewriting.result, path, copy.empty() ? copy : "; the new content is in " + copy);
    return;
  }
  if (result < 0) FailOnFile(-result, path);
  SyncFolder(target.parent_path(), calls);
}

void RemoveStaleScratchFiles(const std::filesystem::path& folder, FileCalls& calls) {
  for (const FolderEntry& entry : ListFolder(folder).Entries) {
    if (IsStaleScratch(entry.Path)) Uninterrupted([&] { return calls.Unlink(entry.Path.string()); });
  }
}

void DeleteFile(const std::filesystem::path& path, FileCalls& calls) {
  const int result = Uninterrupted([&] { return calls.Unlink(path.string()); });
  if (result < 0) FailOnFile(-result, path);
}

void WriteAllText(std::string_view text, const std::filesystem::path& path, const std::filesystem::path& scratchFolder,
                  FileCalls& calls) {
  ReplaceFile(path, Windows1252FromUtf8(text) + "\r\n", scratchFolder, calls);
}

}  // namespace quillon
