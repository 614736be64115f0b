#include "analysis/results_table.h"

#include <cstddef>
#include <optional>

#include "support/byte_scan.h"
#include "support/number_text.h"
#include "support/rounding.h"

namespace quillon {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kUsualRowSize = 64;

// Removes the first row from `rest` and returns it without its line end; nothing if no line end is left.
std::optional<std::string_view> TakeRow(std::string_view& rest) {
  const std::size_t length = rest.find(kLineEnd);
  if (length == std::string_view::npos) return std::nullopt;
  const std::string_view row = rest.substr(0, length);
  rest.remove_prefix(length + kLineEnd.size());
  return row;
}

bool BeginsRow(std::string_view table, std::size_t place) {
  return place == 0 || table.substr(0, place).ends_with(kLineEnd);
}

// The row that begins at `place`; the last one may lack a line end.
std::string_view RowAt(std::string_view table, std::size_t place) {
  return table.substr(place, table.substr(place).find(kLineEnd));
}

std::string_view KeyOf(std::string_view row) {
  return row.substr(0, row.find('\t'));
}

std::string_view CellOf(std::string_view row, std::int16_t column) {
  for (std::int16_t i = 0; i < column; ++i) {
    const std::size_t tab = row.find('\t');
    if (tab == std::string_view::npos) return {};
    row.remove_prefix(tab + 1);
  }
  return row.substr(0, row.find('\t'));
}

double ValueOf(std::string_view row, std::int16_t column) {
  return LeadingNumber(CellOf(row, column));
}

// The first row with the key `label`, empty if there is none. A report calls this hundreds of times; searching for the
// label and then checking that it is a row's key handles many bytes at once, unlike walking the rows.
std::string_view RowOf(std::string_view table, std::string_view label) {
  std::size_t from = 0;
  while (from <= table.size()) {
    const std::size_t found = FindText(table.substr(from), label);
    if (found == std::string_view::npos) break;
    const std::size_t place = from + found;
    if (BeginsRow(table, place)) {
      const std::string_view row = RowAt(table, place);
      if (!row.empty() && KeyOf(row) == label) return row;
    }
    from = place + 1;
  }
  return {};
}

HandResult ResultIn(std::string_view row, std::string_view label) {
  HandResult result{.Label = label, .Combos = ComboCount(label)};
  std::int16_t column = 0;
  for (double HandResult::*const cell : kResultCells)
    result.*cell = ValueOf(row, ++column);
  return result;
}

void AppendTabs(std::string& table, int count) {
  if (count > 0) table.append(static_cast<std::size_t>(count), '\t');
}

void AppendChangedRow(std::string& table, std::string_view row, std::int16_t column, double value,
                      std::int16_t lastColumn) {
  for (std::int16_t i = 0; i <= lastColumn; ++i) {
    const std::string_view cell = CellOf(row, i);
    if (i == column)
      table += NumberText(LeadingNumber(cell) + value);
    else
      table += cell;
    table += '\t';
  }
  table += kLineEnd;
}

void AppendNewRow(std::string& table, std::string_view label, std::int16_t column, double value,
                  std::int16_t lastColumn) {
  table += label;
  AppendTabs(table, column);
  table += NumberText(value);
  AppendTabs(table, lastColumn - column);
  table += kLineEnd;
}

}  // namespace

std::string SetHandInfo(std::string_view table, std::string_view label, std::int16_t column, double value,
                        std::int16_t lastColumn) {
  std::string result;
  result.reserve(table.size() + kUsualRowSize);
  bool found = false;
  std::string_view rest = table;
  while (const auto row = TakeRow(rest)) {
    if (KeyOf(*row) == label) {
      AppendChangedRow(result, *row, column, value, lastColumn);
      found = true;
    } else {
      result.append(*row).append(kLineEnd);
    }
  }
  if (!found) AppendNewRow(result, label, column, value, lastColumn);
  return result;
}

double GetHandInfo(std::string_view table, std::string_view label, std::int16_t column) {
  return ValueOf(RowOf(table, label), column);
}

HandResult GetHandResult(std::string_view table, std::string_view label) {
  return ResultIn(RowOf(table, label), label);
}

std::array<HandResult, kHandClassCount> GetHandResults(std::string_view table) {
  std::array<HandResult, kHandClassCount> results;
  std::string_view rest = table;
  bool inOrder = true;  // so far; then no earlier row can have the key of the next one
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const std::string_view label = HandLabel(index);
    const auto row = inOrder ? TakeRow(rest) : std::nullopt;
    inOrder = row && KeyOf(*row) == label;
    results[static_cast<std::size_t>(index)] = inOrder ? ResultIn(*row, label) : GetHandResult(table, label);
  }
  return results;
}

std::string ResultRow(const HandResult& result) {
  std::string row;
  std::int16_t column = 0;
  for (double HandResult::*const cell : kResultCells)
    row = SetHandInfo(row, result.Label, ++column, result.*cell, kLastColumn);
  return row;
}

std::string BestHand(std::string_view table, std::int16_t column) {
  double best = -10000;
  std::string_view label;
  while (const auto row = TakeRow(table)) {
    const double value = ValueOf(*row, column);
    if (value <= best) continue;
    best = RoundTo(value, 0);
    label = CellOf(*row, 0);
  }
  return std::string(label);
}

std::string WorstHand(std::string_view table, std::int16_t column) {
  double best = 10000;
  std::string_view label;
  while (const auto row = TakeRow(table)) {
    const double value = ValueOf(*row, column);
    if (value >= best) continue;
    best = value;
    label = CellOf(*row, 0);
  }
  return std::string(label);
}

}  // namespace quillon
