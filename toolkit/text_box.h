#pragma once

// A box for one line of text, without a border of its own: the form draws one around it.

#include <QLineEdit>

namespace quillon {

class TextBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit TextBox(QWidget* parent);

  /// Ends editing, like losing the focus; nothing if it has ended.
  void Leave();

 Q_SIGNALS:
  void FocusGot();
  void FocusLost();
  void EnterPressed();  // Enter or Return; the key is then passed on

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool busy_ = false;  // from FocusGot to FocusLost, even while another window is active
};

}  // namespace quillon
