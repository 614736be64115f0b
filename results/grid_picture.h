#pragma once

// The 13 by 13 grid of classes as an SVG picture, for posting.

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "results/web_page.h"

namespace quillon {

/// A grid, of whose cells the colours and the texts are drawn, with an optional line above it and an optional note
/// below it, which is wrapped.
struct PictureGrid {
  std::string Caption;
  std::array<PageCell, kHandClassCount> Cells;
  std::string Note{};
};

/// One SVG document with the grids side by side. The title is for screen readers and browser tabs.
[[nodiscard]] std::string GridPicture(std::string_view title, std::span<const PictureGrid> grids);

}  // namespace quillon
