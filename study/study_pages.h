#pragma once

// Limits and charts for posting or keeping: a web page of one file ("results/web_page.h"), and the grids as a picture
// ("results/grid_picture.h"). The larger an amount, the darker the blue of its cell.

#include <string>
#include <vector>

#include "results/web_page.h"
#include "study/limits.h"
#include "study/stack_chart.h"

namespace quillon {

/// What is shown with limits.
struct LimitsQuestion {
  std::string Title;  // such as "Largest Shove"
  std::vector<PageLine> Situation;
};

/// The limits as a page: a grid, and a table with every digit.
[[nodiscard]] std::string LimitsPage(const LimitsQuestion& question, const Limits& limits);

/// The grid of the limits, with short amounts (ShortAmount).
[[nodiscard]] std::string LimitsPicture(const LimitsQuestion& question, const Limits& limits);

/// A chart as a page: both grids, where a star marks a stack with gaps below it, and a table with the gaps.
[[nodiscard]] std::string ChartPage(const StackChart& chart, const Steps& stacks);

/// Both grids of a chart side by side.
[[nodiscard]] std::string ChartPicture(const StackChart& chart, const Steps& stacks);

}  // namespace quillon
