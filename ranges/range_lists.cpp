#include "ranges/range_lists.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <utility>

#include "ranges/range_text.h"
#include "support/folders.h"
#include "support/letter_case.h"
#include "support/run_time_error.h"
#include "support/utf8.h"

namespace quillon {
namespace {

constexpr int kExtensionLength = 4;

// Where the last four characters of a file's name begin; nothing if it is shorter.
std::optional<std::size_t> StartOfExtension(std::string_view fileName) {
  std::size_t start = fileName.size();
  for (int taken = 0; taken < kExtensionLength; ++taken) {
    if (start == 0) return std::nullopt;
    --start;
    while (start > 0 && !StartsUtf8Character(fileName[start]))
      --start;
  }
  return start;
}

// By the listed names: by file names "Big Blind.txt" would come after "Big Blind 2.txt".
std::u32string SortingKey(std::string_view fileName) {
  return WithoutCase(fileName.substr(0, StartOfExtension(fileName).value_or(fileName.size())));
}

}  // namespace

std::vector<std::string> RangeFolderEntries(const ProgramFolder& folder) {
  std::multiset<std::pair<std::u32string, std::string>>
      entries;  // the key, and the name, since two files may have the same key
  for (const std::string& name : FileNamesIn(RangeFolderPath(folder)))
    entries.emplace(SortingKey(name), name);
  std::vector<std::string> names;
  names.reserve(entries.size());
  for (const auto& [key, name] : entries)
    names.push_back(name);
  return names;
}

std::string RangeNameOfFile(std::string_view fileName) {
  const std::optional<std::size_t> start = StartOfExtension(fileName);
  if (!start) {
    throw RunTimeError(
        RunTimeFault::kInvalidProcedureCall,
        "the file \"" + std::string(fileName) + "\" among the ranges has a name of fewer than four characters");
  }
  return std::string(fileName.substr(0, *start));
}

std::string ListedFileName(const ProgramFolder& folder, std::string_view name) {
  std::string usual = RangeFileName(name);
  std::vector<std::string> files;
  try {
    files = RangeFolderEntries(folder);
  } catch (const RunTimeError&) {
    return usual;  // the caller reports its own fault
  }
  if (std::ranges::find(files, usual) != files.end()) return usual;
  const auto isListedSo = [name](std::string_view file) {
    const std::optional<std::size_t> start = StartOfExtension(file);
    return start && file.substr(0, *start) == name;
  };
  const auto found = std::ranges::find_if(files, isListedSo);
  return found == files.end() ? usual : *found;
}

std::optional<int> EntryIndex(std::span<const std::string> entries, std::string_view name) {
  const auto found = std::find(entries.begin(), entries.end(), name);
  if (found == entries.end()) return std::nullopt;
  return static_cast<int>(found - entries.begin());
}

RangeListContents FillRangeList(const ProgramFolder& folder, ListStart start, std::string_view wanted) {
  RangeListContents contents;
  if (start == ListStart::kBlankEntry) contents.Entries.emplace_back();
  for (const std::string& file : RangeFolderEntries(folder))
    contents.Entries.push_back(RangeNameOfFile(file));
  if (!contents.Entries.empty()) contents.Selected = EntryIndex(contents.Entries, wanted).value_or(0);
  return contents;
}

}  // namespace quillon
