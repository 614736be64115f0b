#include "tools/analysis_output.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>

#include "analysis/results_table.h"
#include "hand/hand_classes.h"
#include "results/analysis_json.h"
#include "results/analysis_page.h"
#include "results/analysis_table.h"
#include "results/hand_line.h"
#include "results/report.h"
#include "support/line_ends.h"

namespace quillon {
namespace {

std::string ReportOutput(ReportForm form, const Analysis& analysis, std::span<const std::string> hands) {
  ReportText report = BuildReport(analysis, form);
  for (const std::string& hand : hands)
    AddSpecificHand(report, analysis, hand);
  return UnixLineEnds(PlainText(report));
}

// Black on light cells, white on dark ones. Source of the weights: ITU-R BT.601, luma.
bool ReadsBetterInWhite(Rgb color) {
  constexpr int kHalfLuma = 128 * 1000;
  return 299 * color.Red + 587 * color.Green + 114 * color.Blue < kHalfLuma;
}

std::string Channels(Rgb color) {
  return std::to_string(color.Red) + ";" + std::to_string(color.Green) + ";" + std::to_string(color.Blue);
}

}  // namespace

OutputFormat OutputFormatOf(std::string_view name) {
  const auto* const found = std::find_if(kAnalysisFormats.begin(), kAnalysisFormats.end(),
                                         [name](const OutputFormatRow& row) { return row.Name == name; });
  return found == kAnalysisFormats.end() ? OutputFormat::kPlain : found->Format;
}

std::string AnalysisOutput(OutputFormat format, const Analysis& analysis, std::span<const std::string> hands) {
  switch (format) {
    case OutputFormat::kPlain:
      return ReportOutput(ReportForm::kPlainText, analysis, {});
    case OutputFormat::kForum:
      return ReportOutput(ReportForm::kForum, analysis, hands);
    case OutputFormat::kTable:
      return analysis.HandInfo;
    case OutputFormat::kJson:
      // A name from the command line may be invalid UTF-8, which must not make the output fail.
      return AnalysisJson(analysis).dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
    case OutputFormat::kCsv:
      return AnalysisTable(analysis, ',');
    case OutputFormat::kHtml:
      return AnalysisPage(analysis);
    case OutputFormat::kSvg:
      return AnalysisPicture(analysis);
  }
  return {};
}

std::string TerminalGrid(const CellColors& colors) {
  std::string text;
  for (std::size_t i = 0; i < colors.size(); ++i) {
    const std::string_view label = HandLabel(static_cast<std::int16_t>(i));
    text += "\x1b[48;2;" + Channels(colors[i]) + "m";
    text += ReadsBetterInWhite(colors[i]) ? "\x1b[38;2;255;255;255m " : "\x1b[38;2;0;0;0m ";
    text.append(label).append(label.size() == 2 ? "  " : " ").append("\x1b[0m");
    if (i % kRankCount == kRankCount - 1U) text += "\n";
  }
  return text;
}

}  // namespace quillon
