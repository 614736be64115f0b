#include "results/analysis_json.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>
#include <utility>
#include <variant>

#include "analysis/results_table.h"
#include "ranges/range_summary.h"
#include "results/result_columns.h"
#include "support/line_ends.h"

namespace quillon {
namespace {

using Json = nlohmann::ordered_json;
using FieldNames = std::span<const std::string>;

constexpr std::string_view kHands = "hands";

// The analysis, plus what several fields share.
class Told {
 public:
  explicit Told(const Analysis& analysis) : analysis_(analysis) {}

  [[nodiscard]] const Analysis& Found() const { return analysis_; }
  [[nodiscard]] const Scenario& Asked() const { return ScenarioOf(analysis_.Mode); }
  [[nodiscard]] std::int16_t Column() const { return ShownColumn(analysis_); }

  // Made on first use.
  const GridTexts& Texts() {
    if (!texts_) texts_ = MakeGridTexts(analysis_);
    return *texts_;
  }

 private:
  const Analysis& analysis_;
  std::optional<GridTexts> texts_;
};

template <typename Value>
Json ValueIf(bool present, Value&& value) {
  return present ? Json(std::forward<Value>(value)) : Json();
}

Json LabelIfAny(const std::string& label) {
  return ValueIf(!label.empty(), label);
}

// The classes in the report's text, each a text such as "JJ (½'d)".
Json DroppedHandsJson(std::string_view text) {
  constexpr std::string_view kSeparator = ", ";
  Json hands = Json::array();
  while (!text.empty()) {
    const std::string_view hand = text.substr(0, text.find(kSeparator));
    hands.push_back(hand);
    text.remove_prefix(std::min(hand.size() + kSeparator.size(), text.size()));
  }
  return hands;
}

template <std::size_t place>
Json AmountJson(Told& told) {
  return ValueIf(place < told.Asked().AmountCount, told.Found().Amounts.*kAmounts.at(place).Value);
}

struct Field {
  std::string_view Name;
  Json (*ValueOf)(Told& told);
};

constexpr std::array<Field, 14> kFields = {{
    {kModeField, [](Told& told) { return Json(told.Asked().Command); }},
    {kPotField, AmountJson<0>},
    {kCallField, AmountJson<1>},
    {kShoveField, AmountJson<2>},
    {kRangeField, [](Told& told) { return Json(told.Found().RangeName); }},
    {kCallingRangeField,
     [](Told& told) { return ValueIf(told.Asked().HasCallingRange, told.Found().CallingRangeName); }},
    {"range_summary", [](Told& told) { return Json(RangeSummary(told.Found().RangeText)); }},
    {"calling_range_summary",
     [](Told& told) {
       return told.Asked().HasCallingRange ? Json(RangeSummary(told.Found().CallingRangeText)) : Json();
     }},
    {"dropped_hands",
     [](Told& told) { return ValueIf(told.Asked().HasCallingRange, DroppedHandsJson(told.Found().DroppedHands)); }},
    {"title", [](Told& told) { return Json(told.Texts().Title); }},
    {"situation", [](Told& told) { return Json(UnixLineEnds(told.Texts().HandInfo)); }},
    {"explanation", [](Told& told) { return Json(UnixLineEnds(told.Texts().Results)); }},
    {"best", [](Told& told) { return LabelIfAny(BestHand(told.Found().HandInfo, told.Column())); }},
    {"worst", [](Told& told) { return LabelIfAny(WorstHand(told.Found().HandInfo, told.Column())); }},
}};

bool IsNamed(FieldNames names, std::string_view name) {
  return std::ranges::find(names, name) != names.end();
}

// All fields of a hand, or, if some are named, its label and those.
std::vector<ResultColumn> WantedOfHands(FieldNames names) {
  const auto columns = ResultColumns();
  const bool some = std::ranges::any_of(
      columns, [&](std::string_view key) { return IsNamed(names, key); }, &ResultColumn::Key);
  std::vector<ResultColumn> wanted;
  if (!some && !names.empty() && !IsNamed(names, kHands)) return wanted;
  const std::string_view label = columns.front().Key;
  std::ranges::copy_if(columns, std::back_inserter(wanted), [&](const ResultColumn& column) {
    return !some || column.Key == label || IsNamed(names, column.Key);
  });
  return wanted;
}

Json HandsJson(const Analysis& analysis, const std::vector<ResultColumn>& columns) {
  const Scenario& scenario = ScenarioOf(analysis.Mode);
  Json hands = Json::array();
  for (const ShownHand& hand : ShownHands(analysis)) {
    Json object = Json::object();
    for (const ResultColumn& column : columns) {
      Json& value = object[std::string(column.Key)];
      if (column.IsIn(scenario)) value = std::visit([](auto cell) { return Json(cell); }, column.ValueOf(hand));
    }
    hands.push_back(std::move(object));
  }
  return hands;
}

}  // namespace

std::vector<std::string> AnalysisFieldNames() {
  std::vector<std::string> names;
  names.reserve(kFields.size() + 1 + ResultColumns().size());
  for (const Field& field : kFields)
    names.emplace_back(field.Name);
  names.emplace_back(kHands);
  for (const ResultColumn& column : ResultColumns())
    names.emplace_back(column.Key);
  return names;
}

Json AnalysisJson(const Analysis& analysis, FieldNames fields) {
  Told told(analysis);
  Json object = Json::object();
  for (const Field& field : kFields) {
    if (fields.empty() || IsNamed(fields, field.Name)) object[std::string(field.Name)] = field.ValueOf(told);
  }
  const std::vector<ResultColumn> ofHands = WantedOfHands(fields);
  if (!ofHands.empty()) object[std::string(kHands)] = HandsJson(analysis, ofHands);
  return object;
}

}  // namespace quillon
