#pragma once

// What the colours of a grid say: a square of each colour with its text after it.

#include <QWidget>
#include <vector>

#include "results/web_page.h"

namespace quillon {

class LegendView : public QWidget {
  Q_OBJECT

 public:
  explicit LegendView(QWidget* parent = nullptr);

  /// Puts these lines in place of all others.
  void Show(const std::vector<PageLegend>& lines);
};

}  // namespace quillon
