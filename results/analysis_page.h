#pragma once

// A finished analysis for whoever posts or keeps it: a web page of one file, and its grid as a picture. Both show the
// colours of the grid and the texts of the hover panel, as the window does.

#include <string>

#include "analysis/analysis.h"

namespace quillon {

/// The analysis as one web page ("results/web_page.h"): the situation, the explanation and the coloured grid, whose
/// panels hold the texts of MakeHoverTexts, and a table of expected value, equity and fold share, as far as the
/// scenario has them. The analysis must be finished; fails as MakeGridTexts does.
[[nodiscard]] std::string AnalysisPage(const Analysis& analysis);

/// The coloured grid alone, as an SVG picture ("results/grid_picture.h").
[[nodiscard]] std::string AnalysisPicture(const Analysis& analysis);

}  // namespace quillon
