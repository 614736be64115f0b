#pragma once

// Connects the study window ("study/window/study_form.h") with the main window. It is created on first use and kept,
// and is told of finished analyses.

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
  /// All arguments outlive the view.
  StudyView(RangeDialogs& ranges, DialogSurroundings surroundings)
      : ranges_(ranges), around_(std::move(surroundings)) {}

  /// Shows the window: as it is if it is open, otherwise about the last finished analysis.
  void Show();

  /// The same, but always about the last finished analysis, at a page and there at a hand.
  void ShowPage(StudyTopic topic, std::optional<std::int16_t> hand);

  /// An analysis has finished.
  void Finish(const Analysis& analysis);

  /// The window's place as settings; none while it is closed, since closing has stored them.
  [[nodiscard]] std::vector<IniSetting> PlaceSettings() const;

  /// The window; null until it is first opened.
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
