#pragma once

// The Range Manager, `frmManager`: each event of its controls goes to the routine that answers it
// ("ranges/range_manager.h"). It is a window beside the main one and not modal.

#include <QWidget>
#include <string_view>

#include "ranges/dialogs/form_card_grid.h"
#include "ranges/dialogs/form_list.h"
#include "ranges/dialogs/range_forms.h"
#include "ranges/range_manager.h"
#include "toolkit/form_builder.h"

namespace quillon {

class ManagerForm : public QWidget, public ManagerWindow {
  Q_OBJECT

 public:
  explicit ManagerForm(DialogSurroundings surroundings);

  /// Puts the form where it stood last, builds its grid and has all range lists filled, which selects and shows the
  /// first range. To be called once, when the form can be found as the one whose list is filled.
  void Load();

  [[nodiscard]] const FormControls& Controls() const { return controls_; }

  [[nodiscard]] CardGridForm& Grid() override { return grid_; }
  [[nodiscard]] ChooserList& RangeList() override { return list_; }
  void SetRangeName(std::string_view caption) override;
  void SetSelectionCaption(std::string_view caption) override;
  void SetSummary(std::string_view text) override;
  [[nodiscard]] MessageBoxes& Messages() override { return around_.Messages; }
  [[nodiscard]] InputBoxes& Inputs() override { return around_.Inputs; }
  void RefreshLists() override { around_.Owner.RefreshLists(); }
  void Close() override { close(); }

 Q_SIGNALS:
  /// The form was closed, by its OK or by its close box, and is not to be used again.
  void Closed();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  using Action = void (*)(ManagerWindow& window, const ProgramFolder& folder);

  void Bind();
  void BindPicture(std::string_view name, Action action);

  DialogSurroundings around_;
  FormControls controls_;
  FormCardGrid grid_;
  FormListBox list_;
};

}  // namespace quillon
