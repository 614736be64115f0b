#include "study/window/text_label.h"

#include "toolkit/placement.h"

namespace quillon {

QLabel* MakeTextLabel(QWidget* parent, float points, bool bold) {
  auto* label = new QLabel(parent);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  SetFormFont(*label, {.Family = "Arial", .Points = points, .Bold = bold}, {});
  return label;
}

}  // namespace quillon
