#pragma once

// The mark around the focused control, one for each window and in front of everything: a dark line inside a pale one,
// so that one of the two stands out from any background. It appears when Tab or a shortcut moves the focus, or the
// program does in response to a key ("toolkit/application.h"), but not for the mouse, nor while another window is
// active. A text box without a frame has none: the form's own border line shows its focus.

#include <QFocusFrame>
#include <QPointer>

namespace quillon {

class FocusMark : public QFocusFrame {
  Q_OBJECT

 public:
  /// A hidden mark for that window.
  explicit FocusMark(QWidget& window);

  /// Keeps the mark behind that part of the window, which outlives it.
  void StayBehind(const QWidget& panel) { panel_ = &panel; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Reach(QWidget& control, Qt::FocusReason reason);
  void Place();
  [[nodiscard]] QRect PlaceInWindow(const QWidget& control) const;
  [[nodiscard]] QRect Inside(int border) const;

  QWidget& window_;
  const QWidget* panel_ = nullptr;
  QPointer<QWidget> control_;  // the last one focused
  bool marked_ = false;  // whether it had the mark
  bool shownByKey_ = false;  // whether the window was last activated by a key
};

}  // namespace quillon
