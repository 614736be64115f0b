#pragma once

// A figure ("study/figure.h") as an SVG picture.

#include <span>
#include <string>

#include "study/figure.h"

namespace quillon {

/// One SVG document of the stacked figures, at least one, each in its natural size, with the first one's title.
[[nodiscard]] std::string FigureSvg(std::span<const Figure> figures);
[[nodiscard]] std::string FigureSvg(const Figure& figure);

}  // namespace quillon
