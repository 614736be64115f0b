#pragma once

// The New Range dialog, `frmNewRange`: each event of its controls goes to the routine that answers it
// ("ranges/new_range.h"). It is a window beside the main one and not modal.

#include <QWidget>
#include <string>
#include <string_view>

#include "ranges/dialogs/form_card_grid.h"
#include "ranges/dialogs/range_forms.h"
#include "ranges/new_range.h"
#include "toolkit/form_builder.h"

namespace quillon {

class NewRangeForm : public QWidget, public NewRangeWindow {
  Q_OBJECT

 public:
  /// Loads the form: it stands where it stood last, hidden, with an empty grid.
  explicit NewRangeForm(DialogSurroundings surroundings);

  [[nodiscard]] const FormControls& Controls() const { return controls_; }

  [[nodiscard]] CardGridForm& Grid() override { return grid_; }
  void SetSelectionCaption(std::string_view caption) override;
  void SetSummary(std::string_view text) override;
  [[nodiscard]] std::string RangeName() const override;
  void SetRangeName(std::string_view text) override;
  void SetRangeNameEnabled(bool enabled) override;
  void FocusRangeName() override;
  void SelectWholeRangeName() override;
  [[nodiscard]] bool SaveRangeChecked() const override;
  [[nodiscard]] MessageBoxes& Messages() override { return around_.Messages; }
  [[nodiscard]] RangeChoosers& Choosers() override { return around_.Owner; }
  void RefreshLists() override { around_.Owner.RefreshLists(); }
  void Close() override { close(); }
  void Hide() override { hide(); }

 Q_SIGNALS:
  /// The form was closed, by its OK or by its close box, and is not to be used again.
  void Closed();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Bind();

  DialogSurroundings around_;
  FormControls controls_;
  FormCardGrid grid_;
};

}  // namespace quillon
