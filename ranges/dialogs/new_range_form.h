#pragma once

// The New Range dialog, `frmNewRange`, the quick way to a range from the input screens: the user paints a grid, and the
// range is saved and selected in the list from which the dialog was opened ("ranges/dialogs/range_choosers.h"). A range
// for one use only goes under the scratch name.
//
// Intentional: OK closes the dialog, and it reopens empty; Cancel only hides it, and it reopens as it was, so a player
// can look something up and go on.

#include <QWidget>
#include <cstdint>
#include <span>
#include <string>

#include "ranges/dialogs/dialog_window.h"
#include "ranges/dialogs/grid_painting.h"
#include "ranges/dialogs/new_range_layout.h"
#include "toolkit/form_card_grid.h"
#include "toolkit/text_box.h"

namespace quillon {

class NewRangeForm : public QWidget {
  Q_OBJECT

 public:
  /// The form at its last place, hidden, with an empty grid.
  explicit NewRangeForm(DialogSurroundings surroundings);

  [[nodiscard]] const NewRangeControls& Controls() const { return controls_; }
  [[nodiscard]] const FormCardGrid& Grid() const { return grid_; }

  /// Toggles these cells like clicks, in order, as one undo step, and focuses the name if it can be typed.
  void Propose(std::span<const std::int16_t> cells);

 Q_SIGNALS:
  /// A range was saved and the user told: before this returns, the lists must be refilled and the range selected.
  void RangeSaved(const std::string& name);

  /// The form was closed, by OK or by its close box, and must not be used again.
  void Closed();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Bind();
  void SumUp();
  void ClickSaveRange(bool save);
  void ClickOk();

  DialogSurroundings around_;
  NewRangeControls controls_;
  FormCardGrid grid_;
  GridPainting painting_;
  TextBox& name_;
};

}  // namespace quillon
