#include "ranges/range_files.h"

#include <system_error>

#include "ranges/range_text.h"
#include "support/file_names.h"
#include "support/folders.h"
#include "support/run_time_error.h"

namespace quillon {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

// The system would cut a path at its first NUL character and so reach another range's file.
bool CanNameFile(std::string_view name) {
  return name.find('\0') == std::string_view::npos;
}

void RequireFileName(std::string_view name) {
  if (CanNameFile(name)) return;
  throw RunTimeError(RunTimeFault::kBadFileName, "a NUL character in the name of a range");
}

// Whether deleting `oldFile` would also delete what was saved as `newFile`: names that differ in case may be one file,
// and the new name may be a link to the old file. If the old name is a link itself, only the link is deleted.
bool HoldsContentOf(const std::filesystem::path& oldFile, const std::filesystem::path& newFile) {
  std::error_code unknown;
  return !std::filesystem::is_symlink(oldFile, unknown) && std::filesystem::equivalent(oldFile, newFile, unknown);
}

}  // namespace

std::filesystem::path RangeFolderPath(const ProgramFolder& folder) {
  return folder.Path / "Ranges";
}

std::filesystem::path RangeFilePath(const ProgramFolder& folder, std::string_view name) {
  return FileOfName(RangeFolderPath(folder), RangeFileName(name));
}

std::string LoadRangeText(const ProgramFolder& folder, std::string_view name) {
  if (!CanNameFile(name)) return {};
  std::string text = ReadAllText(RangeFilePath(folder, name), *folder.Calls);
  if (text.ends_with(kLineEnd)) text.resize(text.size() - kLineEnd.size());
  return text;
}

void SaveRangeText(const ProgramFolder& folder, std::string_view name, std::string_view text) {
  RequireFileName(name);
  WriteAllText(text, RangeFilePath(folder, name), folder.Path, *folder.Calls);
}

void DeleteRange(const ProgramFolder& folder, std::string_view name) {
  RequireFileName(name);
  DeleteFile(RangeFilePath(folder, name), *folder.Calls);
}

void RenameRange(const ProgramFolder& folder, std::string_view oldName, std::string_view newName,
                 std::string_view text) {
  RequireFileName(oldName);
  const std::filesystem::path oldFile = RangeFilePath(folder, oldName);
  if (const std::error_code error = ErrorOfPath(oldFile)) FailOnFile(error.default_error_condition().value(), oldFile);

  SaveRangeText(folder, newName, text);
  // Not every system gives a replaced file the new name's letter case; the system treats both as the same name.
  if (IsSameName(oldName, newName)) {
    if (oldName != newName)
      static_cast<void>(folder.Calls->Rename(oldFile.string(), RangeFilePath(folder, newName).string()));
    return;
  }
  if (!HoldsContentOf(oldFile, RangeFilePath(folder, newName))) DeleteRange(folder, oldName);
}

bool RangeExists(const ProgramFolder& folder, std::string_view name) {
  return !LoadRangeText(folder, name).empty();
}

}  // namespace quillon
