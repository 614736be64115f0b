#pragma once

// The legend of a grid: a square of each colour, followed by its text.

#include <QWidget>
#include <vector>

#include "results/web_page.h"

namespace quillon {

class LegendView : public QWidget {
  Q_OBJECT

 public:
  explicit LegendView(QWidget* parent = nullptr);

  /// Replaces all lines.
  void Show(const std::vector<PageLegend>& lines);
};

}  // namespace quillon
