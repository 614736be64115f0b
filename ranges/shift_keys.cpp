#include "ranges/shift_keys.h"

#include <algorithm>
#include <cstddef>

namespace quillon {

ShiftKeys::KeyState& ShiftKeys::StateOf(ShiftKey key) {
  return keys_.at(static_cast<std::size_t>(key));
}

void ShiftKeys::KeyDown(ShiftKey key) {
  KeyState& state = StateOf(key);
  if (!state.Down) state = {.Down = true, .IsNew = true};
}

void ShiftKeys::KeyUp(ShiftKey key) {
  KeyState& state = StateOf(key);
  // A release without a known press belongs to the press that was not seen.
  if (!state.Down) unseen_ = {};
  state = {};
}

void ShiftKeys::PutRight(bool shiftIsHeldNow) {
  if (!shiftIsHeldNow) {
    *this = {};
    return;
  }
  const bool anyDown = unseen_.Down || std::any_of(keys_.begin(), keys_.end(), [](auto key) { return key.Down; });
  if (!anyDown) unseen_ = {.Down = true, .IsNew = true};
}

bool ShiftKeys::Ask(bool shiftIsHeldNow) {
  PutRight(shiftIsHeldNow);
  const bool anyNew = unseen_.IsNew || std::any_of(keys_.begin(), keys_.end(), [](auto key) { return key.IsNew; });
  unseen_.IsNew = false;
  for (KeyState& key : keys_)
    key.IsNew = false;
  return anyNew;
}

}  // namespace quillon
