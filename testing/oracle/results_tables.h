#pragma once

// Results tables as plain lists of rows and cells.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::plain {

/// A parsed results table.
class ResultsTable {
 public:
  explicit ResultsTable(std::string_view text);

  /// The table's text with `value` added to a cell; a missing label gets a new row. Nothing if the sum is not finite.
  [[nodiscard]] std::optional<std::string> WithValue(const std::string& label, std::size_t column, double value,
                                                     std::size_t lastColumn) const;

  /// The number in a cell of the first row with that label; 0 if there is none.
  [[nodiscard]] double Cell(const std::string& label, std::size_t column) const;

  /// The label of the first row that beats all before it and is beaten by none after, with the best value rounded;
  /// empty if no row is above -10000.
  [[nodiscard]] std::string Best(std::size_t column) const;

  /// The label of the first row with the lowest value; empty if none is below 10000.
  [[nodiscard]] std::string Worst(std::size_t column) const;

 private:
  std::vector<std::vector<std::string>> rows_;  // including what follows the last line end
};

}  // namespace quillon::plain
