#include "ranges/range_lists.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <system_error>
#include <utility>

#include "support/run_time_error.h"

namespace quillon {
namespace {

constexpr int kExtensionLength = 4;

[[noreturn]] void FailToList(const std::filesystem::path& folder, const std::error_code& error) {
  const bool missing = error == std::errc::no_such_file_or_directory;
  throw RunTimeError(missing ? RunTimeFault::kPathNotFound : RunTimeFaultOf(error.value()),
                     folder.string() + ": " + error.message());
}

// In UTF-8 the letters of Latin-1 are the byte C3 and a second one, and their cases are 20 apart like those of ASCII.
// The multiplication sign stands among the capitals and has no lower case.
std::string LowerCase(std::string text) {
  char previous = '\0';
  for (char& c : text) {
    const auto byte = static_cast<unsigned char>(c);
    const bool latinCapital = previous == '\xC3' && byte >= 0x80 && byte <= 0x9E && byte != 0x97;
    previous = c;
    if (latinCapital || (c >= 'A' && c <= 'Z')) c = static_cast<char>(byte + 0x20);
  }
  return text;
}

bool ContinuesCharacter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

std::optional<int> EntryIndex(const ChooserList& list, std::string_view text) {
  for (int index = 0; index < list.Count(); ++index) {
    if (list.Entry(index) == text) return index;
  }
  return std::nullopt;
}

}  // namespace

std::vector<std::string> RangeFolderEntries(const ProgramFolder& folder) {
  using Sortable = std::pair<std::string, std::string>;  // the name in lower case, the name
  const std::filesystem::path path = RangeFolderPath(folder);

  std::vector<Sortable> entries;
  std::error_code error;
  std::filesystem::directory_iterator file(path, error);
  for (const std::filesystem::directory_iterator end; !error && file != end; file.increment(error)) {
    // What cannot be looked at, such as a link to nowhere, is listed too: it reads as a missing range.
    std::error_code unknown;
    if (file->is_directory(unknown)) continue;
    std::string name = file->path().filename().string();
    std::string key = LowerCase(name);
    entries.emplace_back(std::move(key), std::move(name));
  }
  if (error) FailToList(path, error);

  std::sort(entries.begin(), entries.end());
  std::vector<std::string> names;
  names.reserve(entries.size());
  for (Sortable& entry : entries)
    names.push_back(std::move(entry.second));
  return names;
}

std::string RangeNameOfFile(std::string_view fileName) {
  std::size_t length = fileName.size();
  for (int taken = 0; taken < kExtensionLength; ++taken) {
    if (length == 0) throw RunTimeError(RunTimeFault::kInvalidProcedureCall, fileName);
    --length;
    while (length > 0 && ContinuesCharacter(fileName[length]))
      --length;
  }
  return std::string(fileName.substr(0, length));
}

void FillRangeList(ChooserList& list, const ProgramFolder& folder, std::string_view selection) {
  std::vector<std::string> names = RangeFolderEntries(folder);
  for (std::string& name : names)
    name = RangeNameOfFile(name);
  const std::string wanted = selection.empty() ? list.CurrentText() : std::string(selection);

  list.Clear();
  if (list.ControlName().find("cmbo") != std::string::npos) list.Add("");
  for (const std::string& name : names)
    list.Add(name);

  if (list.Count() > 0) list.Select(EntryIndex(list, wanted).value_or(0));
}

void SelectListEntry(ChooserList& list, std::string_view name) {
  if (const std::optional<int> index = EntryIndex(list, name)) list.Select(*index);
}

void RefreshRangeLists(std::span<ChooserList* const> lists, const ProgramFolder& folder) {
  for (ChooserList* const list : lists)
    FillRangeList(*list, folder, {});
}

}  // namespace quillon
