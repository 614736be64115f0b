#include "tools/saved_range.h"

#include "ranges/range_names.h"

namespace quillon {

bool MaySave(CommandInputs& inputs, const std::string& name, bool replace, const Surroundings& surroundings) {
  if (name.find('\0') != std::string::npos) {
    inputs.Refuse("a name holds no NUL character");
    return false;
  }
  if (replace && RangeExists(inputs.Folder(), name)) return true;
  PrintedMessages messages(surroundings.Errors);
  return ValidateRangeName(inputs.Folder(), name, messages);
}

}  // namespace quillon
