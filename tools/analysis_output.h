#pragma once

// A finished analysis as text, in the companion's formats.

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "analysis/analysis.h"
#include "ranges/card_grid.h"
#include "tools/formats.h"

namespace quillon {

enum class OutputFormat { kPlain, kForum, kTable, kJson, kCsv, kHtml, kSvg };

struct OutputFormatRow : FormatName {
  OutputFormat Format;
};

inline constexpr std::array<OutputFormatRow, 7> kAnalysisFormats = {{
    {{"plain", "the report to read, under the grid where a terminal shows 24-bit colours"}, OutputFormat::kPlain},
    {{"2+2", "the report as forum mark-up, with the working of each --hand"}, OutputFormat::kForum},
    {{"table", "the results table: label, expected value, equity, fold share, separated by tabs"},
     OutputFormat::kTable},
    {{"csv", "hand, combos, ev, equity, fold, colour; what a question does not have is empty"}, OutputFormat::kCsv},
    {{"json", "all of it as one object; what a question does not have is null"}, OutputFormat::kJson},
    {{"html", "a web page of one file: the situation, the grid with the figures of each hand, a table"},
     OutputFormat::kHtml},
    {{"svg", "the grid as a picture"}, OutputFormat::kSvg},
}};

/// The format of that name; kPlain for an unknown name.
[[nodiscard]] OutputFormat OutputFormatOf(std::string_view name);

/// The analysis in one format, including the last line end.
///
/// kPlain and kForum are the two reports, with Unix line ends; the forum form ends with the calculations for each of
/// `hands` (class labels). kHtml and kSvg are those of "results/analysis_page.h". kTable is the results table byte for
/// byte, including its line ends. kCsv is AnalysisTable with commas, and kJson is one object, with null for a value
/// that the scenario does not have, such as the fold share of a call. Numbers read back as in the table; an equity of
/// -1 means that the opponent never calls. Fails as BuildReport and MakeGridTexts do.
[[nodiscard]] std::string AnalysisOutput(OutputFormat format, const Analysis& analysis,
                                         std::span<const std::string> hands);

/// The 13 by 13 grid in its colours, for a terminal with 24-bit colour sequences: one line for each row, with class
/// labels in black or white, whichever reads better.
[[nodiscard]] std::string TerminalGrid(const CellColors& colors);

}  // namespace quillon
