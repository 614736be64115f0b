#pragma once

// Fast painting on a dialog's card grid: clicks, a menu for changing many cells at once ("ranges/grid_edits.h"), the
// keys and the text drop that do the same, and undo and redo. The keys work wherever in the window the focus is, except
// in text boxes, which use the same keys themselves.

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

  /// A range has been loaded into the grid: there is nothing to undo.
  void Start() { history_ = GridHistory(grid_.Colors()); }

  /// Something else changed the grid: adds one step.
  void AddStep() { history_.Add(grid_.Colors()); }

 Q_SIGNALS:
  void Painted();  // the summary is out of date

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
