#include "testing/oracle/runs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <iterator>
#include <map>
#include <optional>
#include <utility>

#include "hand/equity_rows.h"
#include "testing/oracle/hands.h"
#include "testing/oracle/numbers.h"
#include "testing/oracle/ranges.h"

namespace quillon::plain {
namespace {

constexpr int kInvalidProcedureCall = 5;
constexpr int kOverflow = 6;
constexpr int kSubscriptOutOfRange = 9;
constexpr int kDivisionByZero = 11;

Outcome Refusal(std::string title, std::string text) {
  return {std::move(title), std::move(text), 0};
}

Outcome FaultNumbered(int number) {
  return {{}, {}, number};
}

// A quotient, or a run-time error.
double Divided(double numerator, double denominator, int& fault) {
  if (denominator != 0) return numerator / denominator;
  if (fault == 0) fault = numerator == 0 ? kOverflow : kDivisionByZero;
  return 0;
}

bool Holds(const Hand& hand, std::string_view card) {
  return hand.Cards.find(card) != std::string::npos;
}

double EquityReadOnce(std::size_t hero, std::size_t opponent) {
  static const std::vector<double> equities = [] {
    std::vector<double> all;
    for (const auto& [firstPiece, secondPiece] : kEquityPieces) {
      const std::string row = std::string(firstPiece) + std::string(secondPiece);
      for (std::size_t start = 0; start < row.size(); start = row.find(' ', start) + 1)
        all.push_back(LeadingNumber(row.substr(start, row.find(' ', start) - start)));
    }
    return all;
  }();
  return equities[hero * kClasses + opponent];
}

// The numbers for a run, by class index.
struct Source {
  std::function<double(std::size_t)> weight;
  std::function<double(std::size_t)> callingWeight;
  std::function<double(std::size_t, std::size_t)> equity;
};

Source SourceOf(const Run& run, Reading reading) {
  const std::string_view range = TextOfFile(run.RangeFile);
  const std::string_view callingRange = TextOfFile(run.CallingRangeFile);
  if (reading == Reading::kEachTime) {
    return {[range](std::size_t i) { return *WeightOf(range, Labels()[i]); },
            [callingRange](std::size_t i) { return *WeightOf(callingRange, Labels()[i]); },
            [](std::size_t hero, std::size_t opponent) { return HandEquity(Labels()[hero], Labels()[opponent]); }};
  }
  return {[weights = *WeightsOf(range)](std::size_t i) { return weights[i]; },
          [weights = WeightsOf(callingRange).value_or(Weights())](std::size_t i) { return weights[i]; },
          EquityReadOnce};
}

// The figures of one class against a range.
struct Stand {
  double weight = 0;  // of the hands that its two cards leave
  double positive = 0;  // of those with a weight above 0
  double won = 0;

