#include "study/limits.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "analysis/expected_value.h"
#include "support/number_text.h"
#include "support/rounding.h"

namespace quillon {
namespace {

// Where a line with this value at 0 and this slope is not below 0, for amounts above 0.
Limit LimitOfLine(double atZero, double slope) {
  const double crossing = -atZero / slope;
  const bool crosses = std::abs(crossing) <= kMostLimit;  // false if the slope is 0
  if (crosses && slope < 0 && atZero > 0) return {LimitKind::kUpTo, crossing};
  if (crosses && slope > 0 && atZero < 0) return {LimitKind::kFrom, crossing};
  const bool neverBelow = crosses ? slope > 0 : atZero >= 0;
  return {neverBelow ? LimitKind::kAlways : LimitKind::kNever, 0};
}

// Moved by half a `unit` to the side on which the hand does not lose, so that the nearest multiple is on that side.
double Safer(const Limit& limit, double unit) {
  return limit.Amount + (limit.Kind == LimitKind::kUpTo ? -unit / 2 : unit / 2);
}

std::string WithPowerOfTen(double amount) {
  std::array<char, 16> text{};
  char* const end = std::to_chars(text.data(), text.data() + text.size(), amount, std::chars_format::scientific, 1).ptr;
  std::replace(text.begin(), text.end(), 'e', 'E');
  return {text.data(), end};
}

}  // namespace

Limit CallLimit(double pot, double equity) {
  const Limit limit = LimitOfLine(pot * equity, equity - 1);
  if (limit.Kind == LimitKind::kUpTo && limit.Amount >= pot) return {LimitKind::kAlways, 0};
  return limit;
}

Limit ShoveLimit(double pot, double call, const ClassFigures& figures) {
  // If he folds, the amount does not matter. If he calls, each unit of it brings two at the equity and costs one.
  const double slope = figures.CallShare * (2 * figures.Equity - 1);
  return LimitOfLine(ShoveExpectedValue(pot, call, 0, figures.Equity, figures.CallShare), slope);
}

Limits LimitsOf(AnalysisMode mode, const RangeNumbers& ranges, const Amounts& amounts) {
  Limits limits;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const ClassFigures figures = ranges.FiguresOf(ScenarioOf(mode), index);
    limits[static_cast<std::size_t>(index)] = RowOf(kMoves, mode).LimitOf(amounts, figures);
  }
  return limits;
}

std::string_view LimitKindName(LimitKind kind) {
  constexpr std::array<std::string_view, 4> kNames = {"up to", "always", "never", "from"};
  return kNames.at(static_cast<std::size_t>(kind));
}

bool LosesAt(const Limit& limit, double amount) {
  switch (limit.Kind) {
    case LimitKind::kUpTo:
      return amount > limit.Amount;
    case LimitKind::kFrom:
      return amount < limit.Amount;
    case LimitKind::kAlways:
      return false;
    case LimitKind::kNever:
      break;
  }
  return true;
}

std::string LimitText(const Limit& limit) {
  if (!HasAmount(limit)) return std::string(LimitKindName(limit.Kind));
  return (limit.Kind == LimitKind::kFrom ? "from " : "") + NumberText(limit.Amount);
}

std::string ShortAmount(const Limit& limit) {
  constexpr std::size_t kMost = 8;
  constexpr double kLeast = 0.01;
  constexpr std::array<std::pair<int, double>, 3> kUnits = {{{2, 0.01}, {1, 0.1}, {0, 1}}};
  for (const auto& [decimals, unit] : kUnits) {
    double rounded = RoundTo(limit.Amount, decimals);
    if (LosesAt(limit, rounded)) rounded = RoundTo(Safer(limit, unit), decimals);
    std::string text = NumberText(rounded);
    if (text.size() <= kMost && limit.Amount >= kLeast) return text;
  }
  std::string text = WithPowerOfTen(limit.Amount);
  if (!LosesAt(limit, LeadingNumber(text))) return text;
  return WithPowerOfTen(Safer(limit, std::pow(10, std::floor(std::log10(limit.Amount)) - 1)));
}

}  // namespace quillon
