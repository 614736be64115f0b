#include "tools/class_grid.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace quillon {

std::string ClassGrid(const std::array<std::string, kHandClassCount>& texts) {
  constexpr std::size_t kLabelWidth = 4;
  constexpr std::size_t kGap = 2;
  std::array<std::size_t, kRankCount> widths{};
  for (std::size_t i = 0; i < texts.size(); ++i)
    widths[i % kRankCount] = std::max(widths[i % kRankCount], texts[i].size());
  std::string grid;
  std::string line;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    std::string cell(HandLabel(static_cast<std::int16_t>(i)));
    cell.resize(kLabelWidth, ' ');
    cell += texts[i];
    cell.resize(kLabelWidth + widths[i % kRankCount] + kGap, ' ');
    line += cell;
    if (i % kRankCount != kRankCount - 1U) continue;
    line.erase(line.find_last_not_of(' ') + 1);
    grid += line + '\n';
    line.clear();
  }
  return grid;
}

}  // namespace quillon
