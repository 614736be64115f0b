#include "ranges/dialogs/range_choosers.h"

#include <utility>

#include "support/number_text.h"
#include "support/rounding.h"
#include "toolkit/text.h"

namespace quillon {

RangeChoosers::RangeChoosers(ChooserControls controls) : controls_(std::move(controls)) {
  for (std::int16_t i = 0; const ChooserControls::Chooser& chooser : controls_.Choosers) {
    lists_.push_back(std::make_unique<FormChooser>(chooser.List));
    connect(lists_.back().get(), &FormChooser::Clicked, this, [this, i] { ShowLinks(i); });
    connect(&chooser.Edit, &Control::Clicked, this, [this, i] { Q_EMIT EditClicked(i); });
    connect(&chooser.New, &Control::Clicked, this, [this, i] { Q_EMIT NewClicked(i); });
    ++i;
  }
}

void RangeChoosers::Refresh(const ProgramFolder& folder) {
  for (const std::unique_ptr<FormChooser>& list : lists_)
    list->Show(FillRangeList(folder, ListStart::kBlankEntry, list->CurrentText()));
}

std::int16_t RangeChoosers::LastEdit() const {
  return RoundToInt16(LeadingNumber(FromQt(controls_.LastEdit.Text())));
}

void RangeChoosers::SetLastEdit(std::int16_t index) {
  controls_.LastEdit.SetText(QString::number(index));
}

void RangeChoosers::ShowLinks(std::int16_t index) {
  const bool isRange = !List(index).CurrentText().empty();
  const ChooserControls::Chooser& chooser = controls_.Choosers.at(static_cast<std::size_t>(index));
  chooser.Or.setVisible(isRange);
  // With another window in front, Qt would leave the focus with a link that is gone.
  QWidget& form = *chooser.Edit.window();
  if (!isRange && form.focusWidget() == &chooser.Edit) form.setFocus(Qt::OtherFocusReason);
  chooser.Edit.setVisible(isRange);
}

}  // namespace quillon
