#include "toolkit/right_shift.h"

namespace quillon {

bool IsRightShift(const QKeyEvent& key) {
  constexpr quint32 kPlace = 0x36;  // the scan code; the two keys share their name
  return key.nativeScanCode() == kPlace;
}

}  // namespace quillon
