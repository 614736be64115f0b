#include "support/folders.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include "support/run_time_error.h"
#include "support/uninterrupted.h"
#include "support/windows_1252.h"

namespace quillon {
namespace {

// For a folder, "File not found" would be misleading: what is missing is a folder on the path.
[[noreturn]] void FailOnFolder(int systemError, std::string_view reason, const std::filesystem::path& folder) {
  throw RunTimeError(systemError == ENOENT ? RunTimeFault::kPathNotFound : RunTimeFaultOf(systemError),
                     TextOfFileName(folder.string()).append(": ").append(reason));
}

// Concatenated as text: with operator/ a name that starts with a separator would replace the folder.
std::filesystem::path PathOfBytes(const std::filesystem::path& folder, std::string_view name) {
  return PathOf(folder.string().append("/").append(name));
}

}  // namespace

bool IsThere(const std::filesystem::path& file) {
  return !ErrorOfPath(file);
}

bool FolderExists(const std::filesystem::path& path, FileCalls& calls) {
  std::string text = path.string();
  if (!text.ends_with('/')) text += '/';

  // Opened for reading: a folder that cannot be listed does not count. One that opens always lists at least ".".
  const int folder = Uninterrupted([&] { return calls.Open(text, OpenFor::kListing, 0); });
  if (folder < 0) return false;
  calls.Close(folder);
  return true;
}

void MakeFolder(const std::filesystem::path& path, FileCalls& calls) {
  const int made = Uninterrupted([&] { return calls.MakeFolder(path.string()); });
  if (made < 0) FailOnFolder(-made, ReasonOf(-made), path);
}

void MakeFolderIfMissing(const std::filesystem::path& path, FileCalls& calls) {
  if (!FolderExists(path, calls)) MakeFolder(path, calls);
}

std::vector<std::string> FileNamesIn(const std::filesystem::path& folder) {
  const FolderListing listing = ListFolder(folder);
  if (const std::error_code& error = listing.Error)
    FailOnFolder(error.default_error_condition().value(), error.message(), folder);
  std::vector<std::string> names;
  for (const FolderEntry& file : listing.Entries) {
    // What cannot be examined, such as a dangling link, is listed too: it reads as a missing file.
    if (file.IsFolder) continue;
    std::string name = TextOfFileName(file.Path.filename().string());
    if (!IsScratchName(name)) names.push_back(std::move(name));
  }
  return names;
}

std::filesystem::path FileOfName(const std::filesystem::path& folder, std::string_view name) {
  std::filesystem::path usual = PathOfBytes(folder, name);
  const std::string bytes = Windows1252FromUtf8(name);
  if (bytes == name || TextOfFileName(bytes) != name || IsThere(usual)) return usual;
  std::filesystem::path old = PathOfBytes(folder, bytes);
  return IsThere(old) ? old : usual;
}

}  // namespace quillon
