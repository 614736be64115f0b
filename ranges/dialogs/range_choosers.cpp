#include "ranges/dialogs/range_choosers.h"

#include "support/number_text.h"
#include "support/rounding.h"
#include "toolkit/text.h"

namespace quillon {

RangeChoosers::RangeChoosers(const FormControls& controls) : controls_(controls) {
  for (std::int16_t i = 0; i < kChooserCount; ++i) {
    lists_.push_back(std::make_unique<FormChooser>(controls.Get<QComboBox>("cmboRanges", i)));
    connect(lists_.back().get(), &FormChooser::Clicked, this, [this, i] { ShowLinks(i); });
    connect(&controls.LabelAt("lblEditRange", i), &Control::Clicked, this, [this, i] { Q_EMIT EditClicked(i); });
    connect(&controls.LabelAt("lblNewRange", i), &Control::Clicked, this, [this, i] { Q_EMIT NewClicked(i); });
  }
}

void RangeChoosers::Refresh(const ProgramFolder& folder) {
  for (const std::unique_ptr<FormChooser>& list : lists_)
    list->Show(FillRangeList(folder, ListStart::kBlankEntry, list->CurrentText()));
}

std::int16_t RangeChoosers::LastEdit() const {
  return RoundToInt16(LeadingNumber(FromQt(controls_.LabelAt("lblLastEdit").Text())));
}

void RangeChoosers::SetLastEdit(std::int16_t index) {
  controls_.LabelAt("lblLastEdit").SetText(QString::number(index));
}

void RangeChoosers::ShowLinks(std::int16_t index) {
  const bool isRange = !List(index).CurrentText().empty();
  controls_.LabelAt("lblOr", index).setVisible(isRange);
  controls_.LabelAt("lblEditRange", index).setVisible(isRange);
}

}  // namespace quillon
