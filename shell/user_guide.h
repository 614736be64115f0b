#pragma once

// The user guide beside the program, which F1 opens in the browser.

#include <filesystem>

#include "ranges/range_files.h"
#include "support/message_boxes.h"

namespace quillon {

/// Where it is: "Guide/user-guide.html" in the program's folder, with its pictures.
[[nodiscard]] std::filesystem::path UserGuidePath(const ProgramFolder& folder);

/// What the user is told where nothing opens it.
[[nodiscard]] Message NoUserGuideMessage(const std::filesystem::path& guide);

}  // namespace quillon
