#pragma once

// A piece of text on a form. A label whose place in the layout has room for one line is one line: its text is never cut
// off or wrapped, the label grows with it instead, to the right, or to where its alignment leaves room: to both sides
// where the text is centred, to the left where it ends at the right edge. Where it would grow past the right edge of
// what holds it, it moves to the left as far as it must. A label with room for more wraps its text at its edges, within
// its words where one is wider than the label, and grows downwards. The text is shown as it is and never read as
// mark-up.
//
// A label that is cut keeps its place instead: what has no room ends with an ellipsis, and the tool tip has it whole.

#include <QColor>
#include <QPainter>
#include <QString>

#include "toolkit/control.h"

namespace quillon {

class Label : public Control {
  Q_OBJECT

 public:
  explicit Label(QWidget* parent);

  /// The place in the layout, which is the least that the label takes up, and whether the text wraps there.
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

  /// Draws a fine edge round the letters, where their colour hardly stands out from what is under them; Qt::transparent
  /// for none.
  void SetHalo(const QColor& color);
  [[nodiscard]] const QColor& Halo() const { return halo_; }

  /// Whether the text wraps within the label's place.
  [[nodiscard]] bool Wraps() const { return wraps_; }

  /// The room that the whole text takes as it is shown; more than the label's size where something is cut off.
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
