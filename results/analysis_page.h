#pragma once

// A finished analysis for posting or keeping: a web page of one file, and its grid as a picture. Both show the same
// colours and hover texts as the window.

#include <string>

#include "analysis/analysis.h"

namespace quillon {

/// The analysis as one web page ("results/web_page.h"): the situation, the explanation, the coloured grid with the
/// texts of MakeHoverTexts, and a table of expected value, equity and fold share, as far as the scenario has them. The
/// analysis must be finished; fails as MakeGridTexts does.
[[nodiscard]] std::string AnalysisPage(const Analysis& analysis);

/// The coloured grid alone, as an SVG picture ("results/grid_picture.h").
[[nodiscard]] std::string AnalysisPicture(const Analysis& analysis);

}  // namespace quillon
