#include "ranges/range_text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "support/byte_scan.h"
#include "support/number_text.h"
#include "support/rounding.h"
#include "support/run_time_error.h"
#include "support/utf8.h"

namespace quillon {
namespace {

constexpr std::size_t kLongestUsualEntry = 11;  // "AKs (0.5), "
constexpr std::size_t kBetweenLabelAndNumber = 2;  // " ("
constexpr std::string_view kEntryEnd = "), ";

[[noreturn]] void FailWithoutWeight(std::string_view label, std::string_view fileName) {
  std::string source = "the range text";
  if (!fileName.empty()) source = "the range file \"" + std::string(fileName) + "\"";
  throw RunTimeError(RunTimeFault::kInvalidProcedureCall, source.append(" holds no weight for ").append(label));
}

// The weight of an entry like "AKs (1)", with one digit between brackets, as nearly all have; nothing for any other. A
// label containing a bracket is left alone, since that would end the number before its start.
std::optional<double> WeightOfUsualEntry(std::string_view text, std::size_t found, std::string_view label) {
  constexpr std::size_t kBehindLabel = 4;  // " (1)"
  const bool isLabel = (label.size() == 2 || label.size() == 3) && label[1] != ')' && label.back() != ')';
  if (!isLabel || found == std::string_view::npos) return std::nullopt;
  const std::size_t behind = found + label.size();
  if (text.size() - behind < kBehindLabel) return std::nullopt;
  const char* const entry = text.data() + behind;
  const int digit = entry[2] - '0';
  if (entry[0] != ' ' || entry[1] != '(' || entry[3] != ')' || digit < 0 || digit > 9) return std::nullopt;
  return digit;
}

// The position in a UTF-8 text that is this many characters after another. In a range's file each character is one
// byte, and positions in it count bytes.
std::size_t PlaceBehind(std::string_view text, std::size_t place, std::size_t characters) {
  for (; characters > 0; --characters) {
    ++place;
    while (place < text.size() && !StartsUtf8Character(text[place]))
      ++place;
  }
  return place;
}

// The only label that the text of a number can contain is a pair's: two equal digits. A space, which the number's
// reader skips, splits them if the pair's own entry comes later.
std::string WithLabelsBroken(std::string number, std::int16_t index) {
  for (std::size_t place = number.size() - 1; place > 0; --place) {
    const bool isLabel = number[place - 1] == number[place] && HandIndex(number.substr(place - 1, 2)) > index;
    if (isLabel) number.insert(place, 1, ' ');
  }
  return number;
}

template <typename Change>
std::string TextOfEntries(std::span<const double, kHandClassCount> weights, Change change) {
  std::string text;
  text.reserve(kLongestUsualEntry * weights.size());
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    text.append(HandLabel(index)).append(" (");
    text.append(change(NumberText(weights[static_cast<std::size_t>(index)]), index)).append(kEntryEnd);
  }
  return text;
}

double WeightShownOnGrid(double weight) {
  return weight == 1 || weight == 0.5 ? weight : 0;
}

}  // namespace

std::string RangeFileName(std::string_view name) {
  return std::string(name).append(".txt");
}

double RangeWeightOf(std::string_view text, std::string_view label, std::string_view fileName) {
  const std::size_t found = FindText(text, label);
  if (const auto weight = WeightOfUsualEntry(text, found, label)) return *weight;

  // A missing label counts as one place before the text; the fallback for missing classes depends on it.
  const bool missing = found == std::string_view::npos;
  const auto length = static_cast<std::size_t>(std::count_if(label.begin(), label.end(), StartsUtf8Character));
  const std::size_t start =
      missing ? PlaceBehind(text, 0, length + 1) : PlaceBehind(text, found + label.size(), kBetweenLabelAndNumber);
  const std::size_t end = text.find(')', missing ? 0 : found + 1);
  if (end == std::string_view::npos || end < start) FailWithoutWeight(label, fileName);
  return LeadingNumber(text.substr(start, end - start));
}

ClassWeights RangeWeightsOf(std::string_view text, std::string_view fileName) {
  ClassWeights weights{};
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    weights[static_cast<std::size_t>(index)] = RangeWeightOf(text, HandLabel(index), fileName);
  return weights;
}

std::string RangeTextOf(std::span<const double, kHandClassCount> weights) {
  return TextOfEntries(weights, [](std::string number, std::int16_t /*index*/) { return number; });
}

std::string SearchableRangeText(std::span<const double, kHandClassCount> weights) {
  return TextOfEntries(weights, WithLabelsBroken);
}

std::optional<ClassWeights> WrittenWeightsOf(std::string_view text) {
  ClassWeights weights{};
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const std::string start = std::string(HandLabel(index)) + " (";
    const std::size_t end = text.find(kEntryEnd);
    if (!text.starts_with(start) || end == std::string_view::npos) return std::nullopt;
    weights[static_cast<std::size_t>(index)] = LeadingNumber(text.substr(start.size(), end - start.size()));
    text.remove_prefix(end + kEntryEnd.size());
  }
  if (!text.empty()) return std::nullopt;
  return weights;
}

double SelectedCombos(std::string_view rangeText) {
  return SelectedCombos(RangeWeightsOf(rangeText));
}

double SelectedCombos(std::span<const double, kHandClassCount> weights) {
  double combos = 0;
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    combos += WeightShownOnGrid(weights[static_cast<std::size_t>(index)]) * ComboCount(HandLabel(index));
  return combos;
}

std::string SelectionCaption(double selectedCombos) {
  return NumberText(PercentOf(selectedCombos, kConcreteHandCount, 1)) + "% selected";
}

}  // namespace quillon
