#include "ranges/range_choosers.h"

namespace quillon {

void ClickChooser(RangeChoosers& choosers, std::int16_t index) {
  const bool isRange = !choosers.Chooser(index).CurrentText().empty();
  choosers.SetOrVisible(index, isRange);
  choosers.SetEditRangeVisible(index, isRange);
}

void SelectChooserEntry(RangeChoosers& choosers, std::int16_t index, std::string_view name) {
  SelectListEntry(choosers.Chooser(index), name);
}

void ClickEditRange(RangeChoosers& choosers, std::int16_t index) {
  // The name first: loading the Range Manager fills the lists anew.
  const std::string name = choosers.Chooser(index).CurrentText();
  SelectListEntry(choosers.ManagerList(), name);
  choosers.ShowManager();
}

void ClickNewRange(RangeChoosers& choosers, std::int16_t index) {
  choosers.SetLastEdit(std::to_string(index));
  choosers.ShowNewRange();
}

}  // namespace quillon
