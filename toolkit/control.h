#pragma once

// What labels, pictures and frames have in common: they hear the mouse, and those that can be clicked hear the keyboard
// as well. The mouse gives the focus to none of them, unless it is asked to, so a box that is being typed into keeps it
// while a link is clicked. A click is a press and a release of the left button over the control, or Enter or Space
// while the control has the focus; a second quick click is another click.

#include <QRect>
#include <QString>
#include <QWidget>
#include <optional>

#include "toolkit/control_row.h"

namespace quillon {

/// Whether a Qt::Key is Enter, on the keyboard or on its number pad.
[[nodiscard]] constexpr bool IsEnterKey(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

class Control : public QWidget {
  Q_OBJECT

 public:
  explicit Control(QWidget* parent);

  /// Makes the control a link or plain again: the cursor over it, and whether Tab reaches it.
  void SetUse(ControlUse use);
  [[nodiscard]] ControlUse Use() const { return use_; }
  [[nodiscard]] bool CanBeClicked() const { return use_ != ControlUse::kPassive; }

  /// Does what a click does.
  void Click();

  /// Gives the control the focus. False if a box came up meanwhile, from whoever lost the focus: the press that was to
  /// follow is not wanted any more.
  bool TakeFocus(Qt::FocusReason reason);

  /// What the mark of the focus goes round: the control itself, unless it is only a part of what is seen as one.
  [[nodiscard]] const QWidget& MarkedPlace() const { return markedPlace_ == nullptr ? *this : *markedPlace_; }
  void SetMarkedPlace(const QWidget& place) { markedPlace_ = &place; }

  /// Makes the control one that is checked and unchecked, for somebody who cannot see it, and gives it that state.
  void SetCheckState(Qt::CheckState state);
  [[nodiscard]] std::optional<Qt::CheckState> CheckState() const { return checkState_; }

  /// What the control says of itself to somebody who cannot see it.
  [[nodiscard]] virtual QString SpokenText() const { return accessibleName(); }

 Q_SIGNALS:
  void Clicked();
  void Pressed();  // the left mouse button went down on it
  void Released();  // and up again, wherever that was
  void MouseMoved();  // over it, with or without a button
  void FocusReached();  // by Tab
  void FocusLeft();  // for whatever reason

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;

  [[nodiscard]] bool IsHeld() const { return held_; }

 private:
  ControlUse use_ = ControlUse::kPassive;
  bool held_ = false;
  const QWidget* markedPlace_ = nullptr;
  std::optional<Qt::CheckState> checkState_;
};

}  // namespace quillon
