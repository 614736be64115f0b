#include "results/analysis_page.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "analysis/scenarios.h"
#include "hand/hand_classes.h"
#include "ranges/range_summary.h"
#include "results/formula_texts.h"
#include "results/grid_colors.h"
#include "results/grid_picture.h"
#include "results/hover_panel.h"
#include "results/result_columns.h"
#include "results/results_grid.h"
#include "results/web_page.h"

namespace quillon {
namespace {

// The palest shades of wins and losses would be useless in a legend.
constexpr double kLegendShade = 0.5;

Rgb PanelColor(HoverPicture picture) {
  switch (picture) {
    case HoverPicture::kGreen:
      return {0x1E, 0x7B, 0x34};
    case HoverPicture::kRed:
      return {0xB0, 0x2A, 0x2A};
    case HoverPicture::kBlue:
      break;
  }
  return {0x1F, 0x5F, 0xA8};
}

PageCell CellOf(const HoverTexts& texts, Rgb color) {
  PageCell cell{.Color = color,
                .PanelColor = PanelColor(texts.Picture),
                .Panel = {{std::string(texts.EquityTitle), texts.Equity}},
                .Verdict = std::string(texts.Advice)};
  const std::array<std::pair<std::string_view, const std::optional<std::string>*>, 3> lines = {
      {{kValueTitle, &texts.Value}, {kReturnTitle, &texts.Return}, {kFoldShareTitle, &texts.FoldShare}}};
  for (const auto& [title, text] : lines) {
    if (*text) cell.Panel.push_back({std::string(title), **text});
  }
  return cell;
}

PageLine RangeLine(const char* title, const std::string& name, std::string_view text) {
  const std::string summary = RangeSummary(text);
  if (name.empty() || name == summary) return {title, summary};
  return {title, name, summary};
}

std::vector<PageLine> SituationOf(const Analysis& analysis, const Scenario& scenario) {
  std::vector<PageLine> lines;
  for (const AmountKind& amount : scenario.AskedAmounts())
    lines.push_back({std::string(amount.Title), RoundedText(analysis.Amounts.*amount.Value, 2)});
  lines.push_back(RangeLine("His Range", analysis.RangeName, analysis.RangeText));
  if (!scenario.HasCallingRange) return lines;
  lines.push_back(RangeLine("His Calling Range", analysis.CallingRangeName, analysis.CallingRangeText));
  if (!analysis.DroppedHands.empty()) lines.push_back({"Dropped, as not in his range", analysis.DroppedHands});
  return lines;
}

std::vector<std::string> Paragraphs(std::string_view text) {
  constexpr std::string_view kBlankLine = "\r\n\r\n";
  std::vector<std::string> paragraphs;
  while (!text.empty()) {
    const std::string_view paragraph = text.substr(0, text.find(kBlankLine));
    paragraphs.emplace_back(paragraph);
    text.remove_prefix(std::min(paragraph.size() + kBlankLine.size(), text.size()));
  }
  return paragraphs;
}

// Only numbers have headings, so no text is sorted.
double OrderOf(const ResultValue& value) {
  if (const auto* const count = std::get_if<std::int16_t>(&value)) return *count;
  return std::get<double>(value);
}

}  // namespace

std::string AnalysisPage(const Analysis& analysis) {
  const Scenario& scenario = ScenarioOf(analysis.Mode);
  const GridTexts texts = MakeGridTexts(analysis);
  const CellColors colors = GridColors(analysis);
  WebPage page{.Title = texts.Title,
               .Subtitle = std::string(scenario.Name),
               .Situation = SituationOf(analysis, scenario),
               .Explanation = Paragraphs(texts.Results),
               .Grids = {{.Name = texts.Title, .Cells = {}}}};
  if (texts.LegendVisible) {
    page.Legend = {{EVColor(kLegendShade, "+"), std::string(kGoodLegend)},
                   {EVColor(kLegendShade, "-"), std::string(kBadLegend)}};
  }
  std::vector<ResultColumn> columns;
  for (const ResultColumn& column : ResultColumns()) {
    if (column.Heading == nullptr || !column.IsIn(scenario)) continue;
    columns.push_back(column);
    page.Columns.push_back(column.Heading(scenario));
  }
  const std::vector<ShownHand> hands = ShownHands(analysis);
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const auto i = static_cast<std::size_t>(index);
    const HoverTexts hover = *MakeHoverTexts(index, analysis);
    page.Grids.front().Cells.at(i) = CellOf(hover, colors.at(i));
    for (const ResultColumn& column : columns)
      page.Rows.at(i).push_back({column.Text(hands.at(i).first, hover), OrderOf(column.ValueOf(hands.at(i)))});
  }
  return PageMarkup(page);
}

std::string AnalysisPicture(const Analysis& analysis) {
  const CellColors colors = GridColors(analysis);
  PictureGrid grid;
  for (std::size_t i = 0; i < colors.size(); ++i)
    grid.Cells.at(i).Color = colors.at(i);
  return GridPicture(MakeGridTexts(analysis).Title, std::array{grid});
}

}  // namespace quillon
