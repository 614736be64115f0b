#include "study/limit_cells.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "results/grid_colors.h"
#include "support/number_text.h"

namespace quillon {
namespace {

constexpr Rgb kFromColor = {0xFF, 0xD3, 0x7A};
constexpr double kPalest = 0.1;  // on the scale of equities
constexpr double kDeepest = 0.7;  // a shade below "always"

std::string CellText(const Limit& limit) {
  if (!HasAmount(limit)) return LimitText(limit);
  return (limit.Kind == LimitKind::kFrom ? "\u2265" : "") + ShortAmount(limit);
}

Rgb ColorOf(const Limit& limit, const AmountShades& shades) {
  switch (limit.Kind) {
    case LimitKind::kUpTo:
      return shades.Of(limit.Amount);
    case LimitKind::kAlways:
      return AmountShades::Deepest();
    case LimitKind::kFrom:
      return kFromColor;
    case LimitKind::kNever:
      break;
  }
  return kNeverPlayedColor;
}

// The colour under a white veil.
Rgb Paled(Rgb color) {
  constexpr int kVeil = 4;
  const auto pale = [](int component) { return 255 - (255 - component) / kVeil; };
  return MakeRgb(pale(color.Red), pale(color.Green), pale(color.Blue));
}

}  // namespace

void AmountShades::Add(double amount) {
  least_ = std::min(least_, amount);
  most_ = std::max(most_, amount);
}

Rgb AmountShades::Of(double amount) const {
  const double span = std::log(most_) - std::log(least_);
  const double place = span > 0 ? (std::log(amount) - std::log(least_)) / span : 0;
  return EquityColor(kPalest + place * (kDeepest - kPalest));
}

Rgb AmountShades::Deepest() {
  return EquityColor(1);
}

Rgb AmountShades::Middle() {
  return EquityColor((kPalest + kDeepest) / 2);
}

std::string LimitWords(const Limit& limit) {
  if (limit.Kind == LimitKind::kUpTo) return "up to " + LimitText(limit);
  return LimitText(limit) + (limit.Kind == LimitKind::kFrom ? " on" : "");
}

ClassCells LimitCells(const Limits& limits) {
  AmountShades shades;
  for (const Limit& limit : limits) {
    if (limit.Kind == LimitKind::kUpTo) shades.Add(limit.Amount);
  }
  ClassCells cells;
  std::ranges::transform(limits, cells.begin(), [&shades](const Limit& limit) {
    return ClassCell{.Color = ColorOf(limit, shades), .Text = CellText(limit), .Words = LimitWords(limit)};
  });
  return cells;
}

ClassCells LimitCellsAt(const Limits& limits, double amount) {
  ClassCells cells = LimitCells(limits);
  for (std::size_t i = 0; i < cells.size(); ++i) {
    cells[i].Pale = LosesAt(limits[i], amount);
    cells[i].Words += (cells[i].Pale ? ", loses at " : ", does not lose at ") + NumberText(amount);
    if (cells[i].Pale) cells[i].Color = Paled(cells[i].Color);
  }
  return cells;
}

std::vector<PageLegend> LimitLegend(const Limits& limits) {
  const auto has = [&limits](LimitKind kind) {
    return std::ranges::any_of(limits, [kind](const Limit& limit) { return limit.Kind == kind; });
  };
  std::vector<PageLegend> legend;
  if (has(LimitKind::kAlways)) legend.push_back({AmountShades::Deepest(), "always"});
  if (has(LimitKind::kUpTo)) legend.push_back({AmountShades::Middle(), "up to this amount; the larger, the darker"});
  if (has(LimitKind::kFrom)) legend.push_back({kFromColor, "from this amount on"});
  if (has(LimitKind::kNever)) legend.push_back({kNeverPlayedColor, "never"});
  return legend;
}

std::vector<PageLegend> LimitLegendAt(const Limits& limits, double amount) {
  std::vector<PageLegend> legend = LimitLegend(limits);
  if (std::ranges::any_of(limits, [amount](const Limit& limit) { return LosesAt(limit, amount); }))
    legend.push_back({Paled(AmountShades::Middle()), "pale: loses at " + NumberText(amount)});
  return legend;
}

int CombosGoodAt(const Limits& limits, double amount) {
  int combos = 0;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    if (!LosesAt(limits[static_cast<std::size_t>(index)], amount)) combos += ComboCount(HandLabel(index));
  }
  return combos;
}

std::string LimitTable(const Limits& limits, char separator) {
  const std::string between(1, separator);
  std::string text = "hand" + between + "limit" + between + "amount\n";
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const Limit& limit = limits[static_cast<std::size_t>(index)];
    text.append(HandLabel(index)).append(between).append(LimitKindName(limit.Kind)).append(between);
    text.append(HasAmount(limit) ? NumberText(limit.Amount) : "").append("\n");
  }
  return text;
}

}  // namespace quillon
