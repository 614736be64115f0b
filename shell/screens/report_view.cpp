#include "shell/screens/report_view.h"

#include <QComboBox>
#include <QFontMetricsF>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextOption>
#include <array>

#include "toolkit/fonts.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

// Where the columns of the plain form begin, in characters of its fixed-width font. Each is wide enough for its
// contents (names of 20 characters; amounts of 13, or of 11 after the wide equities of a shove), so that headers and
// rows line up, whatever the font's width.
constexpr std::array kColumnLetters = {7, 14, 22, 36, 48};

constexpr std::int16_t kTableFontPoints = 10;

// For an empty box: each added line inherits the columns of the one before.
void SetColumns(const RichTextBox& box) {
  QFont table = FormFont({.Family = "Courier New", .Points = kTableFontPoints}, {});
  table.setPixelSize(FontPixels(kTableFontPoints));  // the box scales both
  const double letter = QFontMetricsF(table).horizontalAdvance(QLatin1Char('0'));
  QList<QTextOption::Tab> columns;
  for (const int letters : kColumnLetters)
    columns << QTextOption::Tab(letters * letter, QTextOption::LeftTab);
  QTextBlockFormat lines;
  lines.setTabPositions(columns);
  box.textCursor().setBlockFormat(lines);
}

}  // namespace

void ReportView::Build(const Analysis& analysis) {
  const auto& forms = controls_.Get<QComboBox>("cmboOutputType");
  const ReportForm form = forms.currentIndex() == 1 ? ReportForm::kForum : ReportForm::kPlainText;
  Empty(form);
  controls_.LabelAt("lblSpecificHand").setVisible(form == ReportForm::kForum);
  controls_.Get<QComboBox>("cmbo169").setVisible(form == ReportForm::kForum);
  Insert(BuildReport(analysis, form));
  Box().document()->clearUndoRedoStacks();
}

void ReportView::AddHand(const Analysis& analysis, std::string_view hand) {
  QTextCursor whole(Box().document());
  whole.beginEditBlock();
  ReportText line;
  AddSpecificHand(line, analysis, hand);
  Insert(line);
  whole.endEditBlock();
  Box().ensureCursorVisible();
}

void ReportView::Empty(ReportForm form) {
  RichTextBox& box = Box();
  font_ = QTextCharFormat();
  font_.setFont(box.font());
  box.setPlainText({});

  // A table must not wrap; marked-up prose may.
  box.setLineWrapMode(form == ReportForm::kPlainText ? QTextEdit::NoWrap : QTextEdit::WidgetWidth);
  SetColumns(box);
}

void ReportView::Insert(const ReportText& report) {
  for (const auto& piece : report) {
    if (const auto* const font = std::get_if<ReportFont>(&piece))
      SetFont(*font);
    else
      InsertText(std::get<std::string>(piece));
  }
}

void ReportView::SetFont(const ReportFont& font) {
  if (!font.Name.empty()) font_.setFontFamilies(FontFamilies(font.Name));
  font_.clearProperty(QTextFormat::FontPixelSize);
  font_.setFontPointSize(FontPixels(static_cast<float>(font.Size)) * kPointsPerPixel);
  font_.setForeground(QColor(font.Color & 0xFF, (font.Color >> 8) & 0xFF, (font.Color >> 16) & 0xFF));
}

void ReportView::InsertText(std::string_view text) {
  QTextCursor caret = Box().textCursor();
  // Inserting keeps the user's selection, which he may want to copy.
  if (caret.hasSelection()) {
    caret.clearSelection();
    Box().setTextCursor(caret);
  }
  // The box's own caret moves along, but the view does not scroll: a report is read from its start.
  caret.insertText(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())), font_);
}

}  // namespace quillon
