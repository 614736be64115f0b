#include "shell/saved_page.h"

#include <string>

#include "shell/grid_image.h"
#include "support/windows_1252.h"

namespace quillon {

Message OpenPageQuestion() {
  return {.title = std::string(kOpenNowTitle),
          .text = "Web page saved successfully.\r\n\r\nDo you want to open the web page now?",
          .icon = MessageIcon::kQuestion,
          .buttons = MessageButtons::kYesNo};
}

Message PageNotOpenedMessage(const std::filesystem::path& page) {
  return {.text = "The web page could not be opened. It is the file:\r\n\r\n" + TextOfFileName(page.string()),
          .icon = MessageIcon::kExclamation};
}

}  // namespace quillon
