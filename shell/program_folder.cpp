#include "shell/program_folder.h"

#include <cerrno>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "ranges/range_files.h"
#include "support/folder_lock.h"
#include "support/folders.h"
#include "support/message_boxes.h"
#include "support/run_time_error.h"
#include "support/uninterrupted.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

bool IsInstalled(const fs::path& executableFolder) {
  std::error_code unknown;
  return fs::exists(executableFolder / kPackageMarker, unknown);
}

// The base folder for user data.
fs::path DataHome(const EnvironmentVariable& variable) {
  fs::path dataHome = PathOf(variable("XDG_DATA_HOME"));
  if (dataHome.is_absolute()) return dataHome;
  const fs::path home = PathOf(variable("HOME"));
  if (home.is_absolute()) return home / ".local" / "share";
  throw RunTimeError(RunTimeFault::kPathNotFound,
                     "HOME and XDG_DATA_HOME are not set, and one of them has to say where ranges are kept");
}

// Creates the folder with its parents. An existing one need not be listable.
void MakeFolders(const fs::path& path, FileCalls& calls) {
  const auto make = [&] { return calls.MakeFolder(path.string()); };
  int made = Uninterrupted(make);
  if (made == -ENOENT && path.has_relative_path()) {
    MakeFolders(path.parent_path(), calls);
    made = Uninterrupted(make);
  }
  if (made < 0 && made != -EEXIST) FailOnFile(-made, path);
}

void CopyFile(const fs::path& from, const fs::path& to, FileCalls& calls) {
  const std::optional<std::string> bytes = TryReadAllBytes(from, calls);
  if (!bytes) FailOnFile(EIO, from, "; it is part of the package, so install Quillon again");
  ReplaceFile(to, *bytes, to.parent_path(), calls);
}

void CopyExamples(const fs::path& from, const fs::path& to, FileCalls& calls) {
  MakeFolder(to, calls);
  std::error_code error;
  fs::directory_iterator entry(from, error);
  for (const fs::directory_iterator end; !error && entry != end; entry.increment(error))
    CopyFile(entry->path(), to / entry->path().filename(), calls);
  if (error)
    FailOnFile(error.default_error_condition().value(), from, "; it is part of the package, so install Quillon again");
}

// A folder that gets its final name once complete, and is deleted otherwise.
class Draft {
 public:
  Draft(fs::path path, FileCalls& calls) : path_(std::move(path)) {
    Remove();  // left over from a start that was killed
    MakeFolder(path_, calls);
  }
  Draft(const Draft&) = delete;
  Draft& operator=(const Draft&) = delete;
  ~Draft() { Remove(); }

 private:
  void Remove() const {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }

  fs::path path_;
};

void MakeProgramFolder(const fs::path& path, const fs::path& examples, FileCalls& calls) {
  MakeFolders(path.parent_path(), calls);
  const FolderLock lock(path.parent_path(), calls);
  if (FolderExists(path, calls)) return;  // another copy of the program was faster
  const fs::path draftPath = path.parent_path() / ".Quillon.new";
  const Draft draft(draftPath, calls);
  CopyExamples(examples, RangeFolderPath({draftPath}), calls);
  const int named = Uninterrupted([&] { return calls.Rename(draftPath.string(), path.string()); });
  if (named < 0) FailOnFile(-named, path);
}

}  // namespace

fs::path SharedFolderPath(const fs::path& executableFolder) {
  if (!IsInstalled(executableFolder)) return executableFolder;
  const std::string marker = ReadAllBytes(executableFolder / kPackageMarker);
  return (executableFolder / PathOf(std::string_view(marker).substr(0, marker.find('\n')))).lexically_normal();
}

fs::path ProgramFolderPath(const fs::path& executableFolder, const EnvironmentVariable& variable, FileCalls& calls) {
  if (!IsInstalled(executableFolder)) return executableFolder;
  fs::path path = DataHome(variable) / kApplicationTitle;
  if (!FolderExists(path, calls)) MakeProgramFolder(path, RangeFolderPath({SharedFolderPath(executableFolder)}), calls);
  return path;
}

}  // namespace quillon
