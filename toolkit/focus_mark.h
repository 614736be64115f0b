#pragma once

// The mark round the control that has the keyboard, one for each window and in front of all that is in it: a dark line
// with a pale one round it, so that one of the two stands out from whatever it is on. It shows where Tab or a shortcut
// has brought the focus, and where the program has while the keyboard leads ("toolkit/application.h"). The mouse shows
// none. It goes while another window is in front. A text box without a frame has none: the form shows there by its own
// line who has the focus.

#include <QFocusFrame>
#include <QPointer>

namespace quillon {

class FocusMark : public QFocusFrame {
  Q_OBJECT

 public:
  /// The mark of that window, hidden.
  explicit FocusMark(QWidget& window);

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Reach(QWidget& control, Qt::FocusReason reason);
  void Place();
  [[nodiscard]] QRect Inside(int border) const;

  QWidget& window_;
  QPointer<QWidget> control_;  // the last that had the focus
  bool marked_ = false;  // whether it was marked then
};

}  // namespace quillon
