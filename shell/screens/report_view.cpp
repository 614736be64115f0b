#include "shell/screens/report_view.h"

#include <QComboBox>
#include <QFontMetricsF>
#include <QTextCursor>

#include "toolkit/fonts.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

// Half an inch beside a ten point fixed-width letter of its standard width. In letters it stays the same whatever width
// the font comes out at, so that the columns of the plain form stand one above the other.
constexpr double kTabLetters = 48 / 7.8;

constexpr std::int16_t kTableFontPoints = 10;

}  // namespace

void ReportView::SetText(std::string_view text) {
  RichTextBox& box = Box();
  font_ = QTextCharFormat();
  font_.setFont(box.font());
  box.setPlainText(ToQt(text));

  // A table whose rows were broken would be none; marked-up prose is broken like any other.
  box.setLineWrapMode(SelectedForm() == ReportForm::kPlainText ? QTextEdit::NoWrap : QTextEdit::WidgetWidth);
  const QFont table = FormFont({.Family = "Courier New", .Points = kTableFontPoints}, {});
  box.setTabStopDistance(kTabLetters * QFontMetricsF(table).horizontalAdvance(QLatin1Char('0')));
}

void ReportView::SetFontName(std::string_view name) {
  font_.setFontFamilies(FontFamilies(name));
}

void ReportView::SetFontSize(std::int16_t size) {
  font_.setProperty(QTextFormat::FontPixelSize, FontPixels(static_cast<float>(size)));
}

void ReportView::SetFontColor(std::int32_t color) {
  font_.setForeground(QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF));
}

void ReportView::InsertText(std::string_view text) {
  QTextCursor caret = Box().textCursor();
  // Insertions add; what the user has selected, to copy it, stays.
  if (caret.hasSelection()) {
    caret.clearSelection();
    Box().setTextCursor(caret);
  }
  // The box's own caret moves along, and the view stays where it is: a report is read from its start.
  caret.insertText(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())), font_);
}

ReportForm ReportView::SelectedForm() const {
  return controls_.Get<QComboBox>("cmboOutputType").currentIndex() == 1 ? ReportForm::kForum : ReportForm::kPlainText;
}

void ReportView::SetSpecificHandVisible(bool visible) {
  controls_.LabelAt("lblSpecificHand").setVisible(visible);
  controls_.Get<QComboBox>("cmbo169").setVisible(visible);
}

}  // namespace quillon
