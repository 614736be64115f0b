#pragma once

// The study window beside the main window ("study/window/study_form.h"). It is made at its first opening and kept; what
// it is about is told to it: analyses that have finished.

#include <QWidget>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "analysis/analysis.h"
#include "ranges/dialogs/range_dialogs.h"
#include "study/window/study_form.h"

namespace quillon {

class StudyView {
 public:
  /// All that is given outlives the view.
  StudyView(RangeDialogs& ranges, DialogSurroundings surroundings)
      : ranges_(ranges), around_(std::move(surroundings)) {}

  /// Shows the window, about the last finished analysis where it was closed or never open, and brings it up as it is
  /// where it is open.
  void Show();

  /// The same, about the last finished analysis in any case, at a page of it and there at a hand.
  void ShowPage(StudyTopic topic, std::optional<std::int16_t> hand);

  /// An analysis has finished.
  void Finish(const Analysis& analysis);

  /// Where the window is, as settings; none while it is closed, for it has stored them then.
  [[nodiscard]] std::vector<IniSetting> PlaceSettings() const;

  /// The window; null until it is opened first.
  [[nodiscard]] StudyForm* Loaded() const { return form_.get(); }

 private:
  StudyForm& Form();
  void FollowLast();

  RangeDialogs& ranges_;
  DialogSurroundings around_;
  std::optional<Analysis> finished_;
  std::unique_ptr<StudyForm> form_;
};

}  // namespace quillon
