#pragma once

// Fast painting on the card grid of a dialog: its clicks, a menu with what changes many cells at once
// ("ranges/grid_edits.h"), the keys and the drop of a text that do the same, and the steps back and forth. Keys are
// heard wherever in the window the focus is, but for its text boxes, which know the same keys.

#include <QCheckBox>
#include <QObject>
#include <QPoint>
#include <QWidget>

#include "ranges/dialogs/dialog_window.h"
#include "ranges/grid_edits.h"
#include "toolkit/form_card_grid.h"

namespace quillon {

class GridPainting : public QObject {
  Q_OBJECT

 public:
  /// `form` is the dialog, `half` its check box for half weight. All of them outlive this.
  GridPainting(QWidget& form, FormCardGrid& grid, const QCheckBox& half, const DialogSurroundings& around);

  /// A range came up on the grid: there is nothing to undo.
  void Start() { history_ = GridHistory(grid_.Colors()); }

  /// The grid was changed by another: one step.
  void AddStep() { history_.Add(grid_.Colors()); }

 Q_SIGNALS:
  void Painted();  // the grid is to be summed up anew

 private:
  void Bind();
  void ShowMenu(const QPoint& place);
  void Copy();
  void Paste();
  void PaintText(const QString& notation);
  void PaintBest();
  void Undo();
  void Redo();
  void Paint(const CellColors& wanted);

  QWidget& form_;
  FormCardGrid& grid_;
  const QCheckBox& half_;
  const DialogSurroundings& around_;
  GridHistory history_;
};

}  // namespace quillon
