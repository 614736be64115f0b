#pragma once

// Profitable hands as a proposal for a new range: a click on `imgSaveAsRange` shows the New Range dialog, toggles their
// cells and focuses the name ("ranges/dialogs/new_range_form.h"). Nothing is named or saved yet, and the dialog's
// chooser is unchanged. Without results nothing happens.
//
// The cells are toggled as by clicks: at half weight if the dialog's `chkHalf` is checked, in groups if Shift was
// pressed, and back to unselected if they were selected, so that a second click on the picture undoes the first.

#include <cstdint>
#include <string_view>
#include <vector>

namespace quillon {

/// The classes of a results table with an expected value above 0, in class index order. A class at exactly 0 is left
/// out, although the grid is green there and the reports count it as profitable. None after "Equity Only".
[[nodiscard]] std::vector<std::int16_t> ProfitableHands(std::string_view handInfo);

}  // namespace quillon
