#pragma once

// The Shift test of a click on the card grid. A click sweeps over a group of hands only if a Shift key is down and was
// pressed since the last question; a second click during the same press is a plain one. So this is not a plain test of
// whether Shift is down: it is computed from key events.
//
// There is one keyboard, so the program has one of these for all its windows: a press used up in one is used up for the
// others. Pass on the events of every window and control, but without auto-repeats where the window system marks them.

#include <array>
#include <cstdint>

namespace quillon {

enum class ShiftKey : std::uint8_t { kLeft, kRight };

class ShiftKeys {
 public:
  /// A Shift key was pressed. If it is down already, this is a repeat and ignored.
  void KeyDown(ShiftKey key);

  /// A Shift key was released.
  void KeyUp(ShiftKey key);

  /// Corrects the state after events that went to another program, by the window system's current state of Shift: not
  /// held means that both keys are up, and held with neither known as down is a press of one of them. Call it when the
  /// program regains the keyboard, otherwise the next press would count as a repeat.
  void PutRight(bool shiftIsHeldNow);

  /// Whether one of the two keys is down and was pressed since the last question. Every question asks about both, so it
  /// uses up the presses of both, whatever the answer:
  ///
  ///     left down, ask, ask             -> true, false
  ///     left down, ask, right down, ask -> true, true
  ///     left down, right down, ask, ask -> true, false
  ///     left down, left up, ask         -> false
  ///
  /// First corrects the state by `shiftIsHeldNow`.
  [[nodiscard]] bool Ask(bool shiftIsHeldNow);

 private:
  struct KeyState {
    bool Down = false;
    bool IsNew = false;  // pressed since the last question
  };

  [[nodiscard]] KeyState& StateOf(ShiftKey key);

  std::array<KeyState, 2> keys_;
  KeyState unseen_;  // a key pressed while another program had the keyboard; it is not known which
};

}  // namespace quillon
