#include "toolkit/grid_keys.h"

#include <algorithm>

#include "hand/hand_classes.h"

namespace quillon {

std::optional<std::int16_t> CellReachedFrom(std::int16_t from, const QKeyEvent& press) {
  constexpr int kLast = kRankCount - 1;
  int row = from / kRankCount;
  int column = from % kRankCount;
  const bool wholeGrid = press.modifiers().testFlag(Qt::ControlModifier);
  switch (press.key()) {
    case Qt::Key_Left:
      column = std::max(column - 1, 0);
      break;
    case Qt::Key_Right:
      column = std::min(column + 1, kLast);
      break;
    case Qt::Key_Up:
      row = std::max(row - 1, 0);
      break;
    case Qt::Key_Down:
      row = std::min(row + 1, kLast);
      break;
    case Qt::Key_Home:
      column = 0;
      if (wholeGrid) row = 0;
      break;
    case Qt::Key_End:
      column = kLast;
      if (wholeGrid) row = kLast;
      break;
    default:
      return {};
  }
  return static_cast<std::int16_t>(row * kRankCount + column);
}

}  // namespace quillon
