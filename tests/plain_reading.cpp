#include "tests/plain_reading.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <locale>
#include <map>
#include <set>
#include <sstream>
#include <utility>

#include "hand/equity_table.h"

namespace quillon {
namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kRanks = "AKQJT98765432";
constexpr std::size_t kClasses = 169;
constexpr int kInvalidProcedureCall = 5;
constexpr int kOverflow = 6;
constexpr int kSubscriptOutOfRange = 9;
constexpr int kDivisionByZero = 11;

using Form = std::ios_base::fmtflags;

std::string Printed(double value, Form form, int digits) {
  std::ostringstream stream;
  stream.imbue(std::locale::classic());
  stream.flags(form);
  stream.precision(digits);
  stream << value;
  return stream.str();
}

// Of a text that is nothing but a number.
double ValueOf(const std::string& number) {
  std::istringstream stream(number);
  stream.imbue(std::locale::classic());
  double value = 0;
  stream >> value;  // the largest double where the number is beyond all
  return value;
}

std::string WithoutTrailingZeros(std::string number) {
  if (number.find('.') == std::string::npos) return number;
  number.erase(number.find_last_not_of('0') + 1);
  if (number.back() == '.') number.pop_back();
  return number;
}

double Rounded(double value, int digits) {
  return std::isfinite(value) ? ValueOf(Printed(value, std::ios::fixed, digits)) : value;
}

// Whether a text is one of a handful of shapes, once each run of digits is a single 9.
std::string ShapeOf(std::string_view text) {
  std::string shape;
  for (const char c : text) {
    const bool digit = kDigits.find(c) != std::string_view::npos;
    if (!digit || !shape.ends_with('9')) shape += digit ? '9' : c;
  }
  return shape;
}

std::set<std::string> NumericShapes() {
  std::set<std::string> shapes;
  for (const char* start : {"", "$", "+", "-", "$+", "$-", "+$", "-$"}) {
    for (const char* middle : {"9", "9.", "9.9", ".9"}) {
      for (const char* power : {"", "e9", "e+9", "e-9", "E9", "E+9", "E-9"})
        shapes.insert(std::string(start) + middle + power);
    }
  }
  return shapes;
}

PlainOutcome Refusal(std::string title, std::string text) {
  return {std::move(title), std::move(text), 0};
}

PlainOutcome FaultNumbered(int number) {
  return {{}, {}, number};
}

// A division, or the run-time error in its place.
double Divided(double numerator, double denominator, int& fault) {
  if (denominator != 0) return numerator / denominator;
  if (fault == 0) fault = numerator == 0 ? kOverflow : kDivisionByZero;
  return 0;
}

struct Card {
  char rank;
  char suit;

  bool operator==(const Card&) const = default;
};

std::vector<Card> Deck() {
  std::vector<Card> deck;
  for (const char rank : kRanks) {
    for (const char suit : std::string_view("shdc"))
      deck.push_back({rank, suit});
  }
  return deck;
}

std::string LabelOf(Card first, Card second) {
  std::string label{first.rank, second.rank};
  if (first.rank != second.rank) label += first.suit == second.suit ? 's' : 'o';
  return label;
}

// The two cards that stand for a class.
std::array<Card, 2> CardsOf(std::string_view label) {
  if (label.size() == 2) return {Card{label[0], 's'}, Card{label[1], 'c'}};
  return {Card{label[0], 'c'}, Card{label[1], label[2] == 's' ? 'c' : 's'}};
}

struct Combo {
  Card first;
  Card second;
  std::size_t index;  // of its class
};

const std::vector<Combo>& Combos() {
  static const std::vector<Combo> combos = [] {
    std::map<std::string, std::size_t> indexes;
    for (const std::string& label : PlainLabels())
      indexes.emplace(label, indexes.size());
    std::vector<Combo> all;
    const std::vector<Card> deck = Deck();
    for (std::size_t i = 0; i < deck.size(); ++i) {
      for (std::size_t j = i + 1; j < deck.size(); ++j)
        all.push_back({deck[i], deck[j], indexes.at(LabelOf(deck[i], deck[j]))});
    }
    return all;
  }();
  return combos;
}

double EquityOf(std::size_t hero, std::size_t opponent) {
  static const std::vector<double> equities = [] {
    LoadEquityTable();
    std::vector<double> all;
    for (const std::string& hand : PlainLabels()) {
      for (const std::string& other : PlainLabels())
        all.push_back(HandEquity(hand, other));
    }
    return all;
  }();
  return equities[hero * kClasses + opponent];
}

double WholeWeight(const PlainWeights& weights) {
  double total = 0;
  for (const Combo& combo : Combos())
    total += weights[combo.index];
  return total;
}

// What one class has against a range.
struct Stand {
  double weight = 0;  // that its two cards leave
  double positive = 0;  // of the hands that count
  double won = 0;

