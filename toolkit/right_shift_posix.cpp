#include "toolkit/right_shift.h"

namespace quillon {

bool IsRightShift(const QKeyEvent& key) {
  constexpr quint32 kSymbol = 0xFFE2;  // the X keysym, which Wayland uses too
  return key.nativeVirtualKey() == kSymbol;
}

}  // namespace quillon
