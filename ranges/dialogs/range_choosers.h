#pragma once

// The four range choosers of the main window. Each has a list, `cmboRanges(index)`, whose first entry is blank, and
// under it the links "Edit this Range..." and "Create a New Range...". The word "or" and the link to edit are shown
// only while a range is selected. The chooser that last opened the New Range dialog is kept in the caption of a hidden
// label, `lblLastEdit`, initially "0"; that chooser selects the dialog's range. Indexes are 0 to 3.

#include <QObject>
#include <cstdint>
#include <memory>
#include <vector>

#include "analysis/scenarios.h"
#include "ranges/range_files.h"
#include "toolkit/form_builder.h"
#include "toolkit/form_list.h"

namespace quillon {

inline constexpr std::int16_t kChooserCount = [] {
  std::int16_t count = 0;
  for (const Scenario& scenario : kScenarios)
    count = static_cast<std::int16_t>(count + (scenario.HasCallingRange ? 2 : 1));
  return count;
}();

class RangeChoosers : public QObject {
  Q_OBJECT

 public:
  /// `controls` are the main window's, which outlive this.
  template <typename Controls>
  explicit RangeChoosers(const Controls& controls) : lastEdit_(controls.LabelAt("lblLastEdit")) {
    for (std::int16_t i = 0; i < kChooserCount; ++i) {
      Add(controls.template Get<QComboBox>("cmboRanges", i), controls.LabelAt("lblOr", i),
          controls.LabelAt("lblEditRange", i), controls.LabelAt("lblNewRange", i));
    }
  }

  [[nodiscard]] FormChooser& List(std::int16_t index) const { return *lists_.at(static_cast<std::size_t>(index)); }

  /// Fills the lists from the folder, in order; each keeps its range if possible. RunTimeError as of FillRangeList.
  void Refresh(const ProgramFolder& folder);

  /// The chooser that last opened the New Range dialog.
  [[nodiscard]] std::int16_t LastEdit() const;
  void SetLastEdit(std::int16_t index);

 Q_SIGNALS:
  void EditClicked(qint16 index);  // lblEditRange
  void NewClicked(qint16 index);  // lblNewRange

 private:
  void Add(QComboBox& box, Label& orWord, Label& edit, Label& make);

  Label& lastEdit_;
  std::vector<std::unique_ptr<FormChooser>> lists_;
};

}  // namespace quillon
