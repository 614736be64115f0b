#pragma once

// A grid of the 169 classes that grows with its window. Tab reaches it at one cell, and the keys of
// "toolkit/grid_keys.h" go from there to the others. A cell says its class, and as its description the words of what it
// shows.

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

  /// The cell of a class, for whoever wants its place or its words.
  [[nodiscard]] QWidget& Cell(std::int16_t index) const;

  /// Gives the keyboard to the cell of a class, which is the one that Tab reaches from now on.
  void FocusCell(std::int16_t index);

  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void HandReached(qint16 index);  // the mouse or the keyboard came to its cell
  void HandPressed(qint16 index);  // by a click, Enter or Space

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void MakeTabStop(std::int16_t index);

  std::array<GridCell*, kHandClassCount> cells_{};
  std::int16_t tabStop_ = 0;
};

}  // namespace quillon
