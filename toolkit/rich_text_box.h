#pragma once

// A box for text in several fonts. Copying gives plain text, so that it can be pasted anywhere. The user's typing can
// be undone, and so can what the program appends later. Sizes in points and tab positions are those at 96 dots to the
// inch and follow the program's scale ("toolkit/twip_geometry.h"), also for existing text.

#include <QPaintDevice>
#include <QTextEdit>

namespace quillon {

/// A device with the program's dots to the inch. Nothing is drawn on it.
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