  double Equity(int& fault) const { return Divided(won, positive, fault); }
};

Stand StandAgainst(std::size_t hero, const Source& source, const std::function<double(std::size_t)>& weightOf) {
  const std::string dead = SampleCards(Labels()[hero]);
  const std::string card1 = dead.substr(0, 2);
  const std::string card2 = dead.substr(3, 2);
  Stand stand;
  for (const Hand& hand : Hands()) {
    const double weight = Holds(hand, card1) || Holds(hand, card2) ? 0 : weightOf(hand.Class);
    stand.weight += weight;
    if (weight <= 0) continue;
    stand.positive += weight;
    stand.won += weight * source.equity(hero, hand.Class);
  }
  return stand;
}

Outcome CheckCall(const Run& run, double weight) {
  const double pot = BoxValue(run.Pot);
  const double call = BoxValue(run.Call);
  if (weight == 0) return Refusal("No Hands in Range", "No hands in your opponent's current range.");
  if (call >= pot) {
    return Refusal("Pot Size Error", "The pot size must be greater than the amount you have to call.");
  }
  if (pot <= 0) return Refusal("Pot Size Error", "The pot size must be greater than zero.");
  if (call <= 0) return Refusal("Call Size Error", "The amount to call must be greater than zero.");
  if (!IsNumeric(run.Pot)) return Refusal("Pot Size Error", "The pot size contains non-numeric characters");
  if (!IsNumeric(run.Call)) return Refusal("Call Size Error", "The call size contains non-numeric characters");
  return {};
}

Outcome CheckRaise(const Run& run) {
  if (BoxValue(run.Pot) <= 0) return Refusal("Pot Size", "The pot size must be greater than zero.");
  if (BoxValue(run.Call) < 0) {
    return Refusal("Call Amount", "The amount you must call cannot be a negative number.");
  }
  if (BoxValue(run.Shove) <= 0) {
    return Refusal("Pot Size", "The amount your opponent must call must be greater than zero.");
  }
  if (!IsNumeric(run.Pot)) return Refusal("Pot Size", "The pot size contains non-numeric characters");
  if (!run.Call.empty() && !IsNumeric(run.Call)) {
    return Refusal("Call Size", "The call size contains illegal characters");
  }
  if (!IsNumeric(run.Shove)) {
    return Refusal("Shove Size", "The amount your opponent must call when you shove contains illegal characters.");
  }
  return {};
}

// The run-time error of every run with a range; 0 if it can be read.
int FaultOfRange(std::string_view file) {
  if (TextOfFile(file).empty()) return kSubscriptOutOfRange;
  return WeightsOf(TextOfFile(file)) ? 0 : kInvalidProcedureCall;
}

Outcome Check(const Run& run) {
  if (run.Scenario == Mode::kRaise) return CheckRaise(run);
  if (FaultOfRange(run.RangeFile) != 0) return {};
  const Weights weights = *WeightsOf(TextOfFile(run.RangeFile));
  double total = 0;
  for (const Hand& hand : Hands())
    total += weights[hand.Class];
  if (run.Scenario == Mode::kCall) return CheckCall(run, total);
  if (total != 0) return {};
  return Refusal("Empty Range", "Your opponent's range is empty. Please select another range.");
}

// Both ranges are dealt before either list is used, so an empty one fails later.
int FaultOfRanges(const Run& run) {
  const int fault = FaultOfRange(run.RangeFile);
  const int callingFault = run.Scenario == Mode::kRaise ? FaultOfRange(run.CallingRangeFile) : 0;
  for (const int number : {kInvalidProcedureCall, kSubscriptOutOfRange}) {
    if (fault == number || callingFault == number) return number;
  }
  return 0;
}

// Expected value, equity and fold share.
using Row = std::array<double, 3>;

Row RowOf(const Run& run, std::size_t hero, const Source& source, int& fault) {
  const double pot = BoxValue(run.Pot);
  const double call = BoxValue(run.Call);
  const double shove = BoxValue(run.Shove);
  const Stand all = StandAgainst(hero, source, source.weight);
  if (run.Scenario != Mode::kRaise) {
    const double equity = all.Equity(fault);
    return {run.Scenario == Mode::kCall ? (call + pot) * equity - call : 0, equity, 1};
  }
  const Stand called = StandAgainst(
      hero, source, [&source](std::size_t i) { return std::min(source.callingWeight(i), source.weight(i)); });
  if (called.weight == 0) return {pot, -1, 1};
  const double equity = called.Equity(fault);
  const double share = Divided(called.weight, all.weight, fault);
  const double after = (pot + call) + (shove + shove);
  return {(equity * after - (call + shove)) * share + (1 - share) * pot, equity, 1 - share};
}

}  // namespace

double HandEquity(const std::string& hand, const std::string& opponentHand) {
  const auto& pieces = kEquityPieces.at(IndexOf(hand));
  const std::string row = std::string(pieces[0]) + std::string(pieces[1]);
  std::vector<std::string> entries;
  for (std::size_t start = 0; start < row.size(); start += entries.back().size() + 1)
    entries.push_back(row.substr(start, row.find(' ', start) - start));
  return LeadingNumber(entries.at(IndexOf(opponentHand)));
}

std::vector<double> Deal(std::string_view rangeText, std::string_view card1, std::string_view card2) {
  std::vector<double> weights;
  for (const Hand& hand : Hands()) {
    const bool blocked = Holds(hand, card1) || Holds(hand, card2);
    weights.push_back(blocked ? 0 : *WeightOf(rangeText, Labels()[hand.Class]));
  }
  return weights;
}

int Outcome::Status() const {
  constexpr int kRefused = 3;
  if (Fault != 0) return 1;
  return IsRefused() ? kRefused : 0;
}

std::string Outcome::Told() const {
  static const std::map<int, std::string> texts = {{5, "Invalid procedure call or argument"},
                                                   {6, "Overflow"},
                                                   {9, "Subscript out of range"},
                                                   {11, "Division by zero"},
                                                   {380, "Invalid property value"}};
  if (Fault != 0) return "Run-time error '" + std::to_string(Fault) + "': " + texts.at(Fault);
  return IsRefused() ? Title + ": " + Text : "";
}

std::string Outcome::Fate() const {
  if (Fault != 0) return "with a run-time error";
  return IsRefused() ? "refused" : "through";
}

std::string Line(std::string text) {
  for (const char* const end : {"\n", "\v", "\f", "\r", "\u0085", "\u2028", "\u2029"})
    text.resize(std::min(text.find(end), text.size()));
  std::ranges::replace(text, '\t', ' ');
  return text;
}

Outcome LeaveBox(std::string& text) {
  if (!text.starts_with("=")) return {};
  const std::string value = SumText(text.substr(1));
  if (value == "error") {
    return Refusal("Problem",
                   "There was a problem processing your expression: \n\n"
                   "Only addition (+) and subtract (-) are supported");
  }
  if (value.empty()) return FaultNumbered(kOverflow);
  text = value;
  return {};
}

double BoxValue(std::string_view text) {
  std::string amount;
  std::copy_if(text.begin(), text.end(), std::back_inserter(amount), [](char c) { return c != '$'; });
  return LeadingNumber(amount);
}

Odds OddsOf(std::string_view pot, std::string_view call, std::string_view shove) {
  const double amount = BoxValue(shove);
  if (amount == 0) return {"N/A, N/A", 0};
  int fault = 0;
  const double odds = (BoxValue(pot) + BoxValue(call) + amount) / amount;
  const double breakEven = Divided(1, odds + 1, fault) * 100;
  if (fault != 0) return {{}, fault};
  if (!std::isfinite(odds) || !std::isfinite(breakEven)) return {{}, kOverflow};
  return {NumberText(RoundTo(odds, 2)) + " : 1, " + NumberText(RoundTo(breakEven, 2)) + "%", 0};
}

std::string Result::Table() const {
  std::string table;
  for (std::size_t i = 0; i < ExpectedValues.size(); ++i) {
    table += Labels()[i] + "\t";
    for (const double value : {ExpectedValues[i], Equities[i], FoldShares[i]})
      table += NumberText(value) + "\t";
    table += "\r\n";
  }
  return table;
}

Result ResultOf(const Run& run, Reading reading) {
  const Outcome check = Check(run);
  if (!check.GoesThrough()) return {check};
  if (const int fault = FaultOfRanges(run); fault != 0) return {FaultNumbered(fault)};

  const Source source = SourceOf(run, reading);
  Result result;
  const std::array<std::vector<double>*, 3> columns = {&result.ExpectedValues, &result.Equities, &result.FoldShares};
  for (std::size_t hero = 0; hero < kClasses; ++hero) {
    int fault = 0;
    const Row row = RowOf(run, hero, source, fault);
    for (std::size_t i = 0; i < columns.size(); ++i) {
      if (fault == 0 && !std::isfinite(row[i])) fault = kOverflow;
      // Rounded as by the results table.
      if (fault == 0) columns[i]->push_back(LeadingNumber(NumberText(row[i])));
    }
    if (fault != 0) return {FaultNumbered(fault)};
  }
  return result;
}

}  // namespace quillon::plain
