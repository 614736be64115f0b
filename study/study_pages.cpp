#include "study/study_pages.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "results/grid_colors.h"
#include "results/grid_picture.h"
#include "support/number_text.h"

namespace quillon {
namespace {

constexpr Rgb kNeverColor = {0xE3, 0xE6, 0xEA};
constexpr Rgb kFromColor = {0xFF, 0xD3, 0x7A};
constexpr Rgb kPanelColor = {0x1F, 0x5F, 0xA8};
constexpr double kLast = 1e300;  // in the order of a table; the largest number of all would not be one with 15 digits

// The shades of an equity, from pale to the darkest; by ratios, as amounts go over several sizes.
class Shades {
 public:
  void Add(double amount) {
    least_ = std::min(least_, amount);
    most_ = std::max(most_, amount);
  }

  [[nodiscard]] Rgb Of(double amount) const {
    const double span = std::log(most_) - std::log(least_);
    const double place = span > 0 ? (std::log(amount) - std::log(least_)) / span : 0;
    return EquityColor(kPalest + place * (kDeepest - kPalest));
  }

  static Rgb Deepest() { return EquityColor(1); }
  static Rgb Middle() { return EquityColor((kPalest + kDeepest) / 2); }

 private:
  static constexpr double kPalest = 0.1;
  static constexpr double kDeepest = 0.7;  // a shade below what is always good

  double least_ = std::numeric_limits<double>::max();
  double most_ = 0;
};

std::array<PictureCell, kHandClassCount> PictureOf(const PageGrid& grid) {
  PictureCells cells;
  std::ranges::transform(grid.Cells, cells.begin(), [](const PageCell& cell) {
    return PictureCell{cell.Color, cell.Text};
  });
  return cells;
}

// ---- limits

std::string LimitWords(const Limit& limit) {
  if (limit.Kind == LimitKind::kUpTo) return "up to " + LimitText(limit);
  return LimitText(limit) + (limit.Kind == LimitKind::kFrom ? " on" : "");
}

std::string ShortText(const Limit& limit) {
  if (limit.Kind == LimitKind::kUpTo) return ShortAmount(limit);
  return limit.Kind == LimitKind::kFrom ? "\u2265" + ShortAmount(limit) : LimitText(limit);
}

Rgb ColorOf(const Limit& limit, const Shades& shades) {
  switch (limit.Kind) {
    case LimitKind::kUpTo:
      return shades.Of(limit.Amount);
    case LimitKind::kAlways:
      return Shades::Deepest();
    case LimitKind::kFrom:
      return kFromColor;
    case LimitKind::kNever:
      break;
  }
  return kNeverColor;
}

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
  Shades shades;
  for (const Limit& limit : limits) {
    if (limit.Kind == LimitKind::kUpTo) shades.Add(limit.Amount);
  }
  PageGrid grid{.Name = title, .Cells = {}};
  std::ranges::transform(limits, grid.Cells.begin(), [&shades](const Limit& limit) {
    return PageCell{.Color = ColorOf(limit, shades),
                    .Text = ShortText(limit),
                    .PanelColor = kPanelColor,
                    .Panel = {{"Does not lose:", LimitWords(limit)}}};
  });
  return grid;
}

std::vector<PageLegend> LegendOf(const Limits& limits) {
  const auto has = [&limits](LimitKind kind) {
    return std::ranges::any_of(limits, [kind](const Limit& limit) { return limit.Kind == kind; });
  };
  std::vector<PageLegend> legend;
  if (has(LimitKind::kAlways)) legend.push_back({Shades::Deepest(), "always"});
  if (has(LimitKind::kUpTo)) legend.push_back({Shades::Middle(), "up to this amount; the larger, the darker"});
  if (has(LimitKind::kFrom)) legend.push_back({kFromColor, "from this amount on"});
  if (has(LimitKind::kNever)) legend.push_back({kNeverColor, "never"});
  return legend;
}

// ---- charts

constexpr const char* kShoveTitle = "Shove";
constexpr const char* kCallTitle = "Call a shove";
constexpr const char* kUnit = "big blinds";

std::string CellText(const StackLimit& limit) {
  if (limit.Largest.empty()) return "\u2013";
  return StackText(limit) + (limit.Gaps.empty() ? "" : "*");
}

PageCell CellOf(const std::string& title, const StackLimit& limit, const Shades& shades) {
  PageCell cell{.Color = kNeverColor,
                .Text = CellText(limit),
                .PanelColor = kPanelColor,
                .Panel = {{title + ":", limit.Largest.empty() ? StackText(limit) : "up to " + StackText(limit)}}};
  if (!limit.Largest.empty()) cell.Color = shades.Of(LeadingNumber(limit.Largest));
  if (!limit.Gaps.empty()) cell.Panel.push_back({"But not at:", GapsText(limit)});
  return cell;
}

// What the stars of a picture stand for, since it has no panels.
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
  Shades shades;
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
               .Legend = LegendOf(limits),
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
  const PictureGrid grid = {question.Title, PictureOf(GridOf(question.Title, limits))};
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
      .Legend = {{Shades::Middle(), "up to this stack; the larger, the darker"}, {kNeverColor, "at none"}},
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
                       PictureOf(GridOf(title, limits, stacks)), GapsNote(limits)};
  };
  return GridPicture("Up to which stack each hand is shoved, and called with",
                     std::array{grid(kShoveTitle, chart.Shove), grid(kCallTitle, chart.Call)});
}

}  // namespace quillon
