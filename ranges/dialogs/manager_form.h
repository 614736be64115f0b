#pragma once

// The Range Manager, `frmManager`: the modeless window for viewing, editing, creating, renaming and deleting ranges. A
// list shows the names, a grid the selected range, and a label and a text box sum it up. The grid is a working copy. It
// is saved to a file by Save, Save As, Rename, or the question at OK; whatever selects an entry of the list, even a
// refresh, reloads the grid from the file and drops unsaved changes without asking.
//
// The controls are the only state. The current range is the selected entry (the empty text if there is none), and
// comparing with its file tells whether it was changed. For file errors see "ranges/range_files.h".

#include <QWidget>
#include <string>
#include <string_view>

#include "ranges/dialogs/dialog_window.h"
#include "ranges/dialogs/grid_painting.h"
#include "ranges/dialogs/manager_layout.h"
#include "ranges/range_messages.h"
#include "ranges/range_text.h"
#include "toolkit/form_card_grid.h"
#include "toolkit/form_list.h"

namespace quillon {

class ManagerForm : public QWidget {
  Q_OBJECT

 public:
  /// The form at its last place, hidden, with an unselected grid and an empty list.
  explicit ManagerForm(DialogSurroundings surroundings);

  [[nodiscard]] const ManagerControls& Controls() const { return controls_; }
  [[nodiscard]] const FormCardGrid& Grid() const { return grid_; }
  [[nodiscard]] FormListBox& RangeList() { return list_; }

  /// Fills the list from the folder, which selects and shows a range: the same one if it still exists, otherwise the
  /// first. If there is none, the grid is unchanged. RunTimeError as of FillRangeList, and as of ShowRangeOnGrid if the
  /// range's file is missing or empty.
  void RefreshList();

 Q_SIGNALS:
  /// The range folder has changed: every list of ranges must be refilled before this returns.
  void RangesChanged();

  /// The form was closed, by OK or by its close box, and must not be used again.
  void Closed();

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void Bind();
  void ShowRange();
  void SumUp();
  void TellLostWeights(std::string_view name, const ClassWeights& file);
  void ClickNew();
  void ClickSave();
  void ClickSaveAs();
  void ClickRename();
  void ClickDelete();
  void ClickOk();

  [[nodiscard]] std::string AskName(const LineQuestion& question, std::string_view onOffer) const;
  [[nodiscard]] bool HasBeenModified() const;
  void SaveGridAs(std::string_view name);
  void RefreshAndSelect(std::string_view name);
  void ShowSelectionCaption();
  void SetSummary(std::string_view text);

  DialogSurroundings around_;
  ManagerControls controls_;
  FormCardGrid grid_;
  GridPainting painting_;
  FormListBox list_;
  std::string lostWeights_;  // what saving the current range would lose
};

}  // namespace quillon
