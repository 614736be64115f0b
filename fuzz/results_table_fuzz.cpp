// Tables from any text, against plain lists of rows and cells.

#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "analysis/results_table.h"
#include "fuzz/fuzz_target.h"
#include "support/number_text.h"
#include "support/run_time_error.h"

namespace quillon {
namespace {

using Texts = std::vector<std::string>;

Texts Split(std::string_view text, std::string_view mark) {
  Texts pieces(1);
  while (!text.empty()) {
    const bool atMark = text.starts_with(mark);
    if (atMark)
      pieces.emplace_back();
    else
      pieces.back() += text.front();
    text.remove_prefix(atMark ? mark.size() : 1);
  }
  return pieces;
}

std::string Cell(const Texts& cells, std::size_t column) {
  return column < cells.size() ? cells[column] : std::string();
}

std::string Tabs(std::size_t count) {
  return std::string(count, '\t');
}

std::string PlainSet(std::string_view table, const std::string& label, std::size_t column, double value,
                     std::size_t lastColumn) {
  Texts rows = Split(table, "\r\n");
  rows.pop_back();
  std::string result;
  bool found = false;
  for (const std::string& row : rows) {
    Texts cells = Split(row, "\t");
    if (cells[0] == label) {
      found = true;
      cells.resize(lastColumn + 1);
      cells[column] = NumberText(LeadingNumber(cells[column]) + value);
      for (const std::string& cell : cells)
        result += cell + "\t";
    } else {
      result += row;
    }
    result += "\r\n";
  }
  if (!found) result += label + Tabs(column) + NumberText(value) + Tabs(lastColumn - column) + "\r\n";
  return result;
}

double PlainGet(std::string_view table, const std::string& label, std::size_t column) {
  for (const std::string& row : Split(table, "\r\n")) {
    const Texts cells = Split(row, "\t");
    if (!row.empty() && cells[0] == label) return LeadingNumber(Cell(cells, column));
  }
  return 0;
}

std::string PlainBest(std::string_view table, std::size_t column) {
  Texts rows = Split(table, "\r\n");
  rows.pop_back();
  double best = -10000;
  std::string label;
  for (const std::string& row : rows) {
    const Texts cells = Split(row, "\t");
    const double value = LeadingNumber(Cell(cells, column));
    if (value <= best) continue;
    best = std::nearbyint(value);
    label = cells[0];
  }
  return label;
}

std::string PlainWorst(std::string_view table, std::size_t column) {
  Texts rows = Split(table, "\r\n");
  rows.pop_back();
  double best = 10000;
  std::string label;
  for (const std::string& row : rows) {
    const Texts cells = Split(row, "\t");
    const double value = LeadingNumber(Cell(cells, column));
    if (value < best) label = cells[0];
    best = std::min(best, value);
  }
  return label;
}

// What a call gives, or the fault it fails with.
template <typename Call>
std::string OrFailure(Call call) {
  try {
    return call();
  } catch (const RunTimeError& error) {
    return error.what();
  }
}

}  // namespace
}  // namespace quillon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillon;  // NOLINT(google-build-using-namespace): the name of this function is not ours to choose
  constexpr std::size_t kMostColumns = 8;
  constexpr std::size_t kLongestLabel = 5;
  FuzzInput input(data, size);
  const std::size_t lastColumn = input.TakeBelow(kMostColumns);
  const std::size_t column = input.TakeBelow(lastColumn + 1);
  const double value = input.TakeDouble();
  const std::string anyLabel(input.TakeText(input.TakeBelow(kLongestLabel + 1)));
  const std::string_view table = input.Rest();
  const std::string ownLabel = Split(table.substr(table.size() / 2), "\t")[0];

  const auto number = static_cast<std::int16_t>(column);
  const auto last = static_cast<std::int16_t>(lastColumn);
  for (const std::string& label : {anyLabel, ownLabel, std::string("AA")}) {
    Require(OrFailure([&] { return SetHandInfo(table, label, number, value, last); }) ==
                OrFailure([&] { return PlainSet(table, label, column, value, lastColumn); }),
            "a changed table equals the plain one");
    Require(GetHandInfo(table, label, number) == PlainGet(table, label, column), "a cell equals the plain one");
  }
  Require(BestHand(table, number) == PlainBest(table, column), "the best hand is the plain one");
  Require(WorstHand(table, number) == PlainWorst(table, column), "the worst hand is the plain one");
  return 0;
}
