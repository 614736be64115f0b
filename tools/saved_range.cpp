#include "tools/saved_range.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <optional>

#include "ranges/range_names.h"
#include "support/files.h"
#include "support/folders.h"
#include "support/run_time_error.h"

namespace quillon {

bool MaySave(CommandInputs& inputs, const std::string& name, bool replace, const Surroundings& surroundings) {
  // The dialogs' boxes accept none.
  if (std::ranges::any_of(name, [](unsigned char c) { return c < ' ' || c == '\x7f'; })) {
    inputs.Refuse("A range name is one line without control characters.");
    return false;
  }
  PrintedMessages messages(surroundings.Errors);
  return ValidateRangeName(inputs.Folder(), name, messages, replace);
}

void SaveBoth(const ProgramFolder& folder, const NamedText& first, const NamedText& second) {
  const std::filesystem::path named = RangeFilePath(folder, first.Name);
  const std::filesystem::path file = EndOfLinks(named);
  const bool isNew = !IsThere(file);
  const std::optional<std::string> before = TryReadAllBytes(file, *folder.Calls);
  if (!before) FailOnFile(EACCES, named);
  SaveRangeText(folder, first.Name, first.Text);
  try {
    SaveRangeText(folder, second.Name, second.Text);
  } catch (const RunTimeError&) {
    if (isNew)
      DeleteFile(file, *folder.Calls);
    else
      ReplaceFile(file, *before, folder.Path, *folder.Calls);
    throw;
  }
}

}  // namespace quillon
