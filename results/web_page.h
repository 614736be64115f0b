#pragma once

// A report as one web page that needs nothing else: no picture, font or script from elsewhere, so that it can be
// mailed, put on any host or kept. It has a title, what was asked, one grid of classes or more, and a table of all
// classes.
//
// Each cell of a grid opens a panel under the mouse and under the keyboard's focus, and a screen reader reads the panel
// as the cell's content; arrow keys, Home and End move through a grid, and Escape closes the panel. The table is sorted
// by a click on a heading. All that needs a script is the moving and the sorting.

#include <array>
#include <string>
#include <vector>

#include "hand/hand_classes.h"
#include "support/rgb.h"

namespace quillon {

struct PageLine {
  std::string Title;
  std::string Text;
  std::string Detail{};  // on a line below the text; empty where there is none
};

struct PageCell {
  Rgb Color;
  std::string Text{};  // under the label; empty where there is none
  Rgb PanelColor;  // of the panel's heading
  std::vector<PageLine> Panel{};
  std::string Verdict{};  // the panel's last line, or nothing
};

struct PageLegend {
  Rgb Color;
  std::string Text;
};

struct PageGrid {
  std::string Name;  // shown where there is more than one
  std::array<PageCell, kHandClassCount> Cells;
};

/// A cell of the table: what it shows, and the number by which it is sorted.
struct PageFigure {
  std::string Text;
  double Order = 0;
};

struct WebPage {
  std::string Title;
  std::string Subtitle{};
  std::vector<PageLine> Situation{};
  std::vector<std::string> Explanation{};  // a paragraph each
  std::vector<PageLegend> Legend{};
  std::vector<PageGrid> Grids{};
  std::vector<std::string> Columns{};  // of the table, after the hand
  std::array<std::vector<PageFigure>, kHandClassCount> Rows{};  // in class index order
};

/// The page as HTML 5 in UTF-8. Texts are those that a reader sees, whatever they hold.
[[nodiscard]] std::string PageMarkup(const WebPage& page);

}  // namespace quillon
