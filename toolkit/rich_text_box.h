#pragma once

// A box for text in several fonts. What is copied out of it is plain text, so that it can be pasted anywhere. What the
// user types can be undone, and so can what the program adds later. Sizes in points and the positions of tabs are those
// of 96 dots to the inch and follow the scale of the program ("toolkit/twip_geometry.h"), also of text that is there
// already.

#include <QPaintDevice>
#include <QTextEdit>

namespace quillon {

/// Paper with as many dots to the inch as the scale of the program gives it. Nothing is drawn on it.
class ScaledPaper : public QPaintDevice {
 public:
  [[nodiscard]] QPaintEngine* paintEngine() const override { return nullptr; }

 protected:
  [[nodiscard]] int metric(PaintDeviceMetric metric) const override;
};

class RichTextBox : public QTextEdit {
  Q_OBJECT

 public:
  explicit RichTextBox(QWidget* parent);

 protected:
  [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;

 private:
  ScaledPaper paper_;
};

}  // namespace quillon
