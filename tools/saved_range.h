#pragma once

// Saves ranges from the command line, with the dialogs' rules for names.

#include <string>

#include "tools/command_inputs.h"

namespace quillon {

/// Whether a range may be saved under this name; if not, reports why. With `replace` it may replace an existing range.
[[nodiscard]] bool MaySave(CommandInputs& inputs, const std::string& name, bool replace,
                           const Surroundings& surroundings);

/// A range's name and text.
struct NamedText {
  std::string Name;
  std::string Text;
};

/// Saves both ranges, as SaveRangeText does, or neither: if the second cannot be saved, the first is restored, or
/// deleted if it is new, before the RunTimeError is thrown. A file that can be written but not read could not be
/// restored, so it fails too, before anything is written. If restoring fails, that is the error.
void SaveBoth(const ProgramFolder& folder, const NamedText& first, const NamedText& second);

}  // namespace quillon
