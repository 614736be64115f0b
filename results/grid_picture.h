#pragma once

// The 13 by 13 grid of classes as an SVG picture, for posting.

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "hand/hand_classes.h"
#include "support/rgb.h"

namespace quillon {

/// A cell: its colour, and an optional short text under its label.
struct PictureCell {
  Rgb Color;
  std::string Text{};
};

using PictureCells = std::array<PictureCell, kHandClassCount>;

/// A grid with an optional line above it and an optional note below it, which is wrapped.
struct PictureGrid {
  std::string Caption;
  PictureCells Cells;
  std::string Note{};
};

/// One SVG document with the grids side by side. The title is for screen readers and browser tabs.
[[nodiscard]] std::string GridPicture(std::string_view title, std::span<const PictureGrid> grids);

}  // namespace quillon
