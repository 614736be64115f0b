#pragma once

// The base of the journeys through the window: a session with the main window, controls of the three forms found by
// name, and the card grid read from the screen. A failing journey leaves a picture of its screen.

#include <QImage>
#include <array>
#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/entered_situation.h"
#include "hand/hand_classes.h"
#include "support/rgb.h"
#include "tests/form_plan.h"
#include "tests/window_session.h"

namespace quillon {

inline constexpr std::string_view kMainTitle = "Quillon " QUILLON_VERSION;

using GridColorTable = std::array<Rgb, kHandClassCount>;

/// The three forms, by their tables.
[[nodiscard]] const FormPlan& MainPlan();
[[nodiscard]] const FormPlan& ManagerPlan();
[[nodiscard]] const FormPlan& NewRangePlan();

/// The buttons that start an analysis, by index.
inline constexpr std::int16_t kCallRun = 0;
inline constexpr std::int16_t kRaiseRun = 1;
inline constexpr std::int16_t kEquityRun = 2;

/// The journeys' entries, with the example ranges.
inline const EnteredSituation kCall = {"110", "90", "", "Button Shove", ""};
inline const EnteredSituation kRaise = {"150", "50", "400", "Button Shove", "Big Blind Call"};
inline const EnteredSituation kEquity = {"", "", "", "Tight Open", ""};

/// The same by the engine alone.
[[nodiscard]] Analysis AnalysisOf(std::int16_t button, const EnteredSituation& situation, const ProgramFolder& folder);

class WindowJourney : public testing::Test {
 protected:
  WindowJourney() : WindowJourney(Desk{}) {}
  explicit WindowJourney(Desk desk) : session_(desk) {}

  void TearDown() override;

  [[nodiscard]] WindowSession& Session() { return session_; }
  [[nodiscard]] const WindowSession& Session() const { return session_; }

  /// Starts the program and waits for its main window.
  void StartProgram();
  /// The same, with the example ranges in its folder.
  void StartProgramWithRanges();
  /// The same from a folder of that name in the program's own; returns the folder.
  std::filesystem::path StartProgramWithRangesFrom(const std::string& folderName);
  /// Closes the main window through the window manager, and waits for the end. Returns the exit status.
  int CloseProgram();

  [[nodiscard]] const Window& Main() const { return main_; }

  /// The companion's output with the ranges of the program's folder.
  [[nodiscard]] std::string Companion(std::vector<std::string> arguments) const;

  // ---- controls of a window, by their names

  /// The place of a control on the screen.
  [[nodiscard]] QRect OnScreen(const Window& window, const FormPlan& plan, std::string_view control) const;
  [[nodiscard]] QRect OnScreen(std::string_view control) const { return OnScreen(main_, MainPlan(), control); }
  void Click(std::string_view control) const { Session().ClickAt(OnScreen(control).center()); }
  void Click(const Window& window, const FormPlan& plan, std::string_view control) const {
    Session().ClickAt(OnScreen(window, plan, control).center());
  }
  [[nodiscard]] QImage Look(std::string_view control) const { return Session().Picture(OnScreen(control)); }

  /// Replaces the text of a number box.
  void Fill(std::int16_t box, std::string_view text) const;
  /// Opens a list and takes the entry that the keys lead to.
  void TakeFromList(std::string_view control, const std::vector<std::string>& keys) const;
  /// Selects the range of that name in a list, by keyboard.
  void Choose(std::int16_t list, std::string_view range) const;
  /// The text of a number box.
  [[nodiscard]] std::string BoxText(std::int16_t box) const;

  // ---- whole actions

  /// Fills in the input screen of a scenario, starting from the link in the side panel.
  void FillIn(std::int16_t button, const EnteredSituation& situation) const;
  /// The same, with a click on Analyze, up to the painted grid, which must be that of the situation `meant`.
  void Analyze(std::int16_t button, const EnteredSituation& typed, const EnteredSituation& meant) const;
  void Analyze(std::int16_t button, const EnteredSituation& situation) const { Analyze(button, situation, situation); }

  /// Clicks on Analyze on the input screen, and suspends the program between two classes, with the Progress screen
  /// visible and its bar between a third and nine tenths. Retries if a run ends before that.
  void AnalyzeAndHoldUp(std::int16_t button);

  /// A message box: its text, read by selecting and copying, and the keys that answer it.
  [[nodiscard]] std::string MessageText(const Window& box) const;
  void Answer(const Window& box, const std::vector<std::string>& keys) const;

  // ---- the card grid

  /// The colours of the cells, read at the upper edge of each, where its label has no text.
  [[nodiscard]] GridColorTable CellColors(const Window& window, const FormPlan& plan) const;
  [[nodiscard]] GridColorTable CellColors() const { return CellColors(main_, MainPlan()); }

 private:
  [[nodiscard]] bool IsSelected(std::string_view link) const;
  [[nodiscard]] bool HoldUpOneRun(std::int16_t button);
  [[nodiscard]] bool BarReaches(int percent) const;

  WindowSession session_;
  Window main_;
};

}  // namespace quillon
