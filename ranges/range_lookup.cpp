#include "ranges/range_lookup.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "hand/hand_classes.h"
#include "ranges/nearest_names.h"
#include "ranges/range_lists.h"
#include "ranges/range_text.h"
#include "support/folders.h"
#include "support/joined_text.h"

namespace quillon {
namespace {

// A text may read as a range without being one, such as a letter. A range has at least one class with a weight.
bool HoldsAnEntry(std::string_view text) {
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    if (text.find(std::string(HandLabel(index)) + " (") != std::string_view::npos) return true;
  }
  return false;
}

std::vector<std::string> RangeNames(const ProgramFolder& folder) {
  std::vector<std::string> names;
  for (const std::string& file : RangeFolderEntries(folder)) {
    if (auto name = Attempt([&] { return RangeNameOfFile(file); })) names.push_back(*std::move(name));
  }
  return names;
}

// A name with a separator would lead out of the range folder.
bool HasFile(const std::string& name, const ProgramFolder& folder) {
  if (name.find('\0') != std::string::npos || PathOf(RangeFileName(name)).has_parent_path()) return false;
  return IsThere(RangeFilePath(folder, name));
}

}  // namespace

bool IsReadable(const std::string& name, const ProgramFolder& folder) {
  const std::string text = LoadRangeText(folder, name);
  return HoldsAnEntry(text) && Attempt([&] { return SelectedCombos(text); });
}

std::optional<std::string> WhyUnreadable(const std::string& name, const ProgramFolder& folder) {
  if (IsReadable(name, folder)) return std::nullopt;
  return Joined({"The range \"", name, "\" cannot be read: ", RangeFilePath(folder, name).string(),
                 " is missing, empty or no range file."});
}

std::optional<std::string> WhyUnknown(const std::string& name, const ProgramFolder& folder) {
  constexpr std::size_t kSuggestions = 3;
  if (HasFile(name, folder)) return std::nullopt;
  std::string reason = Joined({"There is no range \"", name, "\" in ", RangeFolderPath(folder).string(), "."});
  std::string_view separator = " The nearest names: ";
  for (const std::string& near : NearestNames(name, RangeNames(folder), kSuggestions)) {
    reason += Joined({separator, "\"", near, "\""});
    separator = ", ";
  }
  return reason;
}

}  // namespace quillon
