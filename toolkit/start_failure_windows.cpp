#include <windows.h>

#include "support/message_boxes.h"
#include "support/text_windows.h"
#include "toolkit/start_failure.h"

namespace quillon {

void TellStartFailure(const std::string& text) {
  MessageBoxW(nullptr, WideText(text).c_str(), WideText(kApplicationTitle).c_str(), MB_OK | MB_ICONERROR);
}

}  // namespace quillon
