#pragma once

// Reading, replacing and deleting files. The new content of a user's file is written to a scratch file, synced, and
// renamed over the old file in one step, so that a crash or a full disk leaves the old content whole. Only if the
// folder refuses that is the file written in place. In memory text is UTF-8; on disk it is the code page of
// "support/windows_1252.h".

#include <chrono>
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

/// The path for a text: UTF-8 on systems whose names are characters, any bytes on those whose names are bytes. A path's
/// `string()` returns the same text everywhere.
[[nodiscard]] std::filesystem::path PathOf(std::string_view text);

/// A file or folder in a listing.
struct FolderEntry {
  std::filesystem::path Path;
  bool IsFolder;  // or a link to one
};

/// A folder's entries, in no order and without "." and "..", and the error that ended the listing, if any. A name
/// with half a surrogate pair, which Windows allows and no text can hold, is left out.
struct FolderListing {
  std::vector<FolderEntry> Entries;
  std::error_code Error;
};
[[nodiscard]] FolderListing ListFolder(const std::filesystem::path& folder);

/// Why a path leads to nothing, or no error if something is there: a file, a folder or a link, even a dangling one.
[[nodiscard]] std::error_code ErrorOfPath(const std::filesystem::path& path);

/// The time since a file was last written, negative if the clock was set back; nothing for a folder, a link or anything
/// else that is not a regular file, and for what cannot be examined.
[[nodiscard]] std::optional<std::chrono::seconds> AgeOfFile(const std::filesystem::path& path);

/// The end of a chain of links, whether or not a file is there; a path that is not a link is its own end. For a cycle,
/// one of its links. On Windows a dangling link is its own end too, and links to folders along the path are followed.
[[nodiscard]] std::filesystem::path EndOfLinks(const std::filesystem::path& path);

/// The system's text for an error number, such as "No such file or directory".
[[nodiscard]] std::string ReasonOf(int systemError);

/// What a file or folder is opened for. Child processes do not inherit it.
enum class OpenFor {
  kReading,  // never waits: a pipe without a writer reads as empty
  kStreaming,  // as kReading, but waits for a pipe's writer
  kWriting,  // an existing file; never waits
  kRewriting,  // an existing file, which is emptied first
  kCreating,  // a file that does not exist yet, with these permissions minus the user's umask
  kListing,  // a folder
};

/// The nine permission bits of a file, such as 0644.
using FileMode = std::uint32_t;

/// The system calls for files and folders, behind an interface so that a test can make each of them fail. Every call
/// returns a file number, a count of bytes or 0, or else the negated error number of <cerrno>. Paths are UTF-8 on
/// systems whose names are characters, and bytes elsewhere.
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

  /// The permissions of an open file, and setting them.
  virtual int Mode(int file) = 0;
  virtual int SetMode(int file, FileMode mode) = 0;

  /// Locks an open file or folder, or fails if it is locked already. Close or the end of the process releases the lock.
  virtual int TryLock(int file) = 0;
};

/// The system's own calls.
[[nodiscard]] FileCalls& SystemFileCalls();

/// Whether a system error means that the user's disk quota is used up. Not every system has such an error.
[[nodiscard]] bool IsQuotaError(int systemError);

/// Throws the RunTimeError for a system error on this file or folder. ENOENT is "Path not found" if the parent folder
/// is missing, and "File not found" otherwise; other errors are as in RunTimeFaultOf. The detail is the path, the
/// system's reason and `addition`.
[[noreturn]] void FailOnFile(int systemError, const std::filesystem::path& path, std::string_view addition = {});

/// Whether a file name is that of a scratch file of ReplaceFile: ".quillon-4711-0.tmp", or ".quillon-4711-0.copy" while
/// a file is written in place.
[[nodiscard]] bool IsScratchName(std::string_view name);

/// Whether the file system refuses a path because it, or a name in it, is too long.
[[nodiscard]] bool IsPathTooLong(const std::filesystem::path& path, FileCalls& calls = SystemFileCalls());

/// The whole file as bytes, or the empty text if it cannot be read for any reason. A folder, or a file of more than 64
/// MiB, counts as unreadable.
[[nodiscard]] std::string ReadAllBytes(const std::filesystem::path& path, FileCalls& calls = SystemFileCalls());

/// The whole file as bytes, for a caller that will write it back: a missing file is the empty text, and an unreadable
/// one is nullopt, so that it is not mistaken for an empty one.
[[nodiscard]] std::optional<std::string> TryReadAllBytes(const std::filesystem::path& path,
                                                         FileCalls& calls = SystemFileCalls());

/// The whole file as text, or the empty text if it is missing or cannot be read.
[[nodiscard]] std::string ReadAllText(const std::filesystem::path& path, FileCalls& calls = SystemFileCalls());

/// Replaces the file's content with `bytes`, or creates the file. The scratch file is written to `scratchFolder`, which
/// should be on the same disk and hidden from the user; if that folder is on another disk or not writable, the scratch
/// file is written next to the target. Links are followed: the file at the end of the chain is replaced. The new file
/// keeps the old one's permissions.
///
/// If the folder takes no new files but the old file is writable, the file is written in place, with a copy in the
/// scratch file until its content is on disk; if both folders refuse a scratch file, there is no copy.
///
/// Any failure, such as of a write-protected file, is a RunTimeError as of FailOnFile. The old content is then intact
/// and the scratch file deleted; after writing in place the scratch file is kept and the error names it.
void ReplaceFile(const std::filesystem::path& path, std::string_view bytes, const std::filesystem::path& scratchFolder,
                 FileCalls& calls = SystemFileCalls());

/// Deletes the scratch files that processes left in the folder when they were killed during ReplaceFile. A scratch file
/// is stale after an hour, since one in use exists only for moments. A ".copy" is kept, as it may be the only whole
/// copy of what was saved. Never fails: what cannot be listed or deleted stays.
void RemoveStaleScratchFiles(const std::filesystem::path& folder, FileCalls& calls = SystemFileCalls());

/// Deletes the file; for a link, only the link. Failure is a RunTimeError as of FailOnFile.
void DeleteFile(const std::filesystem::path& path, FileCalls& calls = SystemFileCalls());

/// Overwrites the file with the text plus CR LF. Fails as ReplaceFile does.
void WriteAllText(std::string_view text, const std::filesystem::path& path, const std::filesystem::path& scratchFolder,
                  FileCalls& calls = SystemFileCalls());

}  // namespace quillon
