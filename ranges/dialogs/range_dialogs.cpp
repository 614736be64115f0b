#include "ranges/dialogs/range_dialogs.h"

namespace quillon {

void RangeDialogs::Bind() {
  connect(&choosers_, &RangeChoosers::EditClicked, this, &RangeDialogs::EditRange);
  // If the dialog is already open for another chooser, its range will go to this one.
  connect(&choosers_, &RangeChoosers::NewClicked, this, [this](qint16 index) {
    choosers_.SetLastEdit(index);
    ShowNewRange();
  });
}

void RangeDialogs::RefreshLists() {
  ManagerForm& manager = Manager();
  choosers_.Refresh(around_.Folder);
  manager.RefreshList();
}

void RangeDialogs::ShowManager() {
  BringUp(Manager());
}

NewRangeForm& RangeDialogs::ShowNewRange() {
  NewRangeForm& form = NewRange();
  BringUp(form);
  return form;
}

void RangeDialogs::EditRange(std::int16_t chooser) {
  // Read the name first: loading the Range Manager refills the lists.
  const std::string name = choosers_.List(chooser).CurrentText();
  ManagerForm& manager = Manager();
  manager.RangeList().SelectEntry(name);
  BringUp(manager);
}

ManagerForm& RangeDialogs::Manager() {
  if (manager_ == nullptr) {
    manager_ = std::make_unique<ManagerForm>(around_);
    ForgetWhenClosed(manager_);
    connect(manager_.get(), &ManagerForm::RangesChanged, this, &RangeDialogs::RefreshLists);
    RefreshLists();
  }
  return *manager_;
}

NewRangeForm& RangeDialogs::NewRange() {
  if (newRange_ == nullptr) {
    newRange_ = std::make_unique<NewRangeForm>(around_);
    ForgetWhenClosed(newRange_);
    connect(newRange_.get(), &NewRangeForm::RangeSaved, this, [this](const std::string& name) {
      RefreshLists();
      choosers_.List(choosers_.LastEdit()).SelectEntry(name);
    });
  }
  return *newRange_;
}

// A form closes while it handles an event, so it is deleted afterwards.
template <typename Form>
void RangeDialogs::ForgetWhenClosed(std::unique_ptr<Form>& form) {
  connect(
      form.get(), &Form::Closed, this,
      [this, &form] {
        mainWindow_.unsetCursor();
        form.release()->deleteLater();
      },
      Qt::SingleShotConnection);
}

}  // namespace quillon
