#pragma once

// The results grid of a finished analysis: the colour of each of the 169 cells, the situation under the grid, and the
// explanation beside it. A hand is profitable, green and counted in the percentage, from an expected value of 0 up.

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "analysis/analysis.h"
#include "ranges/card_grid.h"

namespace quillon {

/// The legend of green cells, and of red ones.
inline constexpr std::string_view kGoodLegend = "Go ALL IN";
inline constexpr std::string_view kBadLegend = "Fold";

inline constexpr std::string_view kGridTitle = "ALL IN Grid";
inline constexpr std::string_view kNoAnalysisText = "No analysis has been performed.";

/// The texts around the grid, initialised as before any analysis.
struct GridTexts {
  std::string Title{kGridTitle};
  std::string HandInfo;  // the situation, lines separated by CR LF
  std::string Results{kNoAnalysisText};  // the explanation, lines separated by CR LF
  bool LegendVisible = true;

  bool operator==(const GridTexts&) const = default;
};

/// The column of the results table that a scenario shows: the equity in "Equity Only", otherwise the expected value.
[[nodiscard]] std::int16_t ShownColumn(const Analysis& analysis);

/// The texts for the last finished analysis. A Preflop Call fails as Divide does if its call amount is 0.
[[nodiscard]] GridTexts MakeGridTexts(const Analysis& analysis);

/// The colours of the cells, in class index order. High and Low are the values of the rows of BestHand and WorstHand,
/// in the shown column. High may be below the true maximum, so a cell may be darker than the darkest green. Never
/// fails: a value measured against 0, such as a best value of exactly 0 or equal equities, has the palest shade.
[[nodiscard]] CellColors GridColors(const Analysis& analysis);

/// A class's row of the results table with the colour of its cell, such as "#00ff00".
using ShownHand = std::pair<HandResult, std::string>;

/// All classes, in index order.
[[nodiscard]] std::vector<ShownHand> ShownHands(const Analysis& analysis);

}  // namespace quillon
