#pragma once

// The user guide, which comes with the program and which F1 opens in the browser.

#include <filesystem>

#include "support/message_boxes.h"

namespace quillon {

/// Where it is: "Guide/user-guide.html" in the folder of what came with the program, with its pictures.
[[nodiscard]] std::filesystem::path UserGuidePath(const std::filesystem::path& sharedFolder);

/// What the user is told where nothing opens it.
[[nodiscard]] Message NoUserGuideMessage(const std::filesystem::path& guide);

}  // namespace quillon
