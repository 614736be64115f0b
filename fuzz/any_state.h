#pragma once

// An analysis made from the bytes of a fuzz input: any scenario, amounts, names, ranges and results.

#include <cstdint>
#include <string>

#include "analysis/analysis.h"
#include "analysis/results_table.h"
#include "fuzz/any_weights.h"
#include "fuzz/fuzz_target.h"
#include "hand/hand_classes.h"
#include "support/run_time_error.h"

namespace quillon {

/// A range text: one of simple weights, or arbitrary bytes.
inline std::string AnyRangeText(FuzzInput& input) {
  constexpr std::size_t kBytes = 43;  // two bits a class
  if (input.TakeBelow(4) == 3) return std::string(input.TakeText(input.TakeBelow(200)));
  return RangeTextOf(AnyWeights(input.TakeText(input.TakeBelow(kBytes + 1))));
}

/// An amount: an integer, hundredths, or any double.
inline double AnyAmount(FuzzInput& input) {
  const std::size_t kind = input.TakeBelow(4);
  if (kind == 0) return input.TakeDouble();
  const double whole = static_cast<double>(input.TakeBelow(256)) - 64;
  return kind == 1 ? whole / 100 : whole;
}

/// A results table: a whole one with any cells, a part of one, or arbitrary bytes.
inline std::string AnyResults(FuzzInput& input) {
  if (input.TakeBelow(4) == 3) return std::string(input.Rest());
  const auto rows = static_cast<std::int16_t>(input.TakeBelow(kHandClassCount + 1));
  std::string table;
  for (std::int16_t index = 0; index < rows; ++index) {
    const std::string cell(input.TakeText(input.TakeBelow(12)));
    const std::string share = "0." + std::to_string(input.TakeBelow(100));
    table.append(HandLabel(index)).append("\t").append(cell).append("\t").append(share).append("\t").append(share);
    table += "\t\r\n";
  }
  return table;
}

inline Analysis AnyState(FuzzInput& input) {
  Analysis state;
  state.Mode = static_cast<AnalysisMode>(input.TakeBelow(kScenarios.size() + 1));
  state.Amounts = {AnyAmount(input), AnyAmount(input), AnyAmount(input)};
  state.RangeName = input.TakeText(input.TakeBelow(16));
  state.CallingRangeName = input.TakeText(input.TakeBelow(16));
  state.RangeText = AnyRangeText(input);
  state.CallingRangeText = AnyRangeText(input);
  state.DroppedHands = input.TakeText(input.TakeBelow(32));
  state.HandInfo = AnyResults(input);
  return state;
}

/// Whether a fault is one that amounts, ranges and results can cause.
inline bool IsFaultOfAnalysis(RunTimeFault fault) {
  return fault == RunTimeFault::kOverflow || fault == RunTimeFault::kDivisionByZero ||
         fault == RunTimeFault::kInvalidProcedureCall;
}

}  // namespace quillon
