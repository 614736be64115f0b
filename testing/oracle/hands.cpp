#include "testing/oracle/hands.h"

#include <algorithm>
#include <map>
#include <string_view>

namespace quillon::plain {
namespace {

constexpr std::string_view kRanks = "AKQJT98765432";

std::vector<std::string> MakeLabels() {
  std::vector<std::string> labels;
  for (std::size_t row = 0; row < kRanks.size(); ++row) {
    for (std::size_t column = 0; column < kRanks.size(); ++column) {
      std::string label{kRanks[std::min(row, column)], kRanks[std::max(row, column)]};
      if (row != column) label += row < column ? 's' : 'o';
      labels.push_back(label);
    }
  }
  return labels;
}

std::map<std::string, std::size_t> MakeIndexes() {
  std::map<std::string, std::size_t> indexes;
  for (const std::string& label : Labels())
    indexes.emplace(label, indexes.size());
  return indexes;
}

std::vector<std::vector<std::string>> MakeLines() {
  std::vector<std::vector<std::string>> lines(1);
  for (const char rank : kRanks)
    lines[0].emplace_back(2, rank);
  for (const char kind : {'s', 'o'}) {
    for (std::size_t high = 0; high + 1 < kRanks.size(); ++high) {
      lines.emplace_back();
      for (std::size_t low = high + 1; low < kRanks.size(); ++low)
        lines.back().push_back({kRanks[high], kRanks[low], kind});
    }
  }
  return lines;
}

std::vector<std::string> MakeDeck() {
  std::vector<std::string> deck;
  for (const char rank : kRanks) {
    for (const char suit : {'s', 'h', 'd', 'c'})
      deck.push_back({rank, suit});
  }
  return deck;
}

std::vector<Hand> MakeHands() {
  std::vector<Hand> hands;
  for (std::size_t i = 0; i < Deck().size(); ++i) {
    for (std::size_t j = i + 1; j < Deck().size(); ++j)
      hands.push_back({Deck()[i] + " " + Deck()[j], IndexOf(LabelOf(Deck()[i], Deck()[j]))});
  }
  return hands;
}

}  // namespace

const std::vector<std::string>& Labels() {
  static const std::vector<std::string> labels = MakeLabels();
  return labels;
}

std::size_t IndexOf(const std::string& label) {
  static const std::map<std::string, std::size_t> indexes = MakeIndexes();
  const auto found = indexes.find(label);
  return found == indexes.end() ? kClasses : found->second;
}

int ComboCount(const std::string& label) {
  return label.size() == 2 ? 6 : label[2] == 's' ? 4 : 12;
}

const std::vector<std::vector<std::string>>& Lines() {
  static const std::vector<std::vector<std::string>> lines = MakeLines();
  return lines;
}

const std::vector<std::string>& Deck() {
  static const std::vector<std::string> deck = MakeDeck();
  return deck;
}

std::string LabelOf(const std::string& card1, const std::string& card2) {
  std::string label{card1[0], card2[0]};
  if (card1[0] != card2[0]) label += card1[1] == card2[1] ? 's' : 'o';
  return label;
}

const std::vector<Hand>& Hands() {
  static const std::vector<Hand> hands = MakeHands();
  return hands;
}

std::string SampleCards(const std::string& label) {
  const bool pair = label.size() == 2;
  const bool suited = !pair && label[2] == 's';
  return {label[0], pair ? 's' : 'c', ' ', label[1], pair || suited ? 'c' : 's'};
}

}  // namespace quillon::plain
