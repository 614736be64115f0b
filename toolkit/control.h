#pragma once

// The base of labels, pictures and frames: they react to the mouse, and clickable ones to the keyboard as well. By
// default a mouse click does not move the focus, so a box keeps it while a link is clicked. A click is a press and
// release of the left button over the control, or Enter or Space while it has the focus; a double click is two clicks.

#include <QString>
#include <QWidget>
#include <array>
#include <optional>

#include "toolkit/control_row.h"

namespace quillon {

/// The Enter keys, of the keyboard and of its number pad.
inline constexpr std::array kEnterKeys = {Qt::Key_Return, Qt::Key_Enter};

/// Whether a Qt::Key is one of them.
[[nodiscard]] constexpr bool IsEnterKey(int key) {
  return key == kEnterKeys[0] || key == kEnterKeys[1];
}

class Control : public QWidget {
  Q_OBJECT

 public:
  explicit Control(QWidget* parent);

  /// Sets whether the control is clickable: its cursor, and whether Tab reaches it.
  void SetUse(ControlUse use);
  [[nodiscard]] ControlUse Use() const { return use_; }
  [[nodiscard]] bool CanBeClicked() const { return use_ != ControlUse::kPassive; }

  /// Acts as if clicked.
  void Click();

  /// Focuses the control. False if the control that lost the focus opened a box: the press should then be dropped.
  bool TakeFocus(Qt::FocusReason reason);

  /// The widget that the focus mark surrounds: the control itself, unless it is part of a larger visual unit.
  [[nodiscard]] const QWidget& MarkedPlace() const { return markedPlace_ == nullptr ? *this : *markedPlace_; }
  void SetMarkedPlace(const QWidget& place) { markedPlace_ = &place; }

  /// Makes the control a check box for screen readers, in this state.
  void SetCheckState(Qt::CheckState state);
  [[nodiscard]] std::optional<Qt::CheckState> CheckState() const { return checkState_; }

  /// The control's name for screen readers.
  [[nodiscard]] virtual QString SpokenText() const { return accessibleName(); }

 Q_SIGNALS:
  void Clicked();
  void Pressed();  // the left mouse button was pressed on it
  void Released();  // and released, anywhere
  void MouseMoved();  // over it, with or without a button
  void FocusReached();  // by Tab
  void FocusLeft();  // for any reason

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
