#include "ranges/dialogs/range_dialogs.h"

#include <utility>

#include "ranges/dialogs/dialog_window.h"

namespace quillon {
namespace {

// A form closes in the midst of its own handling of an event, so it goes after that.
template <typename Form>
void ForgetWhenClosed(std::unique_ptr<Form>& form) {
  QObject::connect(
      form.get(), &Form::Closed, form.get(), [&form] { form.release()->deleteLater(); }, Qt::SingleShotConnection);
}

}  // namespace

RangeDialogs::RangeDialogs(ProgramFolder folder, MessageBoxes& messages, InputBoxes& inputs, ShiftWatch& shift)
    : folder_(std::move(folder)), messages_(messages), inputs_(inputs), shift_(shift) {}

void RangeDialogs::ShowManager() {
  BringUp(Manager());
}

NewRangeWindow& RangeDialogs::ShowNewRange() {
  NewRangeForm& form = NewRange();
  BringUp(form);
  return form;
}

DialogSurroundings RangeDialogs::Surroundings() const {
  return {.Folder = folder_, .Messages = messages_, .Inputs = inputs_, .Shift = shift_, .Owner = *owner_};
}

ManagerForm& RangeDialogs::Manager() {
  if (manager_ == nullptr) {
    manager_ = std::make_unique<ManagerForm>(Surroundings());
    ForgetWhenClosed(manager_);
    // Its loading fills all lists, this one too, which must find it here then.
    manager_->Load();
  }
  return *manager_;
}

NewRangeForm& RangeDialogs::NewRange() {
  if (newRange_ == nullptr) {
    newRange_ = std::make_unique<NewRangeForm>(Surroundings());
    ForgetWhenClosed(newRange_);
  }
  return *newRange_;
}

}  // namespace quillon
