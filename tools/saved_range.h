#pragma once

// Saving ranges from the command line, by the rules that names have in the dialogs.

#include <string>

#include "tools/command_inputs.h"

namespace quillon {

/// Whether a range may be saved under this name; if not, the reason has been told. With `replace` an existing
/// range of that name is no reason to refuse it.
[[nodiscard]] bool MaySave(CommandInputs& inputs, const std::string& name, bool replace,
                           const Surroundings& surroundings);

/// A range's name and text.
struct NamedText {
  std::string Name;
  std::string Text;
};

/// Saves both ranges, as SaveRangeText does, or neither: where the second cannot be saved, the first is as it was, or
/// gone if it is new, when the RunTimeError is thrown. What can be written but not read could not be put back, so it is
/// such a failure too, before anything is written. If putting the first back fails, the error is that one.
void SaveBoth(const ProgramFolder& folder, const NamedText& first, const NamedText& second);

}  // namespace quillon
