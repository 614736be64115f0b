#include "results/analysis_json.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>
#include <utility>

#include "analysis/results_table.h"
#include "ranges/range_summary.h"
#include "results/results_grid.h"
#include "support/line_ends.h"

namespace quillon {
namespace {

using Json = nlohmann::ordered_json;
using FieldNames = std::span<const std::string>;

constexpr std::string_view kHands = "hands";
constexpr std::string_view kLabel = "hand";

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

struct Field {
  std::string_view Name;
  Json (*ValueOf)(Told& told);
};

constexpr std::array<Field, 14> kFields = {{
    {kModeField, [](Told& told) { return Json(told.Asked().Command); }},
    {kPotField, [](Told& told) { return ValueIf(told.Asked().AmountCount > 0, told.Found().PotSize); }},
    {kCallField, [](Told& told) { return ValueIf(told.Asked().AmountCount > 1, told.Found().CallAmount); }},
    {kShoveField, [](Told& told) { return ValueIf(told.Asked().AmountCount > 2, told.Found().ShoveAmount); }},
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

struct HandField {
  std::string_view Name;
  Json (*ValueOf)(const Scenario& scenario, const ShownHand& hand);
};

constexpr std::array<HandField, 6> kHandFields = {{
    {kLabel, [](const Scenario& /*scenario*/, const ShownHand& hand) { return Json(hand.first.Label); }},
    {"combos", [](const Scenario& /*scenario*/, const ShownHand& hand) { return Json(hand.first.Combos); }},
    {"ev", [](const Scenario& scenario,
              const ShownHand& hand) { return ValueIf(scenario.HasExpectedValue(), hand.first.ExpectedValue); }},
    {"equity", [](const Scenario& /*scenario*/, const ShownHand& hand) { return Json(hand.first.Equity); }},
    {"fold", [](const Scenario& scenario,
                const ShownHand& hand) { return ValueIf(scenario.HasCallingRange, hand.first.FoldShare); }},
    {"colour", [](const Scenario& /*scenario*/, const ShownHand& hand) { return Json(hand.second); }},
}};

bool IsNamed(FieldNames names, std::string_view name) {
  return std::ranges::find(names, name) != names.end();
}

// All fields of a hand, or, if some are named, its label and those.
std::vector<HandField> WantedOfHands(FieldNames names) {
  const bool some =
      std::ranges::any_of(kHandFields, [&](const HandField& field) { return IsNamed(names, field.Name); });
  std::vector<HandField> wanted;
  if (!some && !names.empty() && !IsNamed(names, kHands)) return wanted;
  std::ranges::copy_if(kHandFields, std::back_inserter(wanted), [&](const HandField& field) {
    return !some || field.Name == kLabel || IsNamed(names, field.Name);
  });
  return wanted;
}

Json HandsJson(const Analysis& analysis, const std::vector<HandField>& fields) {
  const Scenario& scenario = ScenarioOf(analysis.Mode);
  Json hands = Json::array();
  for (const ShownHand& hand : ShownHands(analysis)) {
    Json object = Json::object();
    for (const HandField& field : fields)
      object[std::string(field.Name)] = field.ValueOf(scenario, hand);
    hands.push_back(std::move(object));
  }
  return hands;
}

}  // namespace

std::vector<std::string> AnalysisFieldNames() {
  std::vector<std::string> names;
  names.reserve(kFields.size() + 1 + kHandFields.size());
  for (const Field& field : kFields)
    names.emplace_back(field.Name);
  names.emplace_back(kHands);
  for (const HandField& field : kHandFields)
    names.emplace_back(field.Name);
  return names;
}

Json AnalysisJson(const Analysis& analysis, FieldNames fields) {
  Told told(analysis);
  Json object = Json::object();
  for (const Field& field : kFields) {
    if (fields.empty() || IsNamed(fields, field.Name)) object[std::string(field.Name)] = field.ValueOf(told);
  }
  const std::vector<HandField> ofHands = WantedOfHands(fields);
  if (!ofHands.empty()) object[std::string(kHands)] = HandsJson(analysis, ofHands);
  return object;
}

}  // namespace quillon
