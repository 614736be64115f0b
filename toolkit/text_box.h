#pragma once

// A box for one line of text, without a border of its own: the form draws one round it.

#include <QLineEdit>

namespace quillon {

class TextBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit TextBox(QWidget* parent);

  /// Ends the user's work in the box, as the loss of the focus does; nothing where it has ended.
  void Leave();

 Q_SIGNALS:
  void FocusGot();
  void FocusLost();
  void EnterPressed();  // Enter or Return; the key goes on to whoever else wants it

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool busy_ = false;  // from FocusGot to FocusLost, also while another window is in front
};

}  // namespace quillon
