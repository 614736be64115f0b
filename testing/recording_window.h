#pragma once

// A window that writes down what a click on an Analyze button does with it, one line a call.

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "analysis/analysis_window.h"
#include "analysis/entered_situation.h"
#include "analysis/input_screens.h"
#include "support/number_text.h"
#include "testing/recorded_messages.h"

namespace quillon {

/// Every call is a line of the log, its name and its arguments: "ShowFrame Progress", "RaiseCell 0". Whatever the test
/// wants to happen at a call is done by `OnCall`, after its line is written. The boxes and lists of every screen hold
/// what has been entered.
class RecordingWindow : public AnalysisWindow {
 public:
  explicit RecordingWindow(EnteredSituation entered) : Entered(std::move(entered)) {}

  [[nodiscard]] std::string BoxText(std::int16_t index) const override {
    const std::array<const std::string*, 3> amounts = {&Entered.Pot, &Entered.Call, &Entered.Shove};
    for (const InputScreen& screen : kInputScreens) {
      for (std::size_t i = 0; i < amounts.size(); ++i) {
        if (screen.AmountBoxes.at(i) == index) return *amounts.at(i);
      }
    }
    return "no box";
  }
  [[nodiscard]] std::string SelectedRange(std::int16_t index) const override {
    for (const InputScreen& screen : kInputScreens) {
      if (screen.RangeLists[0] == index) return Entered.Range;
      if (screen.RangeLists[1] == index) return Entered.CallingRange;
    }
    return "no list";
  }
  [[nodiscard]] MessageBoxes& Messages() override { return Boxes; }

  void ShowFrame(std::string_view name) override { Note("ShowFrame", name); }
  void ClickNav(std::int16_t index) override { Note("ClickNav", std::to_string(index)); }
  void SetResultsShown(bool shown) override { Note("SetResultsShown", shown ? "true" : "false"); }
  void SetNoResultsCaption(std::string_view caption) override { Note("SetNoResultsCaption", caption); }
  void SetNoResultsUnderline(bool underline) override { Note("SetNoResultsUnderline", underline ? "true" : "false"); }
  void SetProgressMessage(std::string_view caption) override { Note("SetProgressMessage", caption); }
  void SetProgressPercent(std::string_view caption) override { Note("SetProgressPercent", caption); }
  void SetProgressBarWidth(float twips) override {
    Note("SetProgressBarWidth", NumberText(static_cast<double>(twips)));
  }
  void RaiseCell(std::int16_t index) override { Note("RaiseCell", std::to_string(index)); }
  void HideGridBack() override { Note("HideGridBack", ""); }
  void Yield() override { Note("Yield", ""); }
  void PresentResults(const Analysis& /*analysis*/) override { Note("PresentResults", ""); }

  /// How many lines of the log start with `text`.
  [[nodiscard]] std::ptrdiff_t Count(std::string_view text) const {
    return std::count_if(Log.begin(), Log.end(), [&](const std::string& line) { return line.starts_with(text); });
  }

  /// The lines from the last one equal to `line` on, that one included; none if there is no such line.
  [[nodiscard]] std::vector<std::string> LogFromLast(std::string_view line) const {
    const auto last = std::find(Log.rbegin(), Log.rend(), line);
    if (last == Log.rend()) return {};
    return {last.base() - 1, Log.end()};
  }

  EnteredSituation Entered;
  RecordedMessages Boxes;
  std::vector<std::string> Log;
  std::function<void(const std::string& line)> OnCall;

 private:
  void Note(std::string line, std::string_view argument) {
    if (!argument.empty()) line.append(" ").append(argument);
    Log.push_back(line);
    const auto action = OnCall;  // it may put another one, or none, in its own place
    if (action) action(line);
  }
};

}  // namespace quillon
