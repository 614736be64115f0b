#pragma once

// The two range dialogs of the program, each there from its first touch until it is closed. A dialog that was closed
// is gone, and the next touch brings a fresh one.

#include <memory>

#include "ranges/dialogs/manager_form.h"
#include "ranges/dialogs/new_range_form.h"
#include "ranges/dialogs/range_forms.h"
#include "ranges/dialogs/shift_watch.h"

namespace quillon {

class RangeDialogs : public RangeForms {
 public:
  /// The boxes stand over the dialog that asks. All that is given outlives the dialogs.
  RangeDialogs(ProgramFolder folder, MessageBoxes& messages, InputBoxes& inputs, ShiftWatch& shift);

  /// Makes the main window known. To be called before a dialog is touched.
  void Attach(RangeFormsOwner& owner) { owner_ = &owner; }

  [[nodiscard]] ChooserList& ManagerList() override { return Manager().RangeList(); }
  void ShowManager() override;
  NewRangeWindow& ShowNewRange() override;

  /// The dialogs as they stand; null where one is not loaded.
  [[nodiscard]] ManagerForm* LoadedManager() const { return manager_.get(); }
  [[nodiscard]] NewRangeForm* LoadedNewRange() const { return newRange_.get(); }

 private:
  [[nodiscard]] DialogSurroundings Surroundings() const;
  [[nodiscard]] ManagerForm& Manager();
  [[nodiscard]] NewRangeForm& NewRange();

  ProgramFolder folder_;
  MessageBoxes& messages_;
  InputBoxes& inputs_;
  ShiftWatch& shift_;
  RangeFormsOwner* owner_ = nullptr;
  std::unique_ptr<ManagerForm> manager_;
  std::unique_ptr<NewRangeForm> newRange_;
};

}  // namespace quillon