  double Equity(int& fault) const { return Divided(won, positive, fault); }
};

Stand StandAgainst(std::size_t hero, const PlainWeights& weights) {
  const std::array<Card, 2> dead = CardsOf(PlainLabels()[hero]);
  Stand stand;
  for (const Combo& combo : Combos()) {
    const bool blocked =
        combo.first == dead[0] || combo.first == dead[1] || combo.second == dead[0] || combo.second == dead[1];
    const double weight = blocked ? 0 : weights[combo.index];
    stand.weight += weight;
    if (weight <= 0) continue;
    stand.positive += weight;
    stand.won += weight * EquityOf(hero, combo.index);
  }
  return stand;
}

PlainOutcome CheckCall(const PlainRun& run, double weight) {
  const double pot = PlainBoxValue(run.Pot);
  const double call = PlainBoxValue(run.Call);
  if (weight == 0) return Refusal("No Hands in Range", "No hands in your opponent's current range.");
  if (call >= pot) {
    return Refusal("Pot Size Error", "The pot size must be greater than the amount you have to call.");
  }
  if (pot <= 0) return Refusal("Pot Size Error", "The pot size must be greater than zero.");
  if (call <= 0) return Refusal("Call Size Error", "The amount to call must be greater than zero.");
  if (!PlainIsNumeric(run.Pot)) return Refusal("Pot Size Error", "The pot size contains non-numeric characters");
  if (!PlainIsNumeric(run.Call)) return Refusal("Call Size Error", "The call size contains non-numeric characters");
  return {};
}

PlainOutcome CheckRaise(const PlainRun& run) {
  if (PlainBoxValue(run.Pot) <= 0) return Refusal("Pot Size", "The pot size must be greater than zero.");
  if (PlainBoxValue(run.Call) < 0) {
    return Refusal("Call Amount", "The amount you must call cannot be a negative number.");
  }
  if (PlainBoxValue(run.Shove) <= 0) {
    return Refusal("Pot Size", "The amount your opponent must call must be greater than zero.");
  }
  if (!PlainIsNumeric(run.Pot)) return Refusal("Pot Size", "The pot size contains non-numeric characters");
  if (!run.Call.empty() && !PlainIsNumeric(run.Call)) {
    return Refusal("Call Size", "The call size contains illegal characters");
  }
  if (!PlainIsNumeric(run.Shove)) {
    return Refusal("Shove Size", "The amount your opponent must call when you shove contains illegal characters.");
  }
  return {};
}

std::string_view WithoutLineEnd(std::string_view file) {
  return file.ends_with("\r\n") ? file.substr(0, file.size() - 2) : file;
}

// What the run-time error is that a range ends every run with; 0 for one that can be read.
int FaultOfRange(std::string_view file, const std::optional<PlainWeights>& weights) {
  if (WithoutLineEnd(file).empty()) return kSubscriptOutOfRange;
  return weights ? 0 : kInvalidProcedureCall;
}

struct Row {
  double expectedValue = 0;
  double equity = 0;
  double foldShare = 1;
};

Row RowOf(const PlainRun& run, std::size_t hero, const PlainWeights& current, const PlainWeights& limited, int& fault) {
  const double pot = PlainBoxValue(run.Pot);
  const double call = PlainBoxValue(run.Call);
  const double shove = PlainBoxValue(run.Shove);
  const Stand all = StandAgainst(hero, current);
  if (run.Mode != PlainMode::kRaise) {
    const double equity = all.Equity(fault);
    return {run.Mode == PlainMode::kCall ? (call + pot) * equity - call : 0, equity, 1};
  }
  const Stand called = StandAgainst(hero, limited);
  if (called.weight == 0) return {pot, -1, 1};
  const double equity = called.Equity(fault);
  const double share = Divided(called.weight, all.weight, fault);
  const double after = (pot + call) + (shove + shove);
  return {(equity * after - (call + shove)) * share + (1 - share) * pot, equity, 1 - share};
}

// As they come back from the table of results.
std::vector<double> AsTexts(std::vector<double> values) {
  for (double& value : values)
    value = PlainLeadingNumber(PlainNumberText(value));
  return values;
}

bool AreFinite(const std::vector<double>& values) {
  return std::all_of(values.begin(), values.end(), [](double value) { return std::isfinite(value); });
}

PlainResult Worked(const PlainRun& run, const PlainWeights& current, const PlainWeights& calling) {
  PlainWeights limited = calling;
  for (std::size_t i = 0; i < limited.size(); ++i)
    limited[i] = std::min(limited[i], current[i]);

  PlainResult result;
  int fault = 0;
  for (std::size_t hero = 0; hero < kClasses && fault == 0; ++hero) {
    const Row row = RowOf(run, hero, current, limited, fault);
    result.ExpectedValues.push_back(row.expectedValue);
    result.Equities.push_back(row.equity);
    result.FoldShares.push_back(row.foldShare);
    if (fault == 0 && !(AreFinite({row.expectedValue, row.equity, row.foldShare}))) fault = kOverflow;
  }
  if (fault != 0) return {FaultNumbered(fault), {}, {}, {}};

  result.ExpectedValues = AsTexts(std::move(result.ExpectedValues));
  result.Equities = AsTexts(std::move(result.Equities));
  result.FoldShares = AsTexts(std::move(result.FoldShares));
  return result;
}

// The classes of one line of the notation, best first.
using NotationLine = std::vector<std::string>;

std::vector<NotationLine> NotationLines() {
  std::vector<NotationLine> lines(1);
  for (const char rank : kRanks)
    lines[0].push_back(std::string(2, rank));
  for (const char kind : std::string_view("so")) {
    for (std::size_t high = 0; high + 1 < kRanks.size(); ++high) {
      NotationLine& line = lines.emplace_back();
      for (std::size_t low = high + 1; low < kRanks.size(); ++low)
        line.push_back({kRanks[high], kRanks[low], kind});
    }
  }
  return lines;
}

std::string NotationOf(std::map<std::string, double> weights, double target) {
  std::string text;
  for (const NotationLine& line : NotationLines()) {
    for (std::size_t first = 0; first < line.size();) {
      std::size_t end = first;
      while (end < line.size() && weights[line[end]] == target)
        ++end;
      // A run that meets a class of more weight below it is left out.
      const bool shown = end > first && (end == line.size() || weights[line[end]] < target);
      if (shown && !text.empty()) text += ",";
      if (shown && end == first + 1) {
        text += line[first];
      } else if (shown) {
        text += first == 0 ? line[end - 1] + "+" : line[first] + "-" + line[end - 1];
      }
      first = end + 1;
    }
  }
  return text;
}

std::string SummaryOf(const std::map<std::string, double>& weights) {
  const std::string half = NotationOf(weights, 0.5);
  const std::string full = NotationOf(weights, 1);
  if (!half.empty()) return "Full: " + full + " | Half: " + half;
  const bool everything = std::all_of(weights.begin(), weights.end(), [](const auto& one) { return one.second == 1; });
  if (everything) return "[Everything]";
  return full.empty() ? "[None]" : full;
}

std::string Trimmed(std::string text) {
  const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
  while (!text.empty() && blank(text.back()))
    text.pop_back();
  while (!text.empty() && blank(text.front()))
    text.erase(0, 1);
  return text;
}

std::string LowerCase(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

bool IsSame(const std::string& text, std::string_view name) {
  return LowerCase(Trimmed(text)) == LowerCase(std::string(name));
}

std::string WithoutQuotes(std::string value) {
  for (const char quote : {'"', '\''}) {
    if (value.size() >= 2 && value.front() == quote && value.back() == quote) return value.substr(1, value.size() - 2);
  }
  return value;
}

}  // namespace

double PlainLeadingNumber(std::string_view text) {
  std::string rest;
  std::copy_if(text.begin(), text.end(), std::back_inserter(rest), [](char c) { return c != ' '; });
  const auto past = [&rest](std::string_view characters, std::size_t from) {
    return std::min(rest.find_first_not_of(characters, from), rest.size());
  };
  const auto at = [&rest](std::string_view characters, std::size_t place) {
    return place < rest.size() && characters.find(rest[place]) != std::string_view::npos;
  };
  const std::size_t start = at("+-", 0) ? 1 : 0;
  std::size_t end = past(kDigits, start);
  std::size_t digits = end - start;
  if (at(".", end)) {
    const std::size_t point = end;
    end = past(kDigits, point + 1);
    digits += end - point - 1;
  }
  if (digits == 0) return 0;
  if (at("eE", end)) {
    const std::size_t power = end + (at("+-", end + 1) ? 2 : 1);
    if (at(kDigits, power)) end = past(kDigits, power);
  }
  return ValueOf(rest.substr(0, end));
}

bool PlainIsNumeric(std::string_view text) {
  static const std::set<std::string> shapes = NumericShapes();
  const std::size_t first = std::min(text.find_first_not_of(' '), text.size());
  std::string shape = ShapeOf(text.substr(first, text.find_last_not_of(' ') + 1 - first));
  const std::string_view separator = "9,9";
  std::size_t place = 0;
  while ((place = shape.find(separator)) < shape.find_first_of(".eE"))
    shape.replace(place, separator.size(), "9");
  return shapes.count(shape) != 0;
}

std::string PlainNumberText(double value) {
  if (value == 0) return "0";
  std::string digits15 = Printed(value, Form(), 15);
  constexpr std::size_t kMostDecimals = 15;
  const std::size_t point = digits15.find('.');
  if (digits15.find('e') == std::string::npos) {
    if (point == std::string::npos || digits15.size() - point - 1 <= kMostDecimals) return digits15;
  } else if (std::abs(value) < 1) {
    std::string fixed = WithoutTrailingZeros(Printed(value, std::ios::fixed, 15));
    if (ValueOf(fixed) == ValueOf(digits15)) return fixed;
  }
  const std::string form = Printed(value, std::ios::scientific | std::ios::uppercase, 14);
  const std::size_t mark = form.find('E');
  return WithoutTrailingZeros(form.substr(0, mark)) + form.substr(mark);
}

int PlainOutcome::Status() const {
  constexpr int kRefused = 3;
  if (Fault != 0) return 1;
  return IsRefused() ? kRefused : 0;
}

std::string PlainOutcome::Told() const {
  static const std::map<int, std::string> texts = {{5, "Invalid procedure call or argument"},
                                                   {6, "Overflow"},
                                                   {9, "Subscript out of range"},
                                                   {11, "Division by zero"},
                                                   {380, "Invalid property value"}};
  if (Fault != 0) return "Run-time error '" + std::to_string(Fault) + "': " + texts.at(Fault);
  return IsRefused() ? Title + ": " + Text : "";
}

std::string FateOf(const PlainOutcome& outcome) {
  if (outcome.Fault != 0) return "with a run-time error";
  return outcome.IsRefused() ? "refused" : "through";
}

PlainOutcome LeaveBox(std::string& text) {
  if (!text.starts_with("=")) return {};
  if (text.find_first_not_of("0123456789.+-", 1) != std::string::npos) {
    return Refusal("Problem",
                   "There was a problem processing your expression: \n\n"
                   "Only addition (+) and subtract (-) are supported");
  }
  double total = 0;
  double sign = 1;
  std::string number;
  // One sign more ends the last number.
  for (const char c : text.substr(1) + "+") {
    if (c != '+' && c != '-') {
      number += c;
      continue;
    }
    total += sign * PlainLeadingNumber(number);
    sign = c == '-' ? -1 : 1;
    number.clear();
  }
  if (!std::isfinite(total)) return FaultNumbered(kOverflow);
  text = PlainNumberText(total);
  return {};
}

double PlainBoxValue(std::string_view text) {
  std::string amount;
  std::copy_if(text.begin(), text.end(), std::back_inserter(amount), [](char c) { return c != '$'; });
  return PlainLeadingNumber(amount);
}

PlainOdds OddsOf(std::string_view pot, std::string_view call, std::string_view shove) {
  const double amount = PlainBoxValue(shove);
  if (amount == 0) return {"N/A, N/A", 0};
  int fault = 0;
  const double odds = (PlainBoxValue(pot) + PlainBoxValue(call) + amount) / amount;
  const double breakEven = Divided(1, odds + 1, fault) * 100;
  if (fault != 0) return {{}, fault};
  if (!std::isfinite(odds) || !std::isfinite(breakEven)) return {{}, kOverflow};
  return {PlainNumberText(Rounded(odds, 2)) + " : 1, " + PlainNumberText(Rounded(breakEven, 2)) + "%", 0};
}

const std::vector<std::string>& PlainLabels() {
  static const std::vector<std::string> labels = [] {
    std::vector<std::string> all;
    for (std::size_t row = 0; row < kRanks.size(); ++row) {
      for (std::size_t column = 0; column < kRanks.size(); ++column) {
        std::string label{kRanks[std::min(row, column)], kRanks[std::max(row, column)]};
        if (row != column) label += row < column ? 's' : 'o';
        all.push_back(label);
      }
    }
    return all;
  }();
  return labels;
}

std::optional<PlainWeights> WeightsIn(std::string_view file) {
  const std::string text(WithoutLineEnd(file));
  PlainWeights weights;
  for (const std::string& label : PlainLabels()) {
    // Places count from 1, and 0 is that of a label which is missing.
    const std::size_t p = text.find(label) + 1;
    const std::size_t q = text.find(')', p) + 1;
    const std::size_t start = p + label.size() + 2;
    if (q < start) return std::nullopt;
    weights.push_back(PlainLeadingNumber(text.substr(start - 1, q - start)));
  }
  return weights;
}

std::optional<std::string> ListingOf(std::string_view file) {
  const std::optional<PlainWeights> weights = WeightsIn(file);
  if (!weights) return std::nullopt;

  double combos = 0;
  bool anyEntry = false;
  std::map<std::string, double> byLabel;
  for (std::size_t i = 0; i < kClasses; ++i) {
    const std::string& label = PlainLabels()[i];
    const double weight = (*weights)[i];
    byLabel[label] = weight;
    anyEntry = anyEntry || file.find(label + " (") != std::string_view::npos;
    if (weight == 1 || weight == 0.5) combos += weight * (label.size() == 2 ? 6 : label[2] == 's' ? 4 : 12);
  }
  if (!anyEntry) return std::nullopt;
  return PlainNumberText(Rounded(combos / 1326 * 100, 1)) + "% selected\t" + SummaryOf(byLabel);
}

PlainResult ResultOf(const PlainRun& run) {
  const std::optional<PlainWeights> current = WeightsIn(run.RangeFile);
  const std::optional<PlainWeights> calling = WeightsIn(run.CallingRangeFile);
  const int fault = FaultOfRange(run.RangeFile, current);
  PlainOutcome check;
  if (run.Mode == PlainMode::kRaise) {
    check = CheckRaise(run);
  } else if (fault == 0) {
    const double weight = WholeWeight(*current);
    if (run.Mode == PlainMode::kCall) check = CheckCall(run, weight);
    if (run.Mode == PlainMode::kEquity && weight == 0) {
      check = Refusal("Empty Range", "Your opponent's range is empty. Please select another range.");
    }
  }
  if (!check.GoesThrough()) return {check, {}, {}, {}};
  if (run.Mode != PlainMode::kRaise) {
    return fault == 0 ? Worked(run, *current, *current) : PlainResult{FaultNumbered(fault), {}, {}, {}};
  }
  // Both are dealt before either list is looked at, and it is only then that an empty one shows.
  const int callingFault = FaultOfRange(run.CallingRangeFile, calling);
  if (fault == 0 && callingFault == 0) return Worked(run, *current, *calling);
  const bool unread = fault == kInvalidProcedureCall || callingFault == kInvalidProcedureCall;
  return {FaultNumbered(unread ? kInvalidProcedureCall : kSubscriptOutOfRange), {}, {}, {}};
}

bool PlainIsUtf16(std::string_view file) {
  const std::string start(file.substr(0, 2));
  return start == "\xFF\xFE" || start == "\xFE\xFF" ||
         (start.size() == 2 && std::count(start.begin(), start.end(), '\0') == 1);
}

std::string SettingIn(std::string_view file, std::string_view section, std::string_view key) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  if (PlainIsUtf16(file)) return {};
  std::string text(file.starts_with(kMark) ? file.substr(kMark.size()) : file);
  std::replace(text.begin(), text.end(), '\r', '\n');
  std::istringstream lines(text);
  bool inside = false;
  for (std::string line; std::getline(lines, line);) {
    line = Trimmed(line);
    const std::size_t bracket = line.find(']');
    const std::size_t equals = line.find('=');
    if (line.starts_with("[") && bracket != std::string::npos) {
      if (inside) return {};
      inside = IsSame(line.substr(1, bracket - 1), section);
    } else if (inside && !line.starts_with(";") && equals != std::string::npos && IsSame(line.substr(0, equals), key)) {
      constexpr std::size_t kLongest = 2999;
      return WithoutQuotes(Trimmed(line.substr(equals + 1))).substr(0, kLongest);
    }
  }
  return {};
}

std::string PlainUtf8(std::string_view bytes) {
  // What stands from 80 to 9F; the others are the characters of their own numbers.
  constexpr std::array<unsigned, 32> kMiddle = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                                0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    const unsigned code = byte >= 0x80 && byte < 0xA0 ? kMiddle.at(byte - 0x80U) : byte;
    if (code < 0x80) {
      text += static_cast<char>(code);
      continue;
    }
    if (code < 0x800) {
      text += static_cast<char>(0xC0U | (code >> 6U));
    } else {
      text += static_cast<char>(0xE0U | (code >> 12U));
      text += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
    }
    text += static_cast<char>(0x80U | (code & 0x3FU));
  }
  return text;
}

}  // namespace quillon
