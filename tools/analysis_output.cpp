#include "tools/analysis_output.h"

#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>

#include "hand/hand_classes.h"
#include "results/analysis_json.h"
#include "results/analysis_page.h"
#include "results/analysis_table.h"
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

// A name from the command line may be invalid UTF-8, which must not make the output fail.
std::string JsonOutput(const AnalysisAnswer& answer) {
  return AnalysisJson(answer.Finished).dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
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

const std::array<Format<AnalysisAnswer>, 7> kAnalysisFormats = {{
    {{kPlainFormat, "the report to read, under the grid where a terminal shows 24-bit colours"},
     [](const AnalysisAnswer& answer) { return ReportOutput(ReportForm::kPlainText, answer.Finished, {}); }},
    {{kForumFormat, "the report as forum mark-up, with the working of each --hand"},
     [](const AnalysisAnswer& answer) { return ReportOutput(ReportForm::kForum, answer.Finished, answer.Hands); }},
    {{"table", "the results table: label, expected value, equity, fold share, separated by tabs"},
     [](const AnalysisAnswer& answer) { return answer.Finished.HandInfo; }},
    {{"csv", "hand, combos, ev, equity, fold, colour; what a question does not have is empty"},
     [](const AnalysisAnswer& answer) { return AnalysisTable(answer.Finished, ','); }},
    {{"json", "all of it as one object; what a question does not have is null"}, JsonOutput},
    {{"html", "a web page of one file: the situation, the grid with the figures of each hand, a table"},
     [](const AnalysisAnswer& answer) { return AnalysisPage(answer.Finished); }},
    {{"svg", "the grid as a picture"}, [](const AnalysisAnswer& answer) { return AnalysisPicture(answer.Finished); }},
}};

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
