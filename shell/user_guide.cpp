#include "shell/user_guide.h"

#include "support/windows_1252.h"

namespace quillon {

std::filesystem::path UserGuidePath(const std::filesystem::path& sharedFolder) {
  return sharedFolder / "Guide" / "user-guide.html";
}

Message NoUserGuideMessage(const std::filesystem::path& guide) {
  return {.text = "The user guide could not be opened. It is the file:\r\n\r\n" + TextOfFileName(guide.string()),
          .icon = MessageIcon::kExclamation};
}

}  // namespace quillon
