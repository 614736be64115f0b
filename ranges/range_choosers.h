#pragma once

// The four places of the main window where a range is chosen. Each has a list, `cmboRanges(index)`, whose first entry
// is blank, and under it the links "Edit this Range...", which opens the Range Manager, and "Create a New Range...",
// which opens the New Range dialog. Neither window is modal. Which chooser the dialog was opened from last is kept in
// the caption of a hidden label, `lblLastEdit`, "0" at the start; that is where its range is chosen when it ends.

#include <cstdint>
#include <string>
#include <string_view>

#include "ranges/range_lists.h"

namespace quillon {

class NewRangeWindow;

inline constexpr std::int16_t kChooserCount = 4;

/// Where the New Range dialog is opened from.
class NewRangeOpener {
 public:
  virtual ~NewRangeOpener() = default;

  /// Shows `frmNewRange`, not modally, and gives it back. Where it was closed before, or never open, it comes with an
  /// empty grid; where it was hidden, or is open, as it was.
  virtual NewRangeWindow& ShowNewRange() = 0;
};

/// What the choosers need of the main window. An index is that of a chooser, 0 to 3.
class RangeChoosers : public NewRangeOpener {
 public:
  /// `cmboRanges(index)`, whose click event is ClickChooser.
  [[nodiscard]] virtual ChooserList& Chooser(std::int16_t index) = 0;

  virtual void SetOrVisible(std::int16_t index, bool visible) = 0;  // lblOr(index)
  virtual void SetEditRangeVisible(std::int16_t index, bool visible) = 0;  // lblEditRange(index)

  [[nodiscard]] virtual std::string LastEdit() const = 0;  // lblLastEdit
  virtual void SetLastEdit(std::string_view caption) = 0;

  /// `lstRanges` of the Range Manager. Where that window is not loaded, this loads it, hidden.
  [[nodiscard]] virtual ChooserList& ManagerList() = 0;

  /// Shows `frmManager`, not modally, as it stands.
  virtual void ShowManager() = 0;
};

/// The click event of `cmboRanges(index)`, the user's or a program's: "or" and the link to edit show where the selected
/// entry is a range, and are hidden where it is blank.
void ClickChooser(RangeChoosers& choosers, std::int16_t index);

/// Selects the first entry equal to `name` in `cmboRanges(index)`; does nothing if there is none.
void SelectChooserEntry(RangeChoosers& choosers, std::int16_t index, std::string_view name);

/// The click on `lblEditRange(index)`: opens the Range Manager with the range that is chosen there selected.
void ClickEditRange(RangeChoosers& choosers, std::int16_t index);

/// The click on `lblNewRange(index)`: opens the New Range dialog for this chooser. Where it is open already, for
/// another one, its range goes to this one from now on.
void ClickNewRange(RangeChoosers& choosers, std::int16_t index);

}  // namespace quillon
