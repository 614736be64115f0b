#pragma once

// A text on a form. A label with room for one line in the layout is one line: it is never cut or wrapped but grows with
// its text, to the right, or depending on its alignment to both sides or to the left. If it would grow past its
// container's right edge, it moves left as far as needed. A label with room for more lines wraps its text at its edges,
// within a word if that is wider than the label, and grows downwards. The text is always plain text.
//
// A label that cuts keeps its place instead: a longer text ends with an ellipsis, and the tool tip has it in full.

#include <QColor>
#include <QPainter>
#include <QString>

#include "toolkit/control.h"

namespace quillon {

class Label : public Control {
  Q_OBJECT

 public:
  explicit Label(QWidget* parent);

  /// Its place in the layout, which is its minimum, and whether the text wraps there.
  void SetPlace(const QRect& place, bool wraps = false);

  void SetText(const QString& text);
  [[nodiscard]] const QString& Text() const { return text_; }

  void SetTextColor(const QColor& color);
  [[nodiscard]] const QColor& TextColor() const { return textColor_; }

  void SetUnderline(bool underline);
  [[nodiscard]] bool HasUnderline() const { return font().underline(); }

  /// Qt::transparent for none.
  void SetBackColor(const QColor& color);
  [[nodiscard]] const QColor& BackColor() const { return backColor_; }

  void SetAlignment(TextAlignment alignment);

  /// Whether a text that is too wide is cut.
  void SetCut(bool cut);

  /// Draws a thin edge around letters whose colour hardly differs from the background; Qt::transparent for none.
  void SetHalo(const QColor& color);
  [[nodiscard]] const QColor& Halo() const { return halo_; }

  /// Whether the text wraps within the label's place.
  [[nodiscard]] bool Wraps() const { return wraps_; }

  /// The size of the whole text as shown; larger than the label if something is cut off.
  [[nodiscard]] QSize TextSize() const;

  [[nodiscard]] QString SpokenText() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Grow();
  void ShowTip();
  [[nodiscard]] QRect WithinContainer(QRect grown) const;
  void PaintHalo(QPainter& painter, const QString& shown);
  [[nodiscard]] int Flags() const;
  [[nodiscard]] QSize SizeWith(int flags) const;

  QRect place_;
  bool wraps_ = false;
  QString text_;
  QColor textColor_ = Qt::black;
  QColor backColor_ = Qt::transparent;
  QColor halo_ = Qt::transparent;
  bool cut_ = false;
  TextAlignment alignment_ = TextAlignment::kLeft;
};

}  // namespace quillon
