#pragma once

// A resizable grid of the 169 classes. Tab reaches one of its cells, and the keys of "toolkit/grid_keys.h" move on from
// there. A cell's accessible name is its class, its description the words of what it shows.

#include <QWidget>
#include <array>
#include <cstdint>

#include "study/limit_cells.h"

namespace quillon {

class GridCell;

class ClassGridView : public QWidget {
  Q_OBJECT

 public:
  explicit ClassGridView(QWidget* parent = nullptr);

  void Show(const ClassCells& cells);

  /// The cell of a class, for its place or words.
  [[nodiscard]] QWidget& Cell(std::int16_t index) const;

  /// Focuses the cell of a class, which Tab reaches from then on.
  void FocusCell(std::int16_t index);

  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void HandReached(qint16 index);  // by mouse or keyboard
  void HandPressed(qint16 index);  // by a click, Enter or Space

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void MakeTabStop(std::int16_t index);

  std::array<GridCell*, kHandClassCount> cells_{};
  std::int16_t tabStop_ = 0;
};

}  // namespace quillon
