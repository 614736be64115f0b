#pragma once

// A made-up analysis for tests: range texts and results tables of a few hands, written without the routines under test.

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>

#include "analysis/analysis.h"

namespace quillon::sample {

// clang-format off
inline constexpr std::array<std::string_view, 169> kAllHands = {
    "AA", "AKs", "AQs", "AJs", "ATs", "A9s", "A8s", "A7s", "A6s", "A5s", "A4s", "A3s", "A2s",
    "AKo", "KK", "KQs", "KJs", "KTs", "K9s", "K8s", "K7s", "K6s", "K5s", "K4s", "K3s", "K2s",
    "AQo", "KQo", "QQ", "QJs", "QTs", "Q9s", "Q8s", "Q7s", "Q6s", "Q5s", "Q4s", "Q3s", "Q2s",
    "AJo", "KJo", "QJo", "JJ", "JTs", "J9s", "J8s", "J7s", "J6s", "J5s", "J4s", "J3s", "J2s",
    "ATo", "KTo", "QTo", "JTo", "TT", "T9s", "T8s", "T7s", "T6s", "T5s", "T4s", "T3s", "T2s",
    "A9o", "K9o", "Q9o", "J9o", "T9o", "99", "98s", "97s", "96s", "95s", "94s", "93s", "92s",
    "A8o", "K8o", "Q8o", "J8o", "T8o", "98o", "88", "87s", "86s", "85s", "84s", "83s", "82s",
    "A7o", "K7o", "Q7o", "J7o", "T7o", "97o", "87o", "77", "76s", "75s", "74s", "73s", "72s",
    "A6o", "K6o", "Q6o", "J6o", "T6o", "96o", "86o", "76o", "66", "65s", "64s", "63s", "62s",
    "A5o", "K5o", "Q5o", "J5o", "T5o", "95o", "85o", "75o", "65o", "55", "54s", "53s", "52s",
    "A4o", "K4o", "Q4o", "J4o", "T4o", "94o", "84o", "74o", "64o", "54o", "44", "43s", "42s",
    "A3o", "K3o", "Q3o", "J3o", "T3o", "93o", "83o", "73o", "63o", "53o", "43o", "33", "32s",
    "A2o", "K2o", "Q2o", "J2o", "T2o", "92o", "82o", "72o", "62o", "52o", "42o", "32o", "22",
};
// clang-format on

using TextsByHand = std::map<std::string_view, std::string_view>;

/// What `texts` has for `hand`, `otherwise` for a hand that it lacks.
inline std::string TextFor(const TextsByHand& texts, std::string_view hand, std::string_view otherwise) {
  const auto found = texts.find(hand);
  return std::string(found == texts.end() ? otherwise : found->second);
}

/// A range text with the given weights, 0 for every other hand.
inline std::string RangeText(const TextsByHand& weights) {
  std::string text;
  for (const std::string_view hand : kAllHands)
    text += std::string(hand) + " (" + TextFor(weights, hand, "0") + "), ";
  return text;
}

/// A results table with the given cells, each "value, tab, equity, tab, fold share", `otherwise` for every other hand.
inline std::string ResultsTable(const TextsByHand& cells, std::string_view otherwise = "0\t0\t1") {
  std::string table;
  for (const std::string_view hand : kAllHands)
    table += std::string(hand) + "\t" + TextFor(cells, hand, otherwise) + "\t\r\n";
  return table;
}

/// Pot 150, 50 to call: odds of 3 to 1. 72o loses, 22 loses half a chip, AKs breaks even.
inline Analysis CallState() {
  Analysis state;
  state.Mode = AnalysisMode::kPreflopCall;
  state.PotSize = 150;
  state.CallAmount = 50;
  state.RangeName = "Tight";
  state.RangeText = RangeText({{"AA", "1"}, {"KK", "0.5"}});
  state.HandInfo = ResultsTable(
      {{"AA", "120\t0.85\t1"}, {"AKs", "0\t0.25\t1"}, {"72o", "-25.32\t0.1234\t1"}, {"22", "-0.5\t0.0625\t1"}});
  return state;
}

/// Pot 150, 50 to call, a shove of 62.5. Nobody calls a shove when the hero holds AA.
inline Analysis RaiseState() {
  Analysis state;
  state.Mode = AnalysisMode::kPreflopRaise;
  state.PotSize = 150;
  state.CallAmount = 50;
  state.ShoveAmount = 62.5;
  state.RangeName = "Wide";
  state.RangeText = RangeText({{"AA", "1"}, {"KK", "1"}, {"QQ", "1"}, {"AKs", "1"}});
  state.CallingRangeName = "Tight";
  state.CallingRangeText = RangeText({{"AA", "1"}});
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
  state.RangeText = RangeText({{"AA", "1"}, {"KK", "1"}});
  state.HandInfo = ResultsTable(
      {{"AA", "0\t0.8523\t1"}, {"AKs", "0\t0.123456789012345\t1"}, {"72o", "0\t-1\t1"}, {"22", "0\t0.5\t1"}});
  return state;
}

}  // namespace quillon::sample
