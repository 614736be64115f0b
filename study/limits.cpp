#include "study/limits.h"

#include <cstdint>

#include "analysis/expected_value.h"
#include "analysis/scenarios.h"
#include "support/number_text.h"

namespace quillon {
namespace {

// Where a line of this height at 0 and this slope is not below 0, among amounts above 0.
Limit LimitOfLine(double atZero, double slope) {
  if (slope < 0 && atZero > 0) return {LimitKind::kUpTo, atZero / -slope};
  if (slope > 0 && atZero < 0) return {LimitKind::kFrom, -atZero / slope};
  const bool neverBelow = slope == 0 ? atZero >= 0 : slope > 0;
  return {neverBelow ? LimitKind::kAlways : LimitKind::kNever, 0};
}

template <typename LimitOf>
Limits LimitsOf(const RangeNumbers& ranges, AnalysisMode mode, LimitOf limitOf) {
  Limits limits;
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    limits[static_cast<std::size_t>(index)] = limitOf(ranges.FiguresOf(ScenarioOf(mode), index));
  return limits;
}

}  // namespace

Limit CallLimit(double pot, double equity) {
  const Limit limit = LimitOfLine(pot * equity, equity - 1);
  if (limit.Kind == LimitKind::kUpTo && limit.Amount >= pot) return {LimitKind::kAlways, 0};
  return limit;
}

Limit ShoveLimit(double pot, double call, const ClassFigures& figures) {
  // Folded, the amount does not matter. Called, each unit of it brings two at the equity and costs one.
  const double slope = figures.CallShare * (2 * figures.Equity - 1);
  return LimitOfLine(ShoveExpectedValue(pot, call, 0, figures.Equity, figures.CallShare), slope);
}

Limits CallLimits(const RangeNumbers& range, double pot) {
  return LimitsOf(range, AnalysisMode::kPreflopCall,
                  [pot](const ClassFigures& figures) { return CallLimit(pot, figures.Equity); });
}

Limits ShoveLimits(const RangeNumbers& ranges, double pot, double call) {
  return LimitsOf(ranges, AnalysisMode::kPreflopRaise,
                  [pot, call](const ClassFigures& figures) { return ShoveLimit(pot, call, figures); });
}

std::string LimitText(const Limit& limit) {
  switch (limit.Kind) {
    case LimitKind::kUpTo:
      return NumberText(limit.Amount);
    case LimitKind::kFrom:
      return "from " + NumberText(limit.Amount);
    case LimitKind::kAlways:
      return "always";
    case LimitKind::kNever:
      break;
  }
  return "never";
}

}  // namespace quillon
