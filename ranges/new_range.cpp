#include "ranges/new_range.h"

#include "ranges/range_names.h"
#include "ranges/range_summary.h"
#include "ranges/range_text.h"
#include "support/number_text.h"
#include "support/rounding.h"

namespace quillon {

void SumUpNewRange(NewRangeWindow& window) {
  window.SetSelectionCaption(SelectionCaption(SelectedCombos(window.Grid())));
  window.SetSummary(RangeSummary(RangeTextFromGrid(window.Grid())));
}

void ClickNewRangeCell(NewRangeWindow& window, std::int16_t index) {
  ToggleCell(window.Grid(), index);
  SumUpNewRange(window);
}

void ClickSaveRange(NewRangeWindow& window) {
  if (!window.SaveRangeChecked()) {
    window.SetRangeName(kScratchRangeName);
    window.SetRangeNameEnabled(false);
    return;
  }
  window.SetRangeNameEnabled(true);
  window.FocusRangeName();
  window.SelectWholeRangeName();
}

void TypeInRangeName(NewRangeWindow& window, const ProgramFolder& folder, int character) {
  if (character == kEnterCharacter) ClickNewRangeOk(window, folder);
}

void ClickNewRangeOk(NewRangeWindow& window, const ProgramFolder& folder) {
  const std::string name = window.RangeName();
  if (!ValidateRangeName(folder, name, window.Messages())) return;

  SaveRangeText(folder, name, RangeTextFromGrid(window.Grid()));
  window.Messages().Show({std::string(kApplicationTitle), "The range \"" + name + "\" was saved successfully!",
                          MessageIcon::kInformation, MessageButtons::kOk});
  window.RefreshLists();
  SelectChooserEntry(window.Choosers(), RoundToInt16(LeadingNumber(window.Choosers().LastEdit())), name);
  window.Close();
}

void ClickNewRangeCancel(NewRangeWindow& window) {
  window.Hide();
}

}  // namespace quillon
