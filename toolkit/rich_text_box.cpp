#include "toolkit/rich_text_box.h"

#include <QMimeData>
#include <QTextDocumentFragment>

namespace quillon {

RichTextBox::RichTextBox(QWidget* parent) : QTextEdit(parent) {
  setAcceptRichText(false);
  setTabChangesFocus(true);
}

QMimeData* RichTextBox::createMimeDataFromSelection() const {
  auto* copied = new QMimeData;
  copied->setText(textCursor().selection().toPlainText());
  return copied;
}

}  // namespace quillon
