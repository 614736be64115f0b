#pragma once

// The two range dialogs of the program and the lists of ranges that they and the main window show. A dialog is there
// from its first touch until it is closed. One that was closed is gone, and the next touch brings a fresh one. Neither
// is modal.

#include <QObject>
#include <memory>
#include <utility>

#include "ranges/dialogs/dialog_window.h"
#include "ranges/dialogs/manager_form.h"
#include "ranges/dialogs/new_range_form.h"
#include "ranges/dialogs/range_choosers.h"

namespace quillon {

class RangeDialogs : public QObject {
  Q_OBJECT

 public:
  /// `controls` are those of the main window, among them the choosers; the boxes stand over the dialog that asks. All
  /// that is given outlives the dialogs.
  template <typename Controls>
  RangeDialogs(QWidget& mainWindow, const Controls& controls, DialogSurroundings surroundings)
      : mainWindow_(mainWindow), around_(std::move(surroundings)), choosers_(controls) {
    Bind();
  }

  [[nodiscard]] const RangeChoosers& Choosers() const { return choosers_; }

  /// Fills every list of ranges anew, the choosers' first and then that of the Range Manager, which is loaded for it,
  /// hidden. Each keeps what it shows where that range still exists. RunTimeError as told at FillRangeList.
  void RefreshLists();

  /// Shows the Range Manager as it is.
  void ShowManager();

  /// Shows the New Range dialog. Where it was closed before, or never open, it comes with an empty grid; where it was
  /// hidden, or is open, as it was.
  NewRangeForm& ShowNewRange();

  /// The dialogs as they stand; null where one is not loaded.
  [[nodiscard]] ManagerForm* LoadedManager() const { return manager_.get(); }
  [[nodiscard]] NewRangeForm* LoadedNewRange() const { return newRange_.get(); }

 private:
  void Bind();
  void EditRange(std::int16_t chooser);
  [[nodiscard]] ManagerForm& Manager();
  [[nodiscard]] NewRangeForm& NewRange();
  template <typename Form>
  void ForgetWhenClosed(std::unique_ptr<Form>& form);

  QWidget& mainWindow_;
  DialogSurroundings around_;
  RangeChoosers choosers_;
  std::unique_ptr<ManagerForm> manager_;
  std::unique_ptr<NewRangeForm> newRange_;
};

}  // namespace quillon
