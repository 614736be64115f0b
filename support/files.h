#pragma once

// Reading, replacing and deleting files. The new content of a user's file goes to a scratch file, reaches the disk
// there, and takes the old file's name in one step, so that a crash or a full disk leaves the old content whole. Only
// where the folder refuses that is a file written in place. In memory text is UTF-8; on disk it is the code page of
// "support/windows_1252.h".

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace quillon {

/// The path that a text names: UTF-8 where the system keeps characters, any bytes where it keeps bytes. The text of a
/// path is its `string()` on every system.
[[nodiscard]] std::filesystem::path PathOf(std::string_view text);

/// What is in a folder, in no order and without the folder itself and the one above it, and the error that ended the
/// listing, if one did.
struct FolderListing {
  std::vector<std::filesystem::directory_entry> Entries;
  std::error_code Error;
};
[[nodiscard]] FolderListing ListFolder(const std::filesystem::path& folder);

/// Why nothing can be found under a path, or no error where something is there: a file, a folder, or a link whether or
/// not it leads anywhere.
[[nodiscard]] std::error_code ErrorOfPath(const std::filesystem::path& path);

/// What the system says of an error number, as in "No such file or directory".
[[nodiscard]] std::string ReasonOf(int systemError);

/// What a file or folder is opened for. No child process takes it over.
enum class OpenFor {
  kReading,  // never waits: of a pipe without a writer there is nothing to read
  kStreaming,  // as kReading, but waits for what a pipe has still to bring
  kWriting,  // into a file that is there; never waits
  kRewriting,  // into a file that is there, emptied first
  kCreating,  // a file that is not there, with these permissions less what the user's umask takes off
  kListing,  // a folder
};

/// The nine permission bits of a file, as in 0644.
using FileMode = std::uint32_t;

/// The system calls that files and folders are reached with, gathered so that a test can make each of them fail. Every
/// call returns a file's number, a count of bytes or 0, or else the negated error number of <cerrno>. Paths are UTF-8
/// where the system knows characters, and bytes where it does not.
class FileCalls {
 public:
  virtual ~FileCalls() = default;

  virtual int Open(const std::string& path, OpenFor purpose, FileMode mode) = 0;
  virtual std::ptrdiff_t Read(int file, std::span<char> buffer) = 0;
  virtual std::ptrdiff_t Write(int file, std::string_view bytes) = 0;
  virtual int Sync(int file) = 0;
  virtual int Close(int file) = 0;
  virtual int Rename(const std::string& from, const std::string& to) = 0;
  virtual int Unlink(const std::string& path) = 0;
  virtual int MakeFolder(const std::string& path) = 0;

  /// The permissions of an open file, and new ones for it.
  virtual int Mode(int file) = 0;
  virtual int SetMode(int file, FileMode mode) = 0;

  /// Takes the lock of an open file or folder, or fails where it is taken already. It is released by Close, and by
  /// the system where the process ends otherwise.
  virtual int TryLock(int file) = 0;
};

/// The system's own calls.
[[nodiscard]] FileCalls& SystemFileCalls();

/// Whether a system error says that the user's share of the disk is used up. Not every system has such an error.
[[nodiscard]] bool IsQuotaError(int systemError);

/// Throws the RunTimeError for a system error from a call on this file or folder: ENOENT is "Path
/// not found" where the folder that it should be in is missing, and "File not found" otherwise; the rest is as
/// RunTimeFaultOf says. The detail is the path, the system's reason and `addition`.
[[noreturn]] void FailOnFile(int systemError, const std::filesystem::path& path, std::string_view addition = {});

/// Whether a file of this name is a scratch file of ReplaceFile, ".quillon-4711-0.tmp", or ".quillon-4711-0.copy" while
/// a file is written in place.
[[nodiscard]] bool IsScratchName(std::string_view name);

/// Whether the file system refuses a path because it, or a name in it, is too long.
[[nodiscard]] bool IsPathTooLong(const std::filesystem::path& path, FileCalls& calls = SystemFileCalls());

/// The whole file as bytes, the empty text if it cannot be read for whatever reason. A file of more than 64 MiB is not
/// ours and counts as unreadable; so does a folder.
[[nodiscard]] std::string ReadAllBytes(const std::filesystem::path& path, FileCalls& calls = SystemFileCalls());

/// The whole file as bytes, for a caller that will write it back: a missing file is the empty text, and one that is
/// there but cannot be read is nothing, so that it is not taken for empty.
[[nodiscard]] std::optional<std::string> TryReadAllBytes(const std::filesystem::path& path,
                                                         FileCalls& calls = SystemFileCalls());

/// The whole file as text, the empty text if it cannot be read. A missing file reads as an empty one, without a
/// message.
[[nodiscard]] std::string ReadAllText(const std::filesystem::path& path, FileCalls& calls = SystemFileCalls());

/// Puts `bytes` in the place of the file's content, or makes the file. The scratch file goes into `scratchFolder`,
/// which should be on the same disk and not be a folder that the user sees listed; where it is on another disk or
/// cannot be written, the scratch file goes beside the target. A link is followed, so that the file it names is
/// replaced. The new file has the permissions of the old one.
///
/// A folder may refuse a new file under the name although the old file may be written. Then that file is written in
/// place, and the scratch file stays until its content is on the disk; where both folders refuse a scratch file, there
/// is none.
///
/// Failure of any step is a RunTimeError as of FailOnFile. The old content is then still there and the scratch file is
/// gone, unless the file was being written in place: then the scratch file stays, and the error names it. A file that
/// its permissions protect from writing is such a failure.
void ReplaceFile(const std::filesystem::path& path, std::string_view bytes, const std::filesystem::path& scratchFolder,
                 FileCalls& calls = SystemFileCalls());

/// Deletes the scratch files that processes have left in the folder by being killed in the middle of ReplaceFile. They
/// are told by their name and by their age, an hour, since a scratch file in use is there for moments only. A ".copy"
/// stays, for it may be the one whole copy of what was saved. Never fails: what cannot be listed or deleted stays.
void RemoveStaleScratchFiles(const std::filesystem::path& folder, FileCalls& calls = SystemFileCalls());

/// Deletes the file. Of a link only the link goes, and the file it names stays. Failure is a RunTimeError as of
/// FailOnFile.
void DeleteFile(const std::filesystem::path& path, FileCalls& calls = SystemFileCalls());

/// Overwrites the file with the text and one line end (CR LF). Fails as ReplaceFile does.
void WriteAllText(std::string_view text, const std::filesystem::path& path, const std::filesystem::path& scratchFolder,
                  FileCalls& calls = SystemFileCalls());

}  // namespace quillon
