#pragma once

// Lines for the texts of ranges, such as "AA-TT,AKs,KQs+ | Half: 99": a line ends after a comma or a space and never
// within a hand. Left to itself a text box breaks after the hyphen of a run and, where it finds no space, between any
// two letters, since a comma with no space after it could be that of a number.

#include <QPlainTextDocumentLayout>
#include <QPlainTextEdit>

namespace quillon {

/// How many letters of `text`, from `start` on, go into a line of that width: up to the last comma or space that fits,
/// or as many as fit where there is none. At least 1.
[[nodiscard]] int LineLength(const QString& text, int start, double width, const QFont& font);

/// Lays out the text of a box in this way, whatever its width becomes.
class CommaLines : public QPlainTextDocumentLayout {
  Q_OBJECT

 public:
  explicit CommaLines(QPlainTextEdit& box);

  [[nodiscard]] QRectF blockBoundingRect(const QTextBlock& block) const override;

 protected:
  void documentChanged(int from, int removed, int added) override;

 private:
  void LayOut(QTextBlock block) const;

  const QPlainTextEdit& box_;
};

}  // namespace quillon
