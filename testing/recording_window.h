#pragma once

// A window that writes down what an analysis does with it, one line a call.

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "analysis/quiet_window.h"
#include "support/number_text.h"
#include "testing/recorded_messages.h"

namespace quillon {

/// Every call is a line of the log, its name and its arguments: "ShowFrame Progress", "RaiseCell 0". Whatever the test
/// wants to happen at a call is done by `OnCall`, after its line is written.
class RecordingWindow : public QuietWindow {
 public:
  using QuietWindow::QuietWindow;

  void ShowFrame(std::string_view name) override { Note("ShowFrame", name); }
  void ClickNav(std::int16_t index) override { Note("ClickNav", std::to_string(index)); }
  void SetResultsShown(bool shown) override { Note("SetResultsShown", shown ? "true" : "false"); }
  void SetNoResultsCaption(std::string_view caption) override { Note("SetNoResultsCaption", caption); }
  void SetNoResultsUnderline(bool underline) override { Note("SetNoResultsUnderline", underline ? "true" : "false"); }
  void SetProgressMessage(std::string_view caption) override { Note("SetProgressMessage", caption); }
  void SetProgressPercent(std::string_view caption) override { Note("SetProgressPercent", caption); }
  void SetProgressBarWidth(float twips) override {
    Widths.push_back(twips);
    Note("SetProgressBarWidth", NumberText(static_cast<double>(twips)));
  }
  void RaiseCell(std::int16_t index) override { Note("RaiseCell", std::to_string(index)); }
  void HideGridBack() override { Note("HideGridBack", ""); }
  void Yield() override { Note("Yield", ""); }
  void PresentResults(const AnalysisState& /*state*/) override { Note("PresentResults", ""); }

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

  std::vector<std::string> Log;
  std::vector<float> Widths;
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
