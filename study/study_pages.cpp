#include "study/study_pages.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "results/grid_picture.h"
#include "study/limit_cells.h"
#include "support/number_text.h"

namespace quillon {
namespace {

constexpr Rgb kPanelColor = {0x1F, 0x5F, 0xA8};
constexpr double kLast = 1e300;  // for sorting; the largest double would not have 15 digits

// ---- limits

double OrderOf(const Limit& limit) {
  switch (limit.Kind) {
    case LimitKind::kUpTo:
      return limit.Amount;
    case LimitKind::kAlways:
      return kLast;
    case LimitKind::kFrom:
      return -1;
    case LimitKind::kNever:
      break;
  }
  return -2;
}

PageGrid GridOf(const std::string& title, const Limits& limits) {
  PageGrid grid{.Name = title, .Cells = {}};
  std::ranges::transform(LimitCells(limits), grid.Cells.begin(), [](const ClassCell& cell) {
    return PageCell{
        .Color = cell.Color, .Text = cell.Text, .PanelColor = kPanelColor, .Panel = {{"Does not lose:", cell.Words}}};
  });
  return grid;
}

// ---- charts

constexpr const char* kShoveTitle = "Shove";
constexpr const char* kCallTitle = "Call a shove";
constexpr const char* kUnit = "big blinds";

std::string CellText(const StackLimit& limit) {
  if (limit.Largest.empty()) return "\u2013";
  return StackText(limit) + (limit.Gaps.empty() ? "" : "*");
}

PageCell CellOf(const std::string& title, const StackLimit& limit, const AmountShades& shades) {
  PageCell cell{.Color = kNeverPlayedColor,
                .Text = CellText(limit),
                .PanelColor = kPanelColor,
                .Panel = {{title + ":", limit.Largest.empty() ? StackText(limit) : "up to " + StackText(limit)}}};
  if (!limit.Largest.empty()) cell.Color = shades.Of(LeadingNumber(limit.Largest));
  if (!limit.Gaps.empty()) cell.Panel.push_back({"But not at:", GapsText(limit)});
  return cell;
}

// Explains the stars of a picture, which has no panels.
std::string GapsNote(const StackLimits& limits) {
  std::string note;
  for (std::size_t i = 0; i < limits.size(); ++i) {
    if (limits[i].Gaps.empty()) continue;
    note.append(note.empty() ? "* But not at: " : "; ").append(HandLabel(static_cast<std::int16_t>(i)));
    note.append(" ").append(GapsText(limits[i]));
  }
  return note;
}

PageGrid GridOf(const std::string& title, const StackLimits& limits, const Steps& stacks) {
  AmountShades shades;
  shades.Add(LeadingNumber(stacks.Text(0)));
  shades.Add(LeadingNumber(stacks.Text(stacks.Count() - 1)));
  PageGrid grid{.Name = title, .Cells = {}};
  std::ranges::transform(limits, grid.Cells.begin(),
                         [&](const StackLimit& limit) { return CellOf(title, limit, shades); });
  return grid;
}

void AddFigures(std::vector<PageFigure>& figures, const StackLimit& limit) {
  const double largest = limit.Largest.empty() ? 0 : LeadingNumber(limit.Largest);
  figures.push_back({StackText(limit), largest});
  figures.push_back({GapsText(limit), static_cast<double>(limit.Gaps.size())});
}

}  // namespace

std::string LimitsPage(const LimitsQuestion& question, const Limits& limits) {
  WebPage page{.Title = question.Title,
               .Subtitle = "Up to which amount each hand does not lose",
               .Situation = question.Situation,
               .Legend = LimitLegend(limits),
               .Grids = {GridOf(question.Title, limits)},
               .Columns = {"Combos", "Does not lose"}};
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const auto i = static_cast<std::size_t>(index);
    const int combos = ComboCount(HandLabel(index));
    page.Rows[i] = {{std::to_string(combos), static_cast<double>(combos)}, {LimitWords(limits[i]), OrderOf(limits[i])}};
  }
  return PageMarkup(page);
}

std::string LimitsPicture(const LimitsQuestion& question, const Limits& limits) {
  const PictureGrid grid = {question.Title, GridOf(question.Title, limits).Cells};
  return GridPicture(question.Title, std::array{grid});
}

std::string ChartPage(const StackChart& chart, const Steps& stacks) {
  const std::string from = stacks.Text(0);
  const std::string to = stacks.Text(stacks.Count() - 1);
  WebPage page{
      .Title = "All In or Fold, Heads-Up",
      .Subtitle = "Up to which stack each hand is played in balanced ranges",
      .Situation = {{"Blinds", "0.5 and 1"},
                    {"Effective stacks", from + " to " + to + " " + kUnit},
                    {"Steps", std::to_string(stacks.Count())}},
      .Explanation = {"The small blind shoves or folds, the big blind calls or folds. In balanced ranges neither gains "
                      "by changing.",
                      "A number is the largest stack, in big blinds, at which the hand is played; a plus says that it "
                      "is the largest of the chart. A star says that the hand is not played at some smaller stacks: "
                      "its panel and the table tell which."},
      .Legend = {{AmountShades::Middle(), "up to this stack; the larger, the darker"}, {kNeverPlayedColor, "at none"}},
      .Grids = {GridOf(kShoveTitle, chart.Shove, stacks), GridOf(kCallTitle, chart.Call, stacks)},
      .Columns = {"Shove up to", "but not at", "Call up to", "but not at"}};
  for (std::size_t i = 0; i < kHandClassCount; ++i) {
    AddFigures(page.Rows[i], chart.Shove[i]);
    AddFigures(page.Rows[i], chart.Call[i]);
  }
  return PageMarkup(page);
}

std::string ChartPicture(const StackChart& chart, const Steps& stacks) {
  const auto grid = [&stacks](const char* title, const StackLimits& limits) {
    return PictureGrid{std::string(title) + ", up to so many " + kUnit + " (* with gaps)",
                       GridOf(title, limits, stacks).Cells, GapsNote(limits)};
  };
  return GridPicture("Up to which stack each hand is shoved, and called with",
                     std::array{grid(kShoveTitle, chart.Shove), grid(kCallTitle, chart.Call)});
}

}  // namespace quillon
