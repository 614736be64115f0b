#include "toolkit/right_shift.h"

namespace quillon {

bool IsRightShift(const QKeyEvent& key) {
  constexpr quint32 kSymbol = 0xFFE2;  // the X window system's name for it, which Wayland has taken over
  return key.nativeVirtualKey() == kSymbol;
}

}  // namespace quillon
