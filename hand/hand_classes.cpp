#include "hand/hand_classes.h"

#include <array>

namespace quillon {
namespace {

using Label = FixedText<3>;

constexpr Label MakeLabel(std::size_t index) {
  const std::size_t row = index / kRankCount;
  const std::size_t column = index % kRankCount;
  Label label;
  label.Append(kRankLetters[column > row ? row : column]);
  label.Append(kRankLetters[column > row ? column : row]);
  if (column != row) label.Append(column > row ? 's' : 'o');
  return label;
}

constexpr auto kLabels = [] {
  std::array<Label, kHandClassCount> labels;
  for (std::size_t i = 0; i < labels.size(); ++i)
    labels[i] = MakeLabel(i);
  return labels;
}();

static_assert(kLabels[0] == "AA" && kLabels[1] == "AKs" && kLabels[13] == "AKo" && kLabels[168] == "22");

// Index of each character among the rank letters, and kRankCount for any other character.
constexpr auto kRankPlaces = [] {
  std::array<std::uint8_t, 256> places{};
  places.fill(kRankCount);
  for (std::size_t i = 0; i < kRankLetters.size(); ++i) {
    places[static_cast<unsigned char>(kRankLetters[i])] = static_cast<std::uint8_t>(i);
  }
  return places;
}();

unsigned RankPlace(char letter) {
  return kRankPlaces[static_cast<unsigned char>(letter)];
}

}  // namespace

std::int16_t HandIndex(std::string_view label) {
  if (label.size() < 2 || label.size() > 3) return 0;
  // A label's index is computed rather than searched for.
  const unsigned high = RankPlace(label[0]);
  const unsigned low = RankPlace(label[1]);
  if (high >= kRankCount || low >= kRankCount) return 0;
  if (label.size() == 2) return static_cast<std::int16_t>(high == low ? kRankCount * high + high : 0);
  if (high >= low) return 0;
  if (label[2] == 's') return static_cast<std::int16_t>(kRankCount * high + low);
  return static_cast<std::int16_t>(label[2] == 'o' ? kRankCount * low + high : 0);
}

std::string_view HandLabel(std::int16_t index) {
  if (index < 0 || index >= kHandClassCount) return {};
  return kLabels[static_cast<std::size_t>(index)].View();
}

std::string RankText(std::int16_t value) {
  constexpr std::string_view kLetters = "TJQKA";
  if (value < 10 || value > 14) return std::to_string(value);
  return std::string(1, kLetters[static_cast<std::size_t>(value - 10)]);
}

std::int16_t ComboCount(std::string_view label) {
  if (label.size() == 2) return 6;
  return label.ends_with('s') ? 4 : 12;
}

FixedText<5> HandCards(std::string_view label) {
  const bool pair = label.size() == 2;
  const bool suited = !pair && label.ends_with('s');
  FixedText<5> cards(label.substr(0, 1));
  for (const char c : std::string_view(pair ? "s " : "c "))
    cards.Append(c);
  if (label.size() > 1) cards.Append(label[1]);
  cards.Append(pair || suited ? 'c' : 's');
  return cards;
}

}  // namespace quillon
