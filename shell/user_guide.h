#pragma once

// The user guide, which comes with the program; F1 opens it in the browser.

#include <filesystem>

#include "support/message_boxes.h"

namespace quillon {

/// Its path: "Guide/user-guide.html" in the folder of shared files, with its pictures.
[[nodiscard]] std::filesystem::path UserGuidePath(const std::filesystem::path& sharedFolder);

/// The message if nothing opens it.
[[nodiscard]] Message NoUserGuideMessage(const std::filesystem::path& guide);

}  // namespace quillon
