#pragma once

// A part of a form that contains other controls: a screen, or a panel on one. Its hidden caption identifies a screen.

#include <QColor>
#include <QString>

#include "toolkit/control.h"

namespace quillon {

class Frame : public Control {
  Q_OBJECT

 public:
  explicit Frame(QWidget* parent);

  void SetCaption(const QString& caption);
  [[nodiscard]] const QString& Caption() const { return caption_; }

  void SetBackColor(const QColor& color);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString caption_;
  QColor backColor_ = Qt::white;
};

}  // namespace quillon
