#include "ranges/dialogs/range_choosers.h"

#include "support/number_text.h"
#include "support/rounding.h"
#include "toolkit/text.h"

namespace quillon {

void RangeChoosers::Refresh(const ProgramFolder& folder) {
  for (const std::unique_ptr<FormChooser>& list : lists_)
    list->Show(FillRangeList(folder, ListStart::kBlankEntry, list->CurrentText()));
}

std::int16_t RangeChoosers::LastEdit() const {
  return RoundToInt16(LeadingNumber(FromQt(lastEdit_.Text())));
}

void RangeChoosers::SetLastEdit(std::int16_t index) {
  lastEdit_.SetText(QString::number(index));
}

void RangeChoosers::Add(QComboBox& box, Label& orWord, Label& edit, Label& make) {
  const auto index = static_cast<std::int16_t>(lists_.size());
  const FormChooser& list = *lists_.emplace_back(std::make_unique<FormChooser>(box));
  connect(&list, &FormChooser::Clicked, this, [&list, &orWord, &edit] {
    const bool isRange = !list.CurrentText().empty();
    orWord.setVisible(isRange);
    // With another window in front, Qt would leave the focus on a link that is now hidden.
    QWidget& form = *edit.window();
    if (!isRange && form.focusWidget() == &edit) form.setFocus(Qt::OtherFocusReason);
    edit.setVisible(isRange);
  });
  connect(&edit, &Control::Clicked, this, [this, index] { Q_EMIT EditClicked(index); });
  connect(&make, &Control::Clicked, this, [this, index] { Q_EMIT NewClicked(index); });
}

}  // namespace quillon
