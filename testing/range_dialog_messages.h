#pragma once

// What the range dialogs say and ask.

#include <string>

#include "support/message_boxes.h"

namespace quillon {

inline Message Saved(const std::string& name) {
  return {"Quillon", "The range \"" + name + "\" was saved successfully!", MessageIcon::kInformation,
          MessageButtons::kOk};
}
inline Message NoName() {
  return {"Error", "You must choose a name for this range.", MessageIcon::kStop, MessageButtons::kOk};
}
inline Message Exists(const std::string& name) {
  return {"Error", "A range with the name \"" + name + "\" already exists.\r\n\r\nPlease choose another name.",
          MessageIcon::kStop, MessageButtons::kOk};
}
inline Message AskToDelete(const std::string& name) {
  return {"Delete?", "Do you really want to delete \"" + name + "\"?", MessageIcon::kQuestion,
          MessageButtons::kYesNoCancel};
}
inline Message AskToSave(const std::string& name) {
  return {"Save Range?",
          "The range \"" + name + "\" has changed since you last saved it.\r\n\r\nDo you want to save the range now?",
          MessageIcon::kQuestion, MessageButtons::kYesNoCancel};
}

}  // namespace quillon
