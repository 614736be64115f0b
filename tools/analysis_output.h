#pragma once

// A finished analysis as text, in the companion's formats.

#include <array>
#include <span>
#include <string>

#include "analysis/analysis.h"
#include "ranges/card_grid.h"
#include "tools/formats.h"

namespace quillon {

/// A finished analysis, and the class labels of the hands whose calculations the forum form adds.
struct AnalysisAnswer {
  const Analysis& Finished;
  std::span<const std::string> Hands;
};

/// The names of the two reports.
inline constexpr const char* kPlainFormat = "plain";
inline constexpr const char* kForumFormat = "2+2";

/// The formats of an analysis, each including its last line end.
///
/// The plain and the forum format are the two reports, with Unix line ends; the forum form ends with the calculations
/// for each hand. The page and the picture are those of "results/analysis_page.h". The table is the results table byte
/// for byte, including its line ends. CSV is AnalysisTable with commas, and JSON is one object, with null for a value
/// that the scenario does not have, such as the fold share of a call. Numbers read back as in the table; an equity of
/// -1 means that the opponent never calls. Fails as BuildReport and MakeGridTexts do.
extern const std::array<Format<AnalysisAnswer>, 7> kAnalysisFormats;

/// The 13 by 13 grid in its colours, for a terminal with 24-bit colour sequences: one line for each row, with class
/// labels in black or white, whichever reads better.
[[nodiscard]] std::string TerminalGrid(const CellColors& colors);

}  // namespace quillon
