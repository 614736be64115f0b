#pragma once

// A figure ("study/figure.h") as an SVG picture.

#include <string>

#include "study/figure.h"

namespace quillon {

/// One SVG document of the figure in its natural size.
[[nodiscard]] std::string FigureSvg(const Figure& figure);

}  // namespace quillon
