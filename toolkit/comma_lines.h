#pragma once

// Line breaks for range texts, such as "AA-TT,AKs,KQs+ | Half: 99": a line ends after a comma or a space and never
// within a hand. By default a text box breaks after the hyphen of a run and, without a space, between any two letters,
// since a comma without a space could belong to a number.

#include <QPlainTextDocumentLayout>
#include <QPlainTextEdit>

namespace quillon {

/// How many letters of `text`, from `start` on, fit on a line: up to the last comma or space that fits, or as many as
/// fit if there is none. At least 1.
[[nodiscard]] int LineLength(const QString& text, int start, double width, const QFont& font);

/// Lays out the text of a box this way, at any width.
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
