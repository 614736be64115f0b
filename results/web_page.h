#pragma once

// A report as one self-contained web page: no pictures, fonts or scripts from elsewhere, so it can be mailed, put on
// any host or kept. It has a title, the situation, one or more grids of classes, and a table of all classes.
//
// Each cell of a grid opens a panel on hover and on keyboard focus, and a screen reader reads the panel as the cell's
// content; arrow keys, Home and End move through a grid, and Escape closes the panel. A click on a heading sorts the
// table. Only moving and sorting need a script.

#include <array>
#include <string>
#include <vector>

#include "hand/hand_classes.h"
#include "support/rgb.h"

namespace quillon {

struct PageLine {
  std::string Title;
  std::string Text;
  std::string Detail{};  // on a line below the text; may be empty
};

struct PageCell {
  Rgb Color;
  std::string Text{};  // under the label; may be empty
  Rgb PanelColor;  // of the panel's heading
  std::vector<PageLine> Panel{};
  std::string Verdict{};  // the panel's last line, or nothing
};

struct PageLegend {
  Rgb Color;
  std::string Text;
};

struct PageGrid {
  std::string Name;  // shown if there is more than one
  std::array<PageCell, kHandClassCount> Cells;
};

/// A table cell: its text, and the number to sort by.
struct PageFigure {
  std::string Text;
  double Order = 0;
};

struct WebPage {
  std::string Title;
  std::string Subtitle{};
  std::vector<PageLine> Situation{};
  std::vector<std::string> Explanation{};  // one text per paragraph
  std::vector<PageLegend> Legend{};
  std::vector<PageGrid> Grids{};
  std::vector<std::string> Columns{};  // of the table, after the hand
  std::array<std::vector<PageFigure>, kHandClassCount> Rows{};  // in class index order
};

/// The page as HTML 5 in UTF-8. All texts are escaped.
[[nodiscard]] std::string PageMarkup(const WebPage& page);

}  // namespace quillon
