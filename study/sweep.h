#pragma once

// One question asked many times, with one amount or the width of a range going up step by step. Equities and fold
// shares do not depend on the amounts, so they are worked out once for all steps, and a thousand steps take little more
// time than one; where the range changes they are worked out for each. Either way the figures are those of separate
// analyses, digit for digit.

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "analysis/analysis.h"
#include "analysis/range_sources.h"
#include "hand/hand_classes.h"

namespace quillon {

/// More steps than these are refused.
inline constexpr std::int64_t kMostSteps = 100000;

/// Decimals from one to another: the step k is FROM + k * STEP, and the last is the largest not above TO.
class Steps {
 public:
  /// Reads "FROM:TO:STEP", three plain decimals such as "5", "0.25" or ".5" with at most 15 digits each. The second may
  /// not be below the first, the third must be above 0, and there may be at most kMostSteps. Otherwise the reason, as
  /// in "the step must be above 0".
  ///
  ///     "1:2:0.25" -> 1, 1.25, 1.5, 1.75, 2      "0.1:0.35:0.1" -> 0.1, 0.2, 0.3      "5:5:1" -> 5
  [[nodiscard]] static std::variant<Steps, std::string> Read(std::string_view text);

  /// The same from the three decimals.
  [[nodiscard]] static std::variant<Steps, std::string> Between(std::string_view from, std::string_view to,
                                                                std::string_view step);

  [[nodiscard]] std::int64_t Count() const { return count_; }

  /// The step as text, from the decimals and not by floats: the shortest decimal, as "0.3". It counts as it reads.
  [[nodiscard]] std::string Text(std::int64_t step) const;

 private:
  Steps(std::int64_t from, std::int64_t step, std::int64_t count, int decimals)
      : from_(from), step_(step), count_(count), decimals_(decimals) {}

  std::int64_t from_;  // in units of the last decimal
  std::int64_t step_;
  std::int64_t count_;
  int decimals_;
};

/// What a sweep tells of one step.
struct SweepRow {
  std::string At;  // the text of the step
  int ProfitableCombos = 0;  // concrete hands, 0 to 1326, of the classes whose expected value is 0 or more
  std::vector<double> ExpectedValues;  // of the hands asked for, in their order, as a results table holds them
};

/// The share of all hands that is profitable, in percent.
[[nodiscard]] double ProfitablePercent(const SweepRow& row);

/// The rows as comma-separated lines under a heading, with every digit. `what` goes up, and the hands are those of the
/// rows, in their order.
///
///     shove,profitable,K9o,22
///     5,100,0.909819209069834,1.00635614402889
[[nodiscard]] std::string SweepCsv(std::string_view what, std::span<const std::string> hands,
                                   std::span<const SweepRow> rows);

/// What is asked at every step.
struct SweepQuestion {
  AnalysisMode Mode = AnalysisMode::kPreflopCall;  // or kPreflopRaise
  Amounts Fixed;
  std::vector<std::int16_t> Hands;  // class indexes
};

/// A row for each step, with this amount going through the steps in place of the fixed one. Fails as FiguresOf does for
/// the ranges.
[[nodiscard]] std::vector<SweepRow> SweepAmount(const SweepQuestion& question, const RangeNumbers& ranges,
                                                double Amounts::*amount, const Steps& steps);

/// The row of one step, from what the ranges say at it and the amounts as they are there. Fails as FiguresOf does.
[[nodiscard]] SweepRow SweepRowAt(const SweepQuestion& question, const RangeNumbers& ranges, std::string at);

/// The same with all amounts fixed and the range of each step given: what FiguresOf is asked of at the step's text.
[[nodiscard]] std::vector<SweepRow> SweepRanges(const SweepQuestion& question,
                                                const std::function<RangeNumbers(std::string_view at)>& rangesAt,
                                                const Steps& steps);

}  // namespace quillon
