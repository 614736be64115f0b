#include "ranges/range_files.h"

#include "support/run_time_error.h"

namespace quillon {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

// The system would take a path up to its first NUL character and so reach the file of another range.
bool CanNameFile(std::string_view name) {
  return name.find('\0') == std::string_view::npos;
}

}  // namespace

std::filesystem::path RangeFolderPath(const ProgramFolder& folder) {
  return folder.Path / "Ranges";
}

std::filesystem::path RangeFilePath(const ProgramFolder& folder, std::string_view name) {
  // Joined as text: the path operator would let a name that starts with a separator replace the folder.
  return RangeFolderPath(folder).string().append("/").append(name).append(".txt");
}

std::string LoadRangeText(const ProgramFolder& folder, std::string_view name) {
  if (!CanNameFile(name)) return {};
  std::string text = ReadAllText(RangeFilePath(folder, name), *folder.Calls);
  if (text.ends_with(kLineEnd)) text.resize(text.size() - kLineEnd.size());
  return text;
}

void SaveRangeText(const ProgramFolder& folder, std::string_view name, std::string_view text) {
  if (!CanNameFile(name)) {
    throw RunTimeError(RunTimeFault::kBadFileName, "a NUL character in the name of a range");
  }
  WriteAllText(text, RangeFilePath(folder, name), folder.Path, *folder.Calls);
}

bool RangeExists(const ProgramFolder& folder, std::string_view name) {
  return !LoadRangeText(folder, name).empty();
}

}  // namespace quillon
