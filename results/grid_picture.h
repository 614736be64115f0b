#pragma once

// The 13 by 13 grid of classes as an SVG picture, for whoever posts it.

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "hand/hand_classes.h"
#include "support/rgb.h"

namespace quillon {

/// A cell: its colour, and a short text under its label, or none.
struct PictureCell {
  Rgb Color;
  std::string Text{};
};

using PictureCells = std::array<PictureCell, kHandClassCount>;

/// A grid with the line above it, or none, and a note below it, or none, which is broken into lines between words.
struct PictureGrid {
  std::string Caption;
  PictureCells Cells;
  std::string Note{};
};

/// One SVG document with the grids side by side. The title is for screen readers and for the tab of a browser. Labels
/// are black or white, as ReadableOn has it.
[[nodiscard]] std::string GridPicture(std::string_view title, std::span<const PictureGrid> grids);

}  // namespace quillon
