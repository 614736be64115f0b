#pragma once

// Saving ranges from the command line, by the rules that names have in the dialogs.

#include <string>

#include "tools/command_inputs.h"

namespace quillon {

/// Whether a range may be saved under this name; if not, the reason has been told. With `replace` an existing
/// range of that name is no reason to refuse it.
[[nodiscard]] bool MaySave(CommandInputs& inputs, const std::string& name, bool replace,
                           const Surroundings& surroundings);

}  // namespace quillon
