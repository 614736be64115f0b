#pragma once

// The legend of a grid: a square of each colour, followed by its text.

#include <QWidget>
#include <vector>

#include "results/web_page.h"

namespace quillon {

/// Fills a widget with these lines, in place of all that was in it.
void ShowLegend(QWidget& place, const std::vector<PageLegend>& lines);

}  // namespace quillon
