#pragma once

// The main window, `frmMain`: it builds the screens from their tables, owns the analysis state, and binds each
// control's events to the routine that answers them.

#include <QComboBox>
#include <QWidget>
#include <array>
#include <functional>
#include <memory>

#include "analysis/analysis_state.h"
#include "ranges/dialogs/form_card_grid.h"
#include "ranges/dialogs/form_list.h"
#include "ranges/dialogs/range_forms.h"
#include "shell/navigation.h"
#include "shell/screens/about_view.h"
#include "shell/screens/analysis_view.h"
#include "shell/screens/grid_image_view.h"
#include "shell/screens/hover_view.h"
#include "shell/screens/number_box_view.h"
#include "shell/screens/report_view.h"
#include "shell/screens/results_view.h"
#include "shell/screens/start_view.h"
#include "shell/web_client.h"
#include "toolkit/form_builder.h"

namespace quillon {

class MainForm : public QWidget, public RangeFormsOwner {
  Q_OBJECT

 public:
  /// What the window finds round it. All of it outlives the window.
  struct Surroundings {
    ProgramFolder Folder;
    MessageBoxes& Messages;
    InputBoxes& Inputs;
    WebClient& Web;
    ShiftWatch& Shift;
    std::function<void()> EndProcess;  // ends the program at once
    std::function<std::int32_t()> Clock = {};  // in milliseconds; by default the system's
  };

  explicit MainForm(Surroundings surroundings);

  /// The start of the program ("shell/start_up.h"), with the dialogs that belong to it. The window can be used when
  /// this comes back.
  void Start(RangeForms& dialogs);

  [[nodiscard]] FormControls& Controls() { return controls_; }
  [[nodiscard]] AnalysisState& State() { return state_; }

  void RefreshLists() override;
  void SetDefaultPointer() override { unsetCursor(); }
  [[nodiscard]] ChooserList& Chooser(std::int16_t index) override;
  void SetOrVisible(std::int16_t index, bool visible) override;
  void SetEditRangeVisible(std::int16_t index, bool visible) override;
  [[nodiscard]] std::string LastEdit() const override;
  void SetLastEdit(std::string_view caption) override;
  [[nodiscard]] ChooserList& ManagerList() override { return dialogs_->ManagerList(); }
  void ShowManager() override { dialogs_->ShowManager(); }
  NewRangeWindow& ShowNewRange() override { return dialogs_->ShowNewRange(); }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BindSidePanel();
  void BindScreens();
  void BindNumberBoxes();
  void BindChoosers();
  void BindGrid();
  void BindDetails();
  void BindAbout();
  void BindShortcuts();
  void OnClick(std::string_view name, std::int16_t index, std::function<void()> action);
  void OrderTabs();

  Surroundings around_;
  FormControls controls_;
  AnalysisState state_;
  NavigationState navigation_;
  FormCardGrid grid_;
  std::array<std::unique_ptr<FormChooser>, kChooserCount> choosers_;
  std::array<ChooserList*, kChooserCount> chooserLists_{};
  ResultsView results_;
  HoverView hover_;
  NumberBoxView boxes_;
  ReportView report_;
  AboutView about_;
  GridImageView image_;
  StartView start_;
  AnalysisView analysis_;
  RangeForms* dialogs_ = nullptr;
  std::string imageName_;  // of the grid image that was saved last
};

}  // namespace quillon
