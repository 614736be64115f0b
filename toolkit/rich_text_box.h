#pragma once

// A box for text in several fonts. What is copied out of it is plain text, so that it can be pasted anywhere. What the
// user types can be undone, and so can what the program adds later.

#include <QTextEdit>

namespace quillon {

class RichTextBox : public QTextEdit {
  Q_OBJECT

 public:
  explicit RichTextBox(QWidget* parent);

 protected:
  [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
};

}  // namespace quillon
