#pragma once

// What the results grid needs of the window: the colours of its 169 cells, the texts beside and under it, the legend,
// and the links of the side panel that lead to results.

#include <cstdint>
#include <string_view>

#include "support/rgb.h"

namespace quillon {

class ResultsWindow {
 public:
  virtual ~ResultsWindow() = default;

  /// The fill of shapeCardBack(index), 0 to 168.
  virtual void SetCellColor(std::int16_t index, Rgb color) = 0;

  virtual void SetHandInfoText(std::string_view text) = 0;  // txtHandInfo, under the grid
  virtual void SetResultsCaption(std::string_view caption) = 0;  // lblResults, beside the grid
  virtual void SetGridTitle(std::string_view caption) = 0;  // lblGridTitle
  virtual void SetLegendVisible(bool visible) = 0;  // frameLegend

  /// How many links lblNav the side panel has; those from kFirstResultsNav on lead to results.
  [[nodiscard]] virtual std::int16_t NavCount() const = 0;
  virtual void SetNavColor(std::int16_t index, Rgb color) = 0;
  virtual void SetNavVisible(std::int16_t index, bool visible) = 0;

  virtual void SetNoResultsVisible(bool visible) = 0;  // lblNoResults
  virtual void SetNoResultsCaption(std::string_view caption) = 0;
};

}  // namespace quillon
