#pragma once

// Drops all user input to the program for a while, from mouse, keyboard and screen readers. It is dropped rather than
// queued, since a click refers to the window as it looks at that moment, and ten impatient ones would do ten things.
// Windows are still repainted and can be closed.

#include <QMouseEvent>
#include <QObject>

namespace quillon {

/// Blocks input during its lifetime. At its start an open list is closed, and a button that is held down is released
/// without a click, as is whatever the mouse holds when it is released. Only a box that opens meanwhile gets input,
/// since it needs an answer. No box may be open at its start.
class InputBlock : public QObject {
 public:
  InputBlock();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool TakesRelease(QObject& control, const QMouseEvent& release);

  bool lettingGo_ = false;
};

}  // namespace quillon
