#include "testing/oracle/results_tables.h"

#include <algorithm>
#include <cmath>

#include "testing/oracle/numbers.h"
#include "testing/split_text.h"

namespace quillon::plain {
namespace {

double NumberIn(const std::vector<std::string>& cells, std::size_t column) {
  return column < cells.size() ? LeadingNumber(cells[column]) : 0;
}

std::string Joined(const std::vector<std::string>& cells) {
  std::string row;
  for (const std::string& cell : cells)
    row += cell + "\t";
  return row;
}

}  // namespace

ResultsTable::ResultsTable(std::string_view text) {
  for (const std::string& row : Split(text, "\r\n"))
    rows_.push_back(Split(row, "\t"));
}

std::optional<std::string> ResultsTable::WithValue(const std::string& label, std::size_t column, double value,
                                                   std::size_t lastColumn) const {
  std::string text;
  bool found = false;
  for (auto row = rows_.begin(); row + 1 != rows_.end(); ++row) {
    std::vector<std::string> cells = *row;
    const bool changed = cells[0] == label;
    found = found || changed;
    if (changed) {
      const double sum = NumberIn(cells, column) + value;
      if (!std::isfinite(sum)) return std::nullopt;
      cells.resize(lastColumn + 1);
      cells[column] = NumberText(sum);
    }
    text += Joined(cells);
    if (!changed) text.pop_back();
    text += "\r\n";
  }
  if (found) return text;
  if (!std::isfinite(value)) return std::nullopt;
  std::vector<std::string> cells(lastColumn + 1);
  cells[0] = label;
  cells[column] = (column == 0 ? label : "") + NumberText(value);
  text += Joined(cells);
  text.pop_back();
  return text + "\r\n";
}

double ResultsTable::Cell(const std::string& label, std::size_t column) const {
  for (const std::vector<std::string>& cells : rows_) {
    const bool empty = cells.size() == 1 && cells[0].empty();
    if (!empty && cells[0] == label) return NumberIn(cells, column);
  }
  return 0;
}

std::string ResultsTable::Best(std::size_t column) const {
  double best = -10000;
  std::string label;
  for (auto row = rows_.begin(); row + 1 != rows_.end(); ++row) {
    const double value = NumberIn(*row, column);
    if (value <= best) continue;
    best = RoundTo(value, 0);
    label = row->front();
  }
  return label;
}

std::string ResultsTable::Worst(std::size_t column) const {
  double worst = 10000;
  std::string label;
  for (auto row = rows_.begin(); row + 1 != rows_.end(); ++row) {
    const double value = NumberIn(*row, column);
    if (value < worst) label = row->front();
    worst = std::min(worst, value);
  }
  return label;
}

}  // namespace quillon::plain
