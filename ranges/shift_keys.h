#pragma once

// The Shift test of a click on the card grid. A click sweeps over a group of hands only if a Shift key is down and went
// down since it was last asked about; a second click under the same press is a plain one. Window systems report the
// presses and releases of keys as events, and this makes the answer from them. It is not a plain test of
// whether Shift is down.
//
// There is one keyboard, so the program keeps one of these for all its windows: a press that was asked about in one is
// used up for the others. Events are to be given whichever window and control they come to, but without the repeats
// that a window system makes of a held key where it marks them.

#include <array>
#include <cstdint>

namespace quillon {

enum class ShiftKey : std::uint8_t { kLeft, kRight };

class ShiftKeys {
 public:
  /// A Shift key was reported down. For a key that is down already this is a repeat, which counts for nothing.
  void KeyDown(ShiftKey key);

  /// A Shift key was reported up.
  void KeyUp(ShiftKey key);

  /// Puts right what events to another program have changed, by what the window system says of Shift at this moment:
  /// not held means that both keys are up, and held with neither known as down is a press of one of them. To be called
  /// when the program gets the keyboard back, lest the next press be taken for a repeat.
  void PutRight(bool shiftIsHeldNow);

  /// Whether one of the two keys is down and went down since the last question. Every question asks about both, so it
  /// uses up the presses of both, whatever the answer:
  ///
  ///     left down, ask, ask             -> true, false
  ///     left down, ask, right down, ask -> true, true
  ///     left down, right down, ask, ask -> true, false
  ///     left down, left up, ask         -> false
  ///
  /// What `shiftIsHeldNow` says corrects the state first.
  [[nodiscard]] bool Ask(bool shiftIsHeldNow);

 private:
  struct KeyState {
    bool Down = false;
    bool IsNew = false;  // went down since the last question
  };

  [[nodiscard]] KeyState& StateOf(ShiftKey key);

  std::array<KeyState, 2> keys_;
  KeyState unseen_;  // a key that went down while another program had the keyboard; it is not known which
};

}  // namespace quillon
