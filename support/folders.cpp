#include "support/folders.h"

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <system_error>

#include "support/run_time_error.h"
#include "support/uninterrupted.h"
#include "support/windows_1252.h"

namespace quillon {
namespace {

// To a caller who makes a folder, "File not found" would speak of the wrong thing: what is missing is on the way to it.
RunTimeFault FaultOfMaking(int systemError) {
  return systemError == ENOENT ? RunTimeFault::kPathNotFound : RunTimeFaultOf(systemError);
}

}  // namespace

std::filesystem::path ExecutableFolder() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

bool FolderExists(const std::filesystem::path& path, FileCalls& calls) {
  std::string text = path.string();
  if (!text.ends_with('/')) text += '/';

  // Opened for reading: what cannot be listed does not count as being there. A folder that opens
  // always lists something, itself.
  const int folder = Uninterrupted([&] { return calls.Open(text, O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0); });
  if (folder < 0) return false;
  calls.Close(folder);
  return true;
}

void MakeFolder(const std::filesystem::path& path, FileCalls& calls) {
  const int made = Uninterrupted([&] { return calls.MakeFolder(path.string()); });
  if (made >= 0) return;
  throw RunTimeError(FaultOfMaking(-made),
                     TextOfFileName(path.string()) + ": " + std::generic_category().message(-made));
}

void MakeFolderIfMissing(const std::filesystem::path& path, FileCalls& calls) {
  if (!FolderExists(path, calls)) MakeFolder(path, calls);
}

}  // namespace quillon
