#pragma once

// Listens to the Shift keys in all windows of the program, and answers the Shift test of a click on a card grid.

#include <QObject>
#include <functional>

#include "ranges/shift_keys.h"

namespace quillon {

class ShiftWatch : public QObject {
  Q_OBJECT

 public:
  /// From now on it sees every key event of the program. `isHeld` tells whether the window system has a Shift key down
  /// at this moment; by default the window system is asked.
  explicit ShiftWatch(std::function<bool()> isHeld = {}, QObject* parent = nullptr);

  /// The Shift test: "ranges/shift_keys.h". Asking changes the next answer.
  [[nodiscard]] bool Ask() { return keys_.Ask(isHeld_()); }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<bool()> isHeld_;
  ShiftKeys keys_;
};

}  // namespace quillon
