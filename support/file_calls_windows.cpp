// The calls on files, made of those of Windows. What is open can be renamed, replaced and deleted meanwhile, as the
// rest of the program expects, and what is under a name changes in one step.

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <io.h>
#include <map>
#include <mutex>
#include <utility>
#include <windows.h>

#include "support/files.h"
#include "support/text_windows.h"

namespace quillon {
namespace {

constexpr FileMode kReadable = 0444;
constexpr FileMode kWritable = 0222;
constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Virus scanners and indexers open a file that has just been written, and for that moment it cannot be replaced.
constexpr int kAttempts = 20;
constexpr DWORD kPauseMilliseconds = 10;

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
    case OpenFor::kReading:
    case OpenFor::kStreaming:
      return {GENERIC_READ, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL};
    case OpenFor::kWriting:
      return {GENERIC_WRITE, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL};
    case OpenFor::kRewriting:
      return {GENERIC_WRITE, TRUNCATE_EXISTING, FILE_ATTRIBUTE_NORMAL};
    case OpenFor::kCreating:
      return {GENERIC_WRITE, CREATE_NEW, FILE_ATTRIBUTE_NORMAL};
    case OpenFor::kListing:
      break;
  }
  return {GENERIC_READ, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS};  // which folders are opened with
}

HANDLE HandleOf(int file) {
  return reinterpret_cast<HANDLE>(_get_osfhandle(file));  // NOLINT: that is what the number is
}

// Repeats what is refused while another program looks at the file.
template <typename Call>
int Patiently(Call call) {
  int error = 0;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    if (call()) return 0;
    error = LastError();
    if (error != -EBUSY && error != -EACCES) break;
    Sleep(kPauseMilliseconds);
  }
  return error;
}

class WindowsFileCalls final : public FileCalls {
 public:
  int Open(const std::string& path, OpenFor purpose, FileMode /*mode*/) override {
    const std::wstring name = WideText(path);
    const bool folder = IsFolder(name);
    if (folder != (purpose == OpenFor::kListing) && GetFileAttributesW(name.c_str()) != INVALID_FILE_ATTRIBUTES) {
      if (purpose == OpenFor::kCreating) return -EEXIST;
      return folder ? -EISDIR : -ENOTDIR;
    }
    const Opening opening = OpeningFor(purpose);
    const HANDLE handle =
        CreateFileW(name.c_str(), opening.Access, kShared, nullptr, opening.Disposition, opening.Flags, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return LastError();
    const int file = _open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_BINARY | _O_NOINHERIT);
    if (file < 0) CloseHandle(handle);
    return file < 0 ? -errno : file;
  }
  std::ptrdiff_t Read(int file, std::span<char> buffer) override {
    DWORD count = 0;
    if (ReadFile(HandleOf(file), buffer.data(), static_cast<DWORD>(buffer.size()), &count, nullptr) != 0) return count;
    const DWORD error = GetLastError();
    return error == ERROR_BROKEN_PIPE || error == ERROR_HANDLE_EOF ? 0 : -ErrorNumber(error);
  }
  std::ptrdiff_t Write(int file, std::string_view bytes) override {
    constexpr std::size_t kMost = std::size_t{1} << 30U;
    DWORD count = 0;
    const auto size = static_cast<DWORD>(std::min(bytes.size(), kMost));
    if (WriteFile(HandleOf(file), bytes.data(), size, &count, nullptr) == 0) return LastError();
    return count;
  }
  // A folder cannot be synced and need not be: MOVEFILE_WRITE_THROUGH has brought the new name to the disk.
  int Sync(int file) override { return FlushFileBuffers(HandleOf(file)) != 0 ? 0 : LastError(); }
  int Close(int file) override {
    Unlock(file);
    return _close(file) == 0 ? 0 : -errno;
  }
  int Rename(const std::string& from, const std::string& to) override {
    const std::wstring oldName = WideText(from);
    const std::wstring newName = WideText(to);
    return Patiently([&] {
      return MoveFileExW(oldName.c_str(), newName.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
    });
  }
  int Unlink(const std::string& path) override {
    const std::wstring name = WideText(path);
    return Patiently([&] { return ::DeleteFileW(name.c_str()) != 0; });
  }
  int MakeFolder(const std::string& path) override {
    return CreateDirectoryW(WideText(path).c_str(), nullptr) != 0 ? 0 : LastError();
  }
  // Of the permissions this system has only whether a file may be written, and one that may not is never replaced.
  int Mode(int file) override {
    BY_HANDLE_FILE_INFORMATION about{};
    if (GetFileInformationByHandle(HandleOf(file), &about) == 0) return LastError();
    const bool readOnly = (about.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
    return static_cast<int>(readOnly ? kReadable : kReadable | kWritable);
  }
  int SetMode(int /*file*/, FileMode /*mode*/) override { return 0; }

  // A folder cannot be locked, but there is only one object of a name, and it is gone when the last who holds it has
  // closed it or has ended. The name is that of the folder on its disk, by whatever path it was reached.
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

std::filesystem::path PathOf(std::string_view text) {
  return WideText(text);
}

bool IsQuotaError(int /*systemError*/) {
  return false;  // ErrorNumber has made it a full disk
}

}  // namespace quillon
