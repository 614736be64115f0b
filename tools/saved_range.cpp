#include "tools/saved_range.h"

#include <algorithm>

#include "ranges/range_names.h"

namespace quillon {

bool MaySave(CommandInputs& inputs, const std::string& name, bool replace, const Surroundings& surroundings) {
  // The dialogs' boxes let none in.
  if (std::ranges::any_of(name, [](unsigned char c) { return c < ' ' || c == '\x7f'; })) {
    inputs.Refuse("A range name is one line without control characters.");
    return false;
  }
  PrintedMessages messages(surroundings.Errors);
  return ValidateRangeName(inputs.Folder(), name, messages, replace);
}

}  // namespace quillon
