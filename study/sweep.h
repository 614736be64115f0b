#pragma once

// One question asked many times, as one amount or the width of a range goes up step by step. Equities and fold shares
// do not depend on the amounts, so they are computed once, and a thousand steps take little longer than one; when the
// range changes they are computed for each step. The figures are those of separate analyses, digit for digit.

#include <array>
#include <cstdint>
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

/// More steps are refused.
inline constexpr std::int64_t kMostSteps = 100000;

/// A sequence of decimals: step k is FROM + k * STEP, and the last is the largest not above TO.
class Steps {
 public:
  /// Reads "FROM:TO:STEP", three plain decimals such as "5", "0.25" or ".5" with at most 15 digits each. TO must not be
  /// below FROM, STEP must be above 0, and there may be at most kMostSteps. Otherwise the error, such as
  /// "the step must be above 0".
  ///
  ///     "1:2:0.25" -> 1, 1.25, 1.5, 1.75, 2      "0.1:0.35:0.1" -> 0.1, 0.2, 0.3      "5:5:1" -> 5
  [[nodiscard]] static std::variant<Steps, std::string> Read(std::string_view text);

  /// The same from three separate decimals.
  [[nodiscard]] static std::variant<Steps, std::string> Between(std::string_view from, std::string_view to,
                                                                std::string_view step);

  [[nodiscard]] std::int64_t Count() const { return count_; }

  /// The step as text, computed in decimals: the shortest form, such as "0.3". Its value is that of the text.
  [[nodiscard]] std::string Text(std::int64_t step) const;

 private:
  Steps(std::int64_t from, std::int64_t step, std::int64_t count, int decimals)
      : from_(from), step_(step), count_(count), decimals_(decimals) {}

  std::int64_t from_;  // in units of the last decimal
  std::int64_t step_;
  std::int64_t count_;
  int decimals_;
};

/// One step of a sweep.
struct SweepRow {
  std::string At;  // the text of the step
  int ProfitableCombos = 0;  // concrete hands, 0 to 1326, whose class has an expected value of 0 or more
  std::vector<double> ExpectedValues;  // of the hands asked for, in order, with a results table's digits
};

/// The profitable share of all hands, in percent.
[[nodiscard]] double ProfitablePercent(const SweepRow& row);

/// The rows as comma-separated lines with a heading, with every digit. `what` goes up; `hands` are those of the rows.
///
///     shove,profitable,K9o,22
///     5,100,0.909819209069834,1.00635614402889
[[nodiscard]] std::string SweepCsv(std::string_view what, std::span<const std::string> hands,
                                   std::span<const SweepRow> rows);

struct SweepQuestion {
  AnalysisMode Mode = AnalysisMode::kPreflopCall;  // or kPreflopRaise
  Amounts Fixed;
  std::vector<std::int16_t> Hands;  // class indexes
};

/// A row for each step, with this amount taking the step's value. Fails as FiguresOf does for the ranges.
[[nodiscard]] std::vector<SweepRow> SweepAmount(const SweepQuestion& question, const RangeNumbers& ranges,
                                                double Amounts::*amount, const Steps& steps);

/// The row of one step, from the ranges and amounts at that step. Fails as FiguresOf does.
[[nodiscard]] SweepRow SweepRowAt(const SweepQuestion& question, const RangeNumbers& ranges, std::string at);

}  // namespace quillon
