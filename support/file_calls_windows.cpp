// The file calls for Windows. As the rest of the program expects, open files can be renamed, replaced and deleted, and
// replacing a file is one step.

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <initializer_list>
#include <io.h>
#include <map>
#include <mutex>
#include <ratio>
#include <utility>
#include <vector>
#include <windows.h>

#include "support/file_names.h"
#include "support/files.h"
#include "support/text_windows.h"

namespace quillon {
namespace {

constexpr FileMode kReadable = 0444;
constexpr FileMode kWritable = 0222;
constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Virus scanners and indexers briefly hold a new file open, and meanwhile it can be neither opened nor replaced.
constexpr int kAttempts = 20;
constexpr DWORD kPauseMilliseconds = 10;

constexpr DWORD kDiskQuotaExceeded = 1295;  // ERROR_DISK_QUOTA_EXCEEDED, which not every compiler's headers have

int ErrorNumber(DWORD error) {
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_NOT_READY:
    case ERROR_INVALID_DRIVE:
      return ENOENT;
    case ERROR_ACCESS_DENIED:
    case ERROR_PRIVILEGE_NOT_HELD:
      return EACCES;
    case ERROR_WRITE_PROTECT:
      return EROFS;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_DELETE_PENDING:
      return EBUSY;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
      return EEXIST;
    case ERROR_DISK_FULL:
    case kDiskQuotaExceeded:
    case ERROR_HANDLE_DISK_FULL:
      return ENOSPC;
    case ERROR_FILENAME_EXCED_RANGE:
      return ENAMETOOLONG;
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_INVALID_PARAMETER:
    case ERROR_NO_UNICODE_TRANSLATION:
      return EINVAL;
    case ERROR_DIRECTORY:
      return ENOTDIR;
    case ERROR_NOT_SAME_DEVICE:
      return EXDEV;
    case ERROR_INVALID_HANDLE:
      return EBADF;
    case ERROR_TOO_MANY_OPEN_FILES:
      return EMFILE;
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY:
      return ENOMEM;
    default:
      return EIO;
  }
}

int LastError() {
  return -ErrorNumber(GetLastError());
}

constexpr std::size_t kLongestName = 255;  // UTF-16 units, on every Windows file system
constexpr std::wstring_view kVerbatim = LR"(\\?\)";
constexpr std::wstring_view kDevice = LR"(\\.\)";
constexpr std::wstring_view kShare = LR"(\\)";

bool HasLongName(std::wstring_view path) {
  std::size_t start = 0;
  for (std::size_t end = 0; end != std::wstring_view::npos; start = end + 1) {
    end = path.find_first_of(L"/\\", start);
    if (std::min(end, path.size()) - start > kLongestName) return true;
  }
  return false;
}

// A path in the form that has no length limit and takes every name literally: in the usual form a path ends at 259
// characters and "CON.txt" in any folder is the console. A device named alone, such as "NUL", stays one.
std::wstring SystemPath(const std::string& text) {
  std::filesystem::path path = PathOf(text);
  if (path.empty() || path.native().starts_with(kVerbatim) || path.native().starts_with(kDevice)) return path.native();
  if (!path.has_parent_path() && !NameFault(text).empty()) return path.native();
  std::error_code unknown;
  if (!path.native().starts_with(kShare)) path = std::filesystem::current_path(unknown) / path;
  // The library takes the start of a share for a path without a drive.
  if (path.native().starts_with(kShare)) {
    const std::filesystem::path share = path.native().substr(kShare.size());
    return std::wstring(kVerbatim) + LR"(UNC\)" + share.lexically_normal().native();
  }
  path = path.lexically_normal();
  return path.is_absolute() ? std::wstring(kVerbatim) + path.native() : path.native();
}

bool IsFolder(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

struct Opening {
  DWORD Access;
  DWORD Disposition;
  DWORD Flags;
};

Opening OpeningFor(OpenFor purpose) {
  switch (purpose) {
    case OpenFor::kWriting:
      return {GENERIC_WRITE, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL};
    case OpenFor::kRewriting:
      return {GENERIC_WRITE, TRUNCATE_EXISTING, FILE_ATTRIBUTE_NORMAL};
    case OpenFor::kCreating:
      return {GENERIC_WRITE, CREATE_NEW, FILE_ATTRIBUTE_NORMAL};
    case OpenFor::kReading:
    case OpenFor::kStreaming:
    case OpenFor::kListing:
      break;
  }
  return {GENERIC_READ, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS};  // which opens folders too
}

HANDLE HandleOf(int file) {
  return reinterpret_cast<HANDLE>(_get_osfhandle(file));  // NOLINT: that is what the number is
}

// Repeats a call while it fails with one of these errors, which mean that another program has the file open.
template <typename Call>
int Patiently(std::initializer_list<int> passing, Call call) {
  int error = 0;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    if (call()) return 0;
    error = LastError();
    if (std::ranges::find(passing, -error) == passing.end()) break;
    Sleep(kPauseMilliseconds);
  }
  return error;
}

// Replaces a file that other programs may have open; they keep the old file, as on other systems. Fails on disks that
// cannot do that: NTFS can since Windows 10 1607.
bool RenameOverOpenFile(const std::wstring& oldName, const std::wstring& newName) {
  constexpr auto kFileRenameInfoEx = static_cast<FILE_INFO_BY_HANDLE_CLASS>(22);  // missing from some headers
  const HANDLE file =
      CreateFileW(oldName.c_str(), DELETE | SYNCHRONIZE, kShared, nullptr, OPEN_EXISTING,
                  FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_WRITE_THROUGH, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  const std::size_t size = newName.size() * sizeof(wchar_t);
  std::vector<std::byte> renaming(sizeof(FILE_RENAME_INFO) + size);
  FILE_RENAME_INFO start{};
  start.Flags = FILE_RENAME_FLAG_REPLACE_IF_EXISTS | FILE_RENAME_FLAG_POSIX_SEMANTICS;
  start.FileNameLength = static_cast<DWORD>(size);
  std::memcpy(renaming.data(), &start, sizeof start);
  std::memcpy(renaming.data() + offsetof(FILE_RENAME_INFO, FileName), newName.data(), size);
  const bool renamed =
      SetFileInformationByHandle(file, kFileRenameInfoEx, renaming.data(), static_cast<DWORD>(renaming.size())) != 0;
  CloseHandle(file);
  return renamed;
}

class WindowsFileCalls final : public FileCalls {
 public:
  int Open(const std::string& path, OpenFor purpose, FileMode /*mode*/) override {
    const std::wstring name = SystemPath(path);
    if (HasLongName(name)) return -ENAMETOOLONG;
    const DWORD attributes = GetFileAttributesW(name.c_str());
    const bool isThere = attributes != INVALID_FILE_ATTRIBUTES;
    const bool folder = isThere && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    const bool writes = purpose == OpenFor::kWriting || purpose == OpenFor::kRewriting;
    if (isThere && purpose == OpenFor::kCreating) return -EEXIST;
    if (isThere && !folder && purpose == OpenFor::kListing) return -ENOTDIR;
    if (folder && writes) return -EISDIR;
    // On the disk of another system, its superuser might be able to write such a file.
    if (isThere && writes && (attributes & FILE_ATTRIBUTE_READONLY) != 0) return -EACCES;
    const Opening opening = OpeningFor(purpose);
    HANDLE handle = INVALID_HANDLE_VALUE;
    const int opened = Patiently({EBUSY}, [&] {
      handle = CreateFileW(name.c_str(), opening.Access, kShared, nullptr, opening.Disposition, opening.Flags, nullptr);
      return handle != INVALID_HANDLE_VALUE;
    });
    if (opened < 0) return opened;
    const int file = _open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_BINARY | _O_NOINHERIT);
    if (file < 0) CloseHandle(handle);
    return file < 0 ? -errno : file;
  }
  std::ptrdiff_t Read(int file, std::span<char> buffer) override {
    DWORD count = 0;
    if (ReadFile(HandleOf(file), buffer.data(), static_cast<DWORD>(buffer.size()), &count, nullptr) != 0) return count;
    const DWORD error = GetLastError();
    if (error == ERROR_INVALID_FUNCTION) return -EISDIR;  // whatever else opens can be read
    return error == ERROR_BROKEN_PIPE || error == ERROR_HANDLE_EOF ? 0 : -ErrorNumber(error);
  }
  std::ptrdiff_t Write(int file, std::string_view bytes) override {
    constexpr std::size_t kMost = std::size_t{1} << 30U;
    DWORD count = 0;
    const auto size = static_cast<DWORD>(std::min(bytes.size(), kMost));
    if (WriteFile(HandleOf(file), bytes.data(), size, &count, nullptr) == 0) return LastError();
    return count;
  }
  // Folders cannot be synced and need not be: renaming has already written the new name to disk.
  int Sync(int file) override { return FlushFileBuffers(HandleOf(file)) != 0 ? 0 : LastError(); }
  int Close(int file) override {
    Unlock(file);
    return _close(file) == 0 ? 0 : -errno;
  }
  int Rename(const std::string& from, const std::string& to) override {
    const std::wstring oldName = SystemPath(from);
    const std::wstring newName = SystemPath(to);
    // ReplaceFileW would keep more of the old file, but midway there is no file of that name at all.
    const DWORD replacing = IsFolder(oldName) ? 0 : MOVEFILE_REPLACE_EXISTING;
    const int renamed = Patiently({EBUSY, EACCES}, [&] {
      if (replacing != 0 && RenameOverOpenFile(oldName, newName)) return true;
      return MoveFileExW(oldName.c_str(), newName.c_str(), replacing | MOVEFILE_WRITE_THROUGH) != 0;
    });
    return renamed == -EEXIST && !IsFolder(newName) ? -ENOTDIR : renamed;
  }
  int Unlink(const std::string& path) override {
    const std::wstring name = SystemPath(path);
    if (IsFolder(name)) return -EISDIR;
    return Patiently({EBUSY, EACCES}, [&] { return ::DeleteFileW(name.c_str()) != 0; });
  }
  int MakeFolder(const std::string& path) override {
    const std::wstring name = SystemPath(path);
    if (HasLongName(name)) return -ENAMETOOLONG;
    return CreateDirectoryW(name.c_str(), nullptr) != 0 ? 0 : LastError();
  }
  // The only permission here is whether a file may be written, and a read-only file is never replaced.
  int Mode(int file) override {
    BY_HANDLE_FILE_INFORMATION about{};
    if (GetFileInformationByHandle(HandleOf(file), &about) == 0) return LastError();
    const bool readOnly = (about.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
    return static_cast<int>(readOnly ? kReadable : kReadable | kWritable);
  }
  int SetMode(int /*file*/, FileMode /*mode*/) override { return 0; }

  // Folders cannot be locked, but a named object can exist only once, and it goes when its last holder closes it or
  // ends. It is named after the folder's place on its disk, whatever path led there.
  int TryLock(int file) override {
    BY_HANDLE_FILE_INFORMATION about{};
    if (GetFileInformationByHandle(HandleOf(file), &about) == 0) return LastError();
    const std::wstring name = L"Global\\Quillon-" + std::to_wstring(about.dwVolumeSerialNumber) + L"-" +
                              std::to_wstring(about.nFileIndexHigh) + L"-" + std::to_wstring(about.nFileIndexLow);
    const HANDLE lock = CreateMutexW(nullptr, FALSE, name.c_str());
    if (lock == nullptr) return GetLastError() == ERROR_ACCESS_DENIED ? -EWOULDBLOCK : LastError();
    if (GetLastError() == ERROR_ALREADY_EXISTS) {
      CloseHandle(lock);
      return -EWOULDBLOCK;
    }
    const std::lock_guard guard(access_);
    locks_[file] = lock;
    return 0;
  }

 private:
  void Unlock(int file) {
    const std::lock_guard guard(access_);
    if (auto lock = locks_.extract(file)) CloseHandle(lock.mapped());
  }

  std::mutex access_;
  std::map<int, HANDLE> locks_;
};

}  // namespace

FileCalls& SystemFileCalls() {
  static WindowsFileCalls calls;
  return calls;
}

// With the one separator that Windows displays.
std::filesystem::path PathOf(std::string_view text) {
  return std::filesystem::path(WideText(text)).make_preferred();
}

// For a path of more than 259 characters the library's iterators list the current folder.
FolderListing ListFolder(const std::filesystem::path& folder) {
  const std::wstring name = SystemPath(folder.string());
  if (HasLongName(name)) return {{}, std::make_error_code(std::errc::filename_too_long)};
  if (!IsFolder(name)) {
    const bool isFile = GetFileAttributesW(name.c_str()) != INVALID_FILE_ATTRIBUTES;
    return {{}, std::make_error_code(isFile ? std::errc::not_a_directory : std::errc::no_such_file_or_directory)};
  }
  FolderListing listing;
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW((name + LR"(\*)").c_str(), &found);
  if (search != INVALID_HANDLE_VALUE) {
    do {
      const std::wstring_view entry = std::begin(found.cFileName);
      if (entry == L"." || entry == L".." || WideText(NarrowText(entry)) != entry) continue;
      listing.Entries.push_back({folder / entry, (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0});
    } while (FindNextFileW(search, &found) != 0);
  }
  const DWORD error = GetLastError();
  if (search != INVALID_HANDLE_VALUE) FindClose(search);
  if (error != ERROR_NO_MORE_FILES) listing.Error = std::error_code(ErrorNumber(error), std::generic_category());
  return listing;
}

// The library's functions know no path of more than 259 characters.
std::error_code ErrorOfPath(const std::filesystem::path& path) {
  const std::wstring name = SystemPath(path.string());
  if (HasLongName(name)) return std::make_error_code(std::errc::filename_too_long);
  if (GetFileAttributesW(name.c_str()) != INVALID_FILE_ATTRIBUTES) return {};
  return {ErrorNumber(GetLastError()), std::generic_category()};
}

std::optional<std::chrono::seconds> AgeOfFile(const std::filesystem::path& path) {
  using Ticks = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;
  const auto ticks = [](const FILETIME& time) {
    return Ticks((static_cast<std::int64_t>(time.dwHighDateTime) << 32U) + time.dwLowDateTime);
  };
  WIN32_FILE_ATTRIBUTE_DATA about{};
  if (GetFileAttributesExW(SystemPath(path.string()).c_str(), GetFileExInfoStandard, &about) == 0) return {};
  if ((about.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) != 0) return {};
  FILETIME now{};
  GetSystemTimeAsFileTime(&now);
  return std::chrono::floor<std::chrono::seconds>(ticks(now) - ticks(about.ftLastWriteTime));
}

// A path in other letters than the disk has is no link. Where the disk does not answer, as some RAM disks do not, the
// path is taken to be its own end.
std::filesystem::path EndOfLinks(const std::filesystem::path& path) {
  constexpr DWORD kLongestPath = 1U << 15U;
  const std::wstring name = SystemPath(path.string());
  const HANDLE file =
      CreateFileW(name.c_str(), 0, kShared, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (file == INVALID_HANDLE_VALUE) return path;
  std::wstring end(kLongestPath, L'\0');
  const DWORD size = GetFinalPathNameByHandleW(file, end.data(), kLongestPath, FILE_NAME_NORMALIZED);
  CloseHandle(file);
  if (size == 0 || size > kLongestPath) return path;
  end.resize(size);
  const bool isItself = CompareStringOrdinal(end.c_str(), -1, name.c_str(), -1, TRUE) == CSTR_EQUAL;
  return isItself ? path : std::filesystem::path(end);
}

std::string ReasonOf(int systemError) {
  if (systemError == EBUSY) return "Another program has it open";  // to the library it is a "Resource device"
  return std::generic_category().message(systemError);
}

bool IsQuotaError(int /*systemError*/) {
  return false;  // ErrorNumber maps it to a full disk
}

}  // namespace quillon
