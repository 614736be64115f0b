#include "shell/screens/study_view.h"

#include "analysis/input_screens.h"

namespace quillon {

void StudyView::Show() {
  StudyForm& form = Form();
  if (!form.isVisible()) FollowLast();
  BringUp(form);
}

void StudyView::ShowPage(StudyTopic topic, std::optional<std::int16_t> hand) {
  StudyForm& form = Form();
  FollowLast();
  BringUp(form);
  form.ShowPage(topic, hand);
}

// If the pages are about it already, what the player has typed and found stays, and there is nothing to offer.
void StudyView::FollowLast() {
  if (!finished_) return;
  if (form_->IsAbout(*finished_))
    form_->Offer(*finished_);
  else
    form_->Follow(*finished_);
}

void StudyView::Finish(const Analysis& analysis) {
  finished_ = analysis;
  if (form_ != nullptr && form_->isVisible()) form_->Offer(analysis);
}

std::vector<IniSetting> StudyView::PlaceSettings() const {
  if (form_ == nullptr || !form_->isVisible()) return {};
  return form_->PlaceSettings();
}

StudyForm& StudyView::Form() {
  if (form_ == nullptr) {
    form_ = std::make_unique<StudyForm>(around_);
    QObject::connect(form_.get(), &StudyForm::CallingRangeSaved, form_.get(), [this](const std::string& name) {
      ranges_.RefreshLists();
      ranges_.Choosers().List(kRaiseCallingRangeList).SelectEntry(name);
    });
  }
  return *form_;
}

}  // namespace quillon
