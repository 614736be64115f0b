#pragma once

// The two range dialogs, and the lists of ranges in them and in the main window. A dialog is created on first use and
// destroyed when it is closed. Neither is modal.

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
  /// `controls` are the main window's, including the choosers; message boxes belong to the dialog that asks. All
  /// arguments outlive the dialogs.
  template <typename Controls>
  RangeDialogs(QWidget& mainWindow, const Controls& controls, DialogSurroundings surroundings)
      : mainWindow_(mainWindow), around_(std::move(surroundings)), choosers_(controls) {
    Bind();
  }

  [[nodiscard]] const RangeChoosers& Choosers() const { return choosers_; }

  /// Refills every list of ranges, the choosers' first and then that of the Range Manager, which is loaded for it,
  /// hidden. Each keeps its selection if that range still exists. RunTimeError as of FillRangeList.
  void RefreshLists();

  /// Shows the Range Manager as it is.
  void ShowManager();

  /// Shows the New Range dialog: with an empty grid if it was closed or never open, otherwise as it was.
  NewRangeForm& ShowNewRange();

  /// The dialogs, or null if not loaded.
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
