#pragma once

// The main window, `frmMain`: it builds the screens from their tables, owns the analysis state, and binds each
// control's events to the routine that answers them.

#include <QShortcut>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <optional>

#include "analysis/analysis_state.h"
#include "ranges/dialogs/range_dialogs.h"
#include "shell/screens/about_view.h"
#include "shell/screens/analysis_view.h"
#include "shell/screens/grid_image_view.h"
#include "shell/screens/hover_view.h"
#include "shell/screens/main_layout.h"
#include "shell/screens/navigation_view.h"
#include "shell/screens/number_box_view.h"
#include "shell/screens/report_view.h"
#include "shell/screens/results_menu.h"
#include "shell/screens/results_view.h"
#include "shell/screens/situation_view.h"
#include "shell/screens/study_view.h"
#include "shell/screens/web_client.h"
#include "shell/screens/zoom_view.h"
#include "toolkit/focus_mark.h"
#include "toolkit/form_card_grid.h"

namespace quillon {

class MainForm : public QWidget {
  Q_OBJECT

 public:
  /// What the window uses from outside. All of it outlives the window.
  struct Surroundings {
    ProgramFolder Folder;
    std::filesystem::path UserGuide;
    MessageBoxes& Messages;
    AskLine Ask;
    WebClient Web;
    ShiftWatch& Shift;
    std::function<void()> EndProcess;  // ends the program at once
    NumberMarks Marks = {};  // of the user's locale
    std::function<std::int32_t()> Clock = SystemMilliseconds;
  };

  explicit MainForm(Surroundings surroundings);

  /// Starts the program ("shell/start_up.h"). The window can be used when this returns. RunTimeError, before anything
  /// is shown, if a folder cannot be created or the ranges cannot be listed ("ranges/range_lists.h").
  void Start();

  [[nodiscard]] const MainControls& Controls() const { return controls_; }
  [[nodiscard]] AnalysisState& State() { return state_; }
  [[nodiscard]] RangeDialogs& Dialogs() { return dialogs_; }
  [[nodiscard]] const ZoomView& Zoom() const { return zoom_; }
  [[nodiscard]] const StudyView& Study() const { return study_; }

  /// Opens the study window at a page about the main window's results, and there at a hand.
  void ShowStudy(StudyTopic topic, std::optional<std::int16_t> hand = {}) { study_.ShowPage(topic, hand); }

 protected:
  /// On closing, the window is hidden, its place, all box texts as they are (even unevaluated sums and empty ones) and
  /// the study window's place are stored, and the process ends. No other window is asked; an analysis stops.
  void closeEvent(QCloseEvent* event) override;

  /// A right click that nothing else handles, or the menu key: a menu of what the keys for situations and the study do.
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  [[nodiscard]] DialogSurroundings AroundDialogs() const;
  void ShowAboutContent();
  void LoadStartupState();
  void ClickNav(std::int16_t link);
  void ShowInReport(std::int16_t hand);
  void BindSidePanel();
  void BindScreens();
  void BindGrid();
  void BindDetails();
  void BindAbout();
  void BindKeys();
  void Run(std::int16_t button);
  void ShowUserGuide();
  void OnClick(MainControls::Key<Control> key, std::int16_t index, std::function<void()> action);
  void OrderTabs();

  Surroundings around_;
  MainControls controls_;
  AnalysisState state_;
  NavigationView navigation_;
  FormCardGrid grid_;
  RangeDialogs dialogs_;
  ResultsView results_;
  HoverView hover_;
  NumberBoxView boxes_;
  ReportView report_;
  AboutView about_;
  GridImageView image_;
  StudyView study_;
  ResultsMenu menu_;
  AnalysisView analysis_;
  SituationView situations_;
  ZoomView zoom_;
  QShortcut& stop_;  // "< Back" from any screen, during a run
  FocusMark focusMark_{*this};
};

}  // namespace quillon
