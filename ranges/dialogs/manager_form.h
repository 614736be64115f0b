#pragma once

// The Range Manager, `frmManager`: the window in which ranges are looked at, edited, made, renamed and deleted, beside
// the main one and not modal. A list shows the names, a grid the selected range, a label and a text box sum it up. The
// grid is a working copy. It reaches a file through Save, Save As, Rename, or the question at OK, and whatever selects
// an entry of the list, a refresh too, paints the grid anew from the file: changes that were not saved are gone then,
// without a question.
//
// Of the range nothing is kept beside the controls. The one that is shown is the selected entry, the empty text where
// none is, and whether it was changed is found out by comparison. Failures of files are told at "ranges/range_files.h".

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
  /// The form where it stood last, hidden, with nothing selected on its grid and its list empty.
  explicit ManagerForm(DialogSurroundings surroundings);

  [[nodiscard]] const ManagerControls& Controls() const { return controls_; }
  [[nodiscard]] const FormCardGrid& Grid() const { return grid_; }
  [[nodiscard]] FormListBox& RangeList() { return list_; }

  /// Fills the list from the folder, which selects and shows a range: the same one where it still exists, otherwise the
  /// first. Where there is none, the grid keeps what it shows. RunTimeError as told at FillRangeList, and as told at
  /// ShowRangeOnGrid if the range's file is missing or empty.
  void RefreshList();

 Q_SIGNALS:
  /// The folder of ranges has changed: every list of ranges is to be filled anew before this returns.
  void RangesChanged();

  /// The form was closed, by its OK or by its close box, and is not to be used again.
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

  [[nodiscard]] std::string AskName(const LineQuestion& question, std::string_view onOffer);
  [[nodiscard]] bool MayTakeName(std::string_view name);
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
  std::string lostWeights_;  // what a save drops of the range shown
};

}  // namespace quillon
