#include "analysis/plain_reference.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <string_view>

#include "hand/equity_rows.h"

namespace quillon::plain {
namespace {

constexpr std::string_view kRanks = "AKQJT98765432";
constexpr std::string_view kSuits = "shdc";

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> fields;
  std::size_t start = 0;
  for (std::size_t end = text.find(separator); end != std::string::npos; end = text.find(separator, start)) {
    fields.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  fields.push_back(text.substr(start));
  return fields;
}

double ParseNumber(const std::string& text) {
  double value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

std::size_t IndexOf(const std::string& label) {
  return static_cast<std::size_t>(std::find(Labels().begin(), Labels().end(), label) - Labels().begin());
}

std::string LabelOf(const std::string& card1, const std::string& card2) {
  std::string ranks = card1.substr(0, 1) + card2.substr(0, 1);
  if (card1[0] == card2[0]) return ranks;
  ranks += card1[1] == card2[1] ? 's' : 'o';
  return ranks;
}

std::vector<std::string> Deck() {
  std::vector<std::string> deck;
  for (const char rank : kRanks) {
    for (const char suit : kSuits)
      deck.push_back(std::string(1, rank) + suit);
  }
  return deck;
}

// The two cards a class is played with: As Ac, Ac Kc, Ac Ks.
std::array<std::string, 2> SampleCards(const std::string& label) {
  const std::string first = label.substr(0, 1);
  const std::string second = label.substr(1, 1);
  if (label.size() == 2) return {first + "s", second + "c"};
  if (label[2] == 's') return {first + "c", second + "c"};
  return {first + "c", second + "s"};
}

std::vector<Hand> DealAround(const std::string& label, const std::string& rangeText) {
  const std::array<std::string, 2> cards = SampleCards(label);
  return DealRange(rangeText, cards[0], cards[1]);
}

double WeightOf(const std::vector<Hand>& hands) {
  double weight = 0;
  for (const Hand& hand : hands)
    weight += hand.Weight;
  return weight;
}

std::string Row(const std::string& label, double expectedValue, double equity, double foldShare) {
  std::string row = label + "\t";
  for (const double value : {expectedValue, equity, foldShare})
    row += NumberText(value) + "\t";
  return row + "\r\n";
}

std::string WrittenOut(double value, std::chars_format format, int decimals) {
  std::array<char, 400> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, decimals);
  return {buffer.data(), result.ptr};
}

}  // namespace

const std::vector<std::string>& Labels() {
  static const std::vector<std::string> labels = [] {
    std::vector<std::string> all;
    for (std::size_t row = 0; row < kRanks.size(); ++row) {
      for (std::size_t column = 0; column < kRanks.size(); ++column) {
        const std::string high(1, kRanks[std::min(row, column)]);
        const std::string low(1, kRanks[std::max(row, column)]);
        const std::string kind = row == column ? "" : row < column ? "s" : "o";
        all.push_back(std::string(high).append(low).append(kind));
      }
    }
    return all;
  }();
  return labels;
}

double HandEquity(const std::string& hand, const std::string& opponentHand) {
  const auto& pieces = kEquityPieces[IndexOf(hand)];
  const std::string row = std::string(pieces[0]) + std::string(pieces[1]);
  return ParseNumber(Split(row, ' ')[IndexOf(opponentHand)]);
}

double RangeWeightOf(const std::string& text, const std::string& label) {
  const std::size_t found = text.find(label);
  // Counted from 1, and 0 for a class that is missing: its weight is read from before the first bracket.
  const std::size_t position = found == std::string::npos ? 0 : found + 1;
  const std::size_t bracket = text.find(')', position);
  const std::size_t start = position + label.size() + 1;
  return ParseNumber(text.substr(start, bracket - start));
}

std::vector<Hand> DealRange(const std::string& rangeText, const std::string& card1, const std::string& card2) {
  std::vector<Hand> hands;
  const std::vector<std::string> deck = Deck();
  for (std::size_t i = 0; i < deck.size(); ++i) {
    for (std::size_t j = i + 1; j < deck.size(); ++j) {
      Hand hand{deck[i] + " " + deck[j], LabelOf(deck[i], deck[j]), 0};
      const bool blocked = hand.Cards.find(card1) != std::string::npos || hand.Cards.find(card2) != std::string::npos;
      hand.Weight = blocked ? 0 : RangeWeightOf(rangeText, hand.Label);
      hands.push_back(hand);
    }
  }
  return hands;
}

double EquityVsRange(const std::string& heroLabel, const std::vector<Hand>& hands) {
  double weight = 0;
  double weightedEquity = 0;
  for (const Hand& hand : hands) {
    if (hand.Weight <= 0) continue;
    weight += hand.Weight;
    weightedEquity += hand.Weight * HandEquity(heroLabel, hand.Label);
  }
  return weightedEquity / weight;
}

std::string PreflopCallTable(double pot, double call, const std::string& rangeText) {
  std::string table;
  for (const std::string& label : Labels()) {
    const double equity = EquityVsRange(label, DealAround(label, rangeText));
    table += Row(label, (call + pot) * equity - call, equity, 1);
  }
  return table;
}

std::string PreflopRaiseTable(double pot, double call, double shove, const std::string& rangeText,
                              const std::string& callingRangeText) {
  std::string table;
  for (const std::string& label : Labels()) {
    const std::vector<Hand> current = DealAround(label, rangeText);
    std::vector<Hand> limited = DealAround(label, callingRangeText);
    for (std::size_t i = 0; i < limited.size(); ++i) {
      if (limited[i].Weight > current[i].Weight) limited[i].Weight = current[i].Weight;
    }
    double equity = -1;
    double callShare = 0;
    if (WeightOf(limited) != 0) {
      equity = EquityVsRange(label, limited);
      callShare = WeightOf(limited) / WeightOf(current);
    }
    const double whenCalled = equity * (pot + call + (shove + shove)) - (call + shove);
    table += Row(label, whenCalled * callShare + (1 - callShare) * pot, equity, 1 - callShare);
  }
  return table;
}

std::string EquityOnlyTable(const std::string& rangeText) {
  std::string table;
  for (const std::string& label : Labels())
    table += Row(label, 0, EquityVsRange(label, DealAround(label, rangeText)), 1);
  return table;
}

std::string NumberText(double value) {
  if (value == 0) return "0";
  // "d.ddddddddddddddE+dd": 15 digits, then their trailing zeros off.
  const std::string scientific = WrittenOut(value, std::chars_format::scientific, 14);
  const std::size_t mark = scientific.find('e');
  std::string mantissa = scientific.substr(0, mark);
  mantissa.erase(mantissa.find_last_not_of('0') + 1);
  if (mantissa.back() == '.') mantissa.pop_back();

  const int exponent = std::stoi(scientific.substr(mark + 1));
  const std::size_t point = mantissa.find('.');
  const int mantissaDecimals = point == std::string::npos ? 0 : static_cast<int>(mantissa.size() - point - 1);
  const int decimals = mantissaDecimals - exponent;
  if (decimals <= 15 && exponent < 15) return WrittenOut(value, std::chars_format::fixed, std::max(decimals, 0));
  return mantissa + "E" + scientific.substr(mark + 1);
}

}  // namespace quillon::plain
