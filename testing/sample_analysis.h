#pragma once

// A made-up analysis for tests: range texts and results tables of a few hands, made without the routines under test.

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "analysis/analysis.h"
#include "hand/hand_classes.h"
#include "testing/range_texts.h"

namespace quillon::sample {

using TextsByHand = std::map<std::string_view, std::string_view>;

/// The entry of `texts` for `hand`, or else `otherwise`.
inline std::string TextFor(const TextsByHand& texts, std::string_view hand, std::string_view otherwise) {
  const auto found = texts.find(hand);
  return std::string(found == texts.end() ? otherwise : found->second);
}

/// A results table with the given cells, each "value, tab, equity, tab, fold share", and `otherwise` for every other
/// hand.
inline std::string ResultsTable(const TextsByHand& cells, std::string_view otherwise = "0\t0\t1") {
  std::string table;
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    table += std::string(HandLabel(index)) + "\t" + TextFor(cells, HandLabel(index), otherwise) + "\t\r\n";
  return table;
}

/// Pot 150, 50 to call: odds of 3 to 1. 72o loses, 22 loses half a chip, AKs breaks even.
inline Analysis CallState() {
  Analysis state;
  state.Mode = AnalysisMode::kPreflopCall;
  state.Amounts = {150, 50, 0};
  state.RangeName = "Tight";
  state.RangeText = TextWith("AA", "KK");
  state.HandInfo = ResultsTable(
      {{"AA", "120\t0.85\t1"}, {"AKs", "0\t0.25\t1"}, {"72o", "-25.32\t0.1234\t1"}, {"22", "-0.5\t0.0625\t1"}});
  return state;
}

/// Pot 150, 50 to call, a shove of 62.5. Nobody calls a shove when the hero holds AA.
inline Analysis RaiseState() {
  Analysis state;
  state.Mode = AnalysisMode::kPreflopRaise;
  state.Amounts = {150, 50, 62.5};
  state.RangeName = "Wide";
  state.RangeText = TextWith("AA KK QQ AKs");
  state.CallingRangeName = "Tight";
  state.CallingRangeText = TextWith("AA");
  state.HandInfo = ResultsTable({{"AA", "150\t-1\t1"},
                                 {"AKs", "98.2\t0.55\t0.4"},
                                 {"KK", "1234.565\t0.123456789\t0.123456789"},
                                 {"22", "-12.5\t0.3\t0"}},
                                "0\t0\t0");
  return state;
}

inline Analysis EquityState() {
  Analysis state;
  state.Mode = AnalysisMode::kEquityOnly;
  state.RangeName = "Wide";
  state.RangeText = TextWith("AA KK");
  state.HandInfo = ResultsTable(
      {{"AA", "0\t0.8523\t1"}, {"AKs", "0\t0.123456789012345\t1"}, {"72o", "0\t-1\t1"}, {"22", "0\t0.5\t1"}});
  return state;
}

}  // namespace quillon::sample
