#pragma once

// A part of a form that contains other controls: a screen, or a panel on one. Its hidden caption, the accessible name,
// identifies a screen.

#include <QColor>

#include "toolkit/control.h"

namespace quillon {

class Frame : public Control {
  Q_OBJECT

 public:
  explicit Frame(QWidget* parent);

  void SetBackColor(const QColor& color);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor backColor_ = Qt::white;
};

}  // namespace quillon
