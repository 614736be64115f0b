#include "toolkit/comma_lines.h"

#include <QFontMetricsF>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>

namespace quillon {
namespace {

bool EndsPart(QChar letter) {
  return letter == QLatin1Char(',') || letter == QLatin1Char(' ');
}

}  // namespace

int LineLength(const QString& text, int start, double width, const QFont& font) {
  const QFontMetricsF metrics(font);
  const int rest = static_cast<int>(text.size()) - start;
  int fitting = 0;
  int parts = 0;  // up to the last comma or space that fits
  while (fitting < rest) {
    // A trailing space takes no room.
    const QStringView line = QStringView(text).mid(start, fitting + 1);
    const bool space = line.back() == QLatin1Char(' ');
    if (!space && metrics.horizontalAdvance(line.toString()) > width) break;
    ++fitting;
    if (EndsPart(line.back())) parts = fitting;
  }
  if (fitting == rest) return std::max(1, rest);
  return parts > 0 ? parts : std::max(1, fitting);
}

CommaLines::CommaLines(QPlainTextEdit& box) : QPlainTextDocumentLayout(box.document()), box_(box) {
  box.document()->setDocumentLayout(this);
}

// Qt's own layout uses existing lines of a block, and only breaks a block without any.
QRectF CommaLines::blockBoundingRect(const QTextBlock& block) const {
  if (block.isValid() && block.layout()->lineCount() == 0) LayOut(block);
  return QPlainTextDocumentLayout::blockBoundingRect(block);
}

// Qt breaks a changed block at once, in its own way.
void CommaLines::documentChanged(int from, int removed, int added) {
  QPlainTextDocumentLayout::documentChanged(from, removed, added);
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
    LayOut(block);
  Q_EMIT documentSizeChanged(documentSize());
}

void CommaLines::LayOut(QTextBlock block) const {
  const double margin = document()->documentMargin();
  const double width = box_.viewport()->width() - 2 * margin;
  const QString text = block.text();
  QTextLayout& layout = *block.layout();
  QTextOption option = document()->defaultTextOption();
  option.setWrapMode(QTextOption::WrapAnywhere);  // the number of letters per line is set explicitly
  layout.setTextOption(option);
  layout.beginLayout();
  double height = 0;
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    const int letters = LineLength(text, line.textStart(), width, document()->defaultFont());
    line.setLeadingIncluded(true);
    line.setNumColumns(letters, width);
    line.setPosition({margin, height});
    height += line.height();
  }
  layout.endLayout();
  block.setLineCount(layout.lineCount());
}

}  // namespace quillon
