#pragma once

// Makes the whole program deaf for a while: what the user does with the mouse, the keyboard or a screen reader is
// dropped, not kept, since a click is meant for the window as it looks at that moment, and ten impatient ones would do
// ten things. Windows are still drawn and can be closed.

#include <QMouseEvent>
#include <QObject>

namespace quillon {

/// Blocks input while it lives. A list that is open at its start is closed, a button that is held down is
/// let go without a click, and so is what the mouse holds, once it is released. Only a box that comes up in the
/// meantime is heard, for it wants an answer. A block is made while no such box is open.
class InputBlock : public QObject {
 public:
  InputBlock();
  ~InputBlock() override = default;
  InputBlock(const InputBlock&) = delete;
  InputBlock& operator=(const InputBlock&) = delete;
  InputBlock(InputBlock&&) = delete;
  InputBlock& operator=(InputBlock&&) = delete;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool TakesRelease(QObject& control, const QMouseEvent& release);

  bool lettingGo_ = false;
};

}  // namespace quillon
