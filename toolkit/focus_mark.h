#pragma once

// The mark round the control that has the keyboard, one for each window and in front of all that is in it: a dark line
// with a pale one round it, so that one of the two stands out from whatever it is on. It shows where Tab or a shortcut
// has brought the focus, and where the program has in answer to a key ("toolkit/application.h"). The mouse shows none.
// It goes while another window is in front. A text box without a frame has none: the form shows there by its own line
// who has the focus.

#include <QFocusFrame>
#include <QPointer>

namespace quillon {

class FocusMark : public QFocusFrame {
  Q_OBJECT

 public:
  /// The mark of that window, hidden.
  explicit FocusMark(QWidget& window);

  /// Lets that part of the window lie in front of the mark. It outlives the mark.
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
  QPointer<QWidget> control_;  // the last that had the focus
  bool marked_ = false;  // whether it was marked then
  bool shownByKey_ = false;  // the window, when it came up last
};

}  // namespace quillon
