#include "shell/screens/main_form.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QPushButton>
#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "analysis/analysis_driver.h"
#include "artwork/artwork.h"
#include "hand/equity_table.h"
#include "ranges/dialogs/form_place.h"
#include "results/results_as_range.h"
#include "shell/field_help.h"
#include "shell/start_up.h"
#include "shell/user_guide.h"
#include "study/hand_order.h"
#include "toolkit/browser.h"
#include "toolkit/form_keys.h"
#include "toolkit/picture.h"
#include "toolkit/placement.h"
#include "toolkit/popup_menu.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

constexpr QKeyCombination kSaveSituationKey = Qt::CTRL | Qt::Key_S;
constexpr QKeyCombination kOpenSituationKey = Qt::CTRL | Qt::Key_O;
constexpr QKeyCombination kStudyKey = Qt::CTRL | Qt::Key_T;

// The design's own size applies from the start: screens are fitted to the window when shown.
MainControls BuildMainControls(QWidget& form) {
  constexpr TwipRect kScreen = main_layout::kScreenPlace;
  SetPlace(form, {.Left = 0, .Top = 0, .Width = kScreen.Left + kScreen.Width, .Height = kMainWindowHeight});
  form.setPalette(QPalette(Qt::white));
  InitArtwork();
  // The icon of every window, including boxes and dialogs.
  QApplication::setWindowIcon(ArtworkIcon(QStringLiteral("icon")));
  return MainControls(form);
}

// For a control that begins no higher than the other.
bool IsLeftOnTheSameLine(const QWidget& one, const QWidget& other) {
  return one.y() <= other.geometry().bottom() && one.x() < other.x();
}

// The tab stops of a table: from top to bottom, and within a line from left to right. On a screen with an Analyze
// button, the boxes and that button come first, the links after it.
std::vector<QWidget*> TabStopsOf(const ControlTable& table, const FormControls& controls) {
  std::vector<QWidget*> stops;
  bool leadsToAnalyze = false;
  for (const ControlRow& row : table.Rows) {
    QWidget& control = controls.At(row);
    const bool isLinkAtTimes = row.Name == "lblNoResults";
    if (control.focusPolicy() != Qt::NoFocus || isLinkAtTimes) stops.push_back(&control);
    leadsToAnalyze = leadsToAnalyze || row.Use == ControlUse::kFocusLink;
  }
  std::ranges::sort(stops, {}, [](const QWidget* control) { return control->y(); });
  for (auto next = stops.begin(); next != stops.end(); ++next) {
    for (auto at = next; at != stops.begin() && IsLeftOnTheSameLine(**at, **std::prev(at)); --at)
      std::iter_swap(at, std::prev(at));
  }
  if (leadsToAnalyze) {
    std::stable_partition(stops.begin(), stops.end(), [](const QWidget* control) {
      const auto* ours = qobject_cast<const Control*>(control);
      return ours == nullptr || ours->Use() != ControlUse::kLink;
    });
  }
  return stops;
}

std::int16_t ToIndex(qint16 index) {
  return static_cast<std::int16_t>(index);
}

}  // namespace

MainForm::MainForm(Surroundings surroundings)
    : around_(std::move(surroundings)),
      controls_(BuildMainControls(*this)),
      navigation_(*this, controls_),
      grid_(controls_, controls_.FrameAt("frameContent", kGridScreen), around_.Shift, nullptr),
      dialogs_(*this, controls_, AroundDialogs()),
      results_(controls_, grid_),
      hover_(controls_, grid_),
      boxes_(controls_, around_.Messages, [this] { results_.SetResultsShown(false); }),
      report_(controls_),
      about_(controls_, {.Folder = around_.Folder,
                         .Messages = around_.Messages,
                         .Ask = around_.Ask,
                         .Web = around_.Web,
                         .Clock = around_.Clock}),
      image_(*this, controls_, around_.Messages, around_.Folder),
      study_(dialogs_, AroundDialogs()),
      menu_({.Form = *this,
             .State = state_,
             .Image = image_,
             .Messages = around_.Messages,
             .Folder = around_.Folder,
             .ShowHowFar = [this](std::int16_t hand) { ShowStudy(StudyTopic::kHowFar, hand); },
             .ShowInReport = [this](std::int16_t hand) { ShowInReport(hand); }}),
      analysis_({.Controls = controls_,
                 .Amounts = boxes_,
                 .Choosers = dialogs_.Choosers(),
                 .Grid = grid_,
                 .Screens = navigation_,
                 .ClickNav = [this](std::int16_t link) { ClickNav(link); },
                 .Results = results_,
                 .Finished = [this](const Analysis& analysis) { study_.Finish(analysis); },
                 .Boxes = around_.Messages,
                 .Marks = around_.Marks}),
      situations_({.Form = *this,
                   .Inputs = analysis_,
                   .Amounts = boxes_,
                   .Choosers = dialogs_.Choosers(),
                   .Screens = navigation_,
                   .ClickNav = [this](std::int16_t link) { ClickNav(link); },
                   .Messages = around_.Messages,
                   .Ask = around_.Ask,
                   .Folder = around_.Folder}),
      zoom_(*this, around_.Folder),
      stop_(BindKey(*this, Qt::Key_Escape, [this] { analysis_.Stop(state_); })) {
  // It covers the cells until a run raises them one by one.
  controls_.PictureAt("imgGridBack").raise();
  focusMark_.StayBehind(controls_.FrameAt("frameHover"));
  BindSidePanel();
  BindScreens();
  BindGrid();
  BindDetails();
  BindAbout();
  BindKeys();
  OrderTabs();
}

DialogSurroundings MainForm::AroundDialogs() const {
  return {.Folder = around_.Folder,
          .Messages = around_.Messages,
          .Ask = around_.Ask,
          .Shift = around_.Shift,
          .BestFirst = [] { return HandsBestFirst(HandNumbers()); }};
}

void MainForm::Start() {
  PrepareFolders(around_.Folder);
  zoom_.Start();  // before the dialogs are loaded, whose places depend on their sizes
  ShowAboutContent();
  LoadStartupState();
  show();
  about_.CheckForUpgrade();
  LoadEquityTable();
}

void MainForm::closeEvent(QCloseEvent* event) {
  event->accept();
  hide();
  // All at once: each separate write would wait for the lock again if another copy of the program holds it.
  std::vector<IniSetting> settings = PlaceSettings(kMainSection, *this);
  std::ranges::move(BoxTextSettings(boxes_.Texts()), std::back_inserter(settings));
  std::ranges::move(study_.PlaceSettings(), std::back_inserter(settings));
  WriteIniValues(settings, around_.Folder);
  around_.EndProcess();
}

void MainForm::contextMenuEvent(QContextMenuEvent* event) {
  // A menu would swallow the release of the button, which would then stay pressed.
  if (QGuiApplication::mouseButtons().testFlag(Qt::LeftButton)) return;
  PopUpMenu(*this, event->globalPos(),
            {{.Text = QStringLiteral("Save situation..."),
              .Action = [this] { situations_.Save(); },
              .Key = kSaveSituationKey,
              .Enabled = situations_.CanSave()},
             {.Text = QStringLiteral("Open situation..."),
              .Action = [this] { situations_.Open(state_); },
              .Key = kOpenSituationKey},
             {},
             {.Text = ToQt(kStudyTitle), .Action = [this] { study_.Show(); }, .Key = kStudyKey}});
}

void MainForm::ShowAboutContent() {
  const Frame& about = navigation_.ShowFrame(kAboutScreen);
  setWindowTitle(ToQt(MainWindowTitle()));
  // Intentional: the list is still empty, so this is always 0, and it is never set again.
  controls_.LabelAt("lblNumRanges").SetText(QString::number(controls_.Get<QComboBox>("cmboRanges", 0).count()));

  Frame& content = controls_.FrameAt("frameAboutContent");
  const TwipRect screen = PlaceOf(about);
  SetPlace(content, {.Left = 0, .Top = kAboutContentTop, .Width = screen.Width, .Height = screen.Height});
  content.show();
}

void MainForm::LoadStartupState() {
  boxes_.Restore(StoredBoxTexts(controls_.CountOf("txtNumber"), around_.Folder));
  dialogs_.RefreshLists();
  results_.SetResultsShown(false);
  // The first screen still has the design's width; any that has been shown is as wide as the window was.
  const float designed = PlaceOf(controls_.FrameAt("frameContent", 0)).Width;
  const TwipSize size = MainWindowSize(navigation_.PanelPlace(), designed);
  SetPlace(*this, {.Left = 0, .Top = 0, .Width = size.Width, .Height = size.Height});
  RestorePlace(*this, kMainSection, around_.Folder);
  for (const std::string_view type : kReportFormTexts)
    controls_.Get<QComboBox>("cmboOutputType").addItem(ToQt(type));
  navigation_.ClickLogo();
  auto& hands = controls_.Get<QComboBox>("cmbo169");
  for (const std::string& entry : HandListEntries())
    hands.addItem(ToQt(entry));
  hands.setCurrentIndex(-1);  // nothing is picked yet, not even "None"
}

// "Details" always opens with a new report in the first form.
void MainForm::ClickNav(std::int16_t link) {
  dialogs_.RefreshLists();
  navigation_.OpenLink(link);
  if (link != kDetailsNav) return;
  controls_.Get<QComboBox>("cmboOutputType").setCurrentIndex(0);
  report_.Build(state_);
}

// Clicks on "Details", "2+2" and the hand.
void MainForm::ShowInReport(std::int16_t hand) {
  ClickNav(kDetailsNav);
  controls_.Get<QComboBox>("cmboOutputType").setCurrentIndex(static_cast<int>(ReportForm::kForum));
  report_.Build(state_);
  controls_.Get<QComboBox>("cmbo169").setCurrentText(ToQt(HandLabel(hand)));
  report_.AddHand(state_, HandLabel(hand));
}

void MainForm::OnClick(MainControls::Key<Control> key, std::int16_t index, std::function<void()> action) {
  connect(&controls_.Get<Control>(key, index), &Control::Clicked, this, std::move(action));
}

void MainForm::BindSidePanel() {
  for (std::int16_t i = 0; i < controls_.CountOf("lblNav"); ++i) {
    OnClick("lblNav", i, [this, i] { ClickNav(i); });
    connect(&controls_.LabelAt("lblNav", i), &Control::MouseMoved, this, [this, i] { navigation_.HoverLink(i); });
  }
  connect(&controls_.PictureAt("imgBack"), &Control::MouseMoved, this, [this] { navigation_.HoverPanel(); });
  OnClick("picLogo", kNoIndex, [this] { navigation_.ClickLogo(); });
  OnClick("lblNoResults", kNoIndex,
          [this] { ClickNoResults(FromQt(controls_.LabelAt("lblNoResults").Text()), analysis_); });

  OnClick("lblRangeManager", kNoIndex, [this] { dialogs_.ShowManager(); });
  const Label& manager = controls_.LabelAt("lblRangeManager");
  Shape& border = controls_.ShapeAt("shapeRangeManager");
  connect(&manager, &Control::Pressed, &border, [&border] { border.SetLineStyle(LineStyle::kDotted); });
  connect(&manager, &Control::Released, &border, [&border] { border.SetLineStyle(LineStyle::kSolid); });
}

void MainForm::BindScreens() {
  for (std::int16_t i = 0; i < controls_.CountOf("frameContent"); ++i) {
    connect(&controls_.FrameAt("frameContent", i), &Control::MouseMoved, this, [this] { hover_.Hide(); });
  }
  for (std::int16_t i = 0; i < controls_.CountOf("cmdPreflopEV"); ++i) {
    OnClick("cmdPreflopEV", i, [this, i] { Run(i); });
  }
  for (std::int16_t i = 0; i < controls_.CountOf("lblWhatsThis"); ++i) {
    OnClick("lblWhatsThis", i,
            [this, i] { ShowFieldHelp(FromQt(controls_.LabelAt("lblWhatsThis", i).toolTip()), around_.Messages); });
  }
  OnClick("lblStopCalc", kNoIndex, [this] { analysis_.Stop(state_); });
}

void MainForm::BindGrid() {
  connect(&grid_, &FormCardGrid::CellHovered, this,
          [this](qint16 index) { hover_.ShowForMouse(ToIndex(index), state_); });
  connect(&grid_, &FormCardGrid::CellReached, this,
          [this](qint16 index) { hover_.ShowForKeyboard(ToIndex(index), state_); });
  connect(&grid_, &FormCardGrid::CellLeft, this, [this] { hover_.LeaveWithKeyboard(); });
  connect(&grid_, &FormCardGrid::MenuWanted, this,
          [this](qint16 index, const QPoint& place) { menu_.Show(ToIndex(index), place); });
  OnClick("imgSave", kNoIndex, [this] { image_.Save(); });
  OnClick("imgSaveAsRange", kNoIndex, [this] {
    if (state_.HandInfo.empty()) return;
    dialogs_.ShowNewRange().Propose(ProfitableHands(state_.HandInfo));
  });
}

void MainForm::BindDetails() {
  connect(&controls_.Get<QComboBox>("cmboOutputType"), &QComboBox::activated, this, [this] { report_.Build(state_); });
  const auto& hands = controls_.Get<QComboBox>("cmbo169");
  connect(&hands, &QComboBox::activated, this,
          [this, &hands] { report_.AddHand(state_, FromQt(hands.currentText())); });
}

void MainForm::BindAbout() {
  for (const std::int16_t i : {std::int16_t{0}, std::int16_t{3}}) {
    OnClick("lblLink", i, [this, i] { about_.ClickLink(controls_.LabelAt("lblLink", i)); });
  }
  auto& upgrade = controls_.Get<QCheckBox>("chkUpgrade");
  // A click can leave the third state but never enter it.
  connect(&upgrade, &QCheckBox::pressed, &upgrade, [&upgrade] { upgrade.setTristate(false); });
  connect(&upgrade, &QCheckBox::stateChanged, this, [this] { about_.ClickUpgrade(); });
  connect(&controls_.Get<QPushButton>("cmdSendFeedback"), &QPushButton::clicked, this,
          [this] { about_.SendFeedback(); });
}

void MainForm::BindKeys() {
  for (std::int16_t i = 0; i < controls_.CountOf("lblNav"); ++i)
    BindPress(controls_.LabelAt("lblNav", i), DigitKey(i));
  BindPress(controls_.LabelAt("lblRangeManager"), Qt::CTRL | Qt::Key_R);
  for (std::int16_t i = 0; i < controls_.CountOf("cmdPreflopEV"); ++i) {
    for (const Qt::Key enter : kEnterKeys)
      BindPress(controls_.PictureAt("cmdPreflopEV", i), Qt::CTRL | enter);
  }
  stop_.setEnabled(false);

  BindKey(*this, kSaveSituationKey, [this] { situations_.Save(); });
  BindKey(*this, kOpenSituationKey, [this] { situations_.Open(state_); });
  BindKey(*this, Qt::CTRL | Qt::Key_W, [this] { close(); });
  BindKey(
      *this, kStudyKey, [this] { study_.Show(); }, Qt::ApplicationShortcut);
  BindKey(
      *this, Qt::CTRL | Qt::Key_Q, [this] { close(); }, Qt::ApplicationShortcut);
  BindKey(
      *this, Qt::Key_F1, [this] { ShowUserGuide(); }, Qt::ApplicationShortcut);
}

// A run may be requested, and refused, while another is running.
void MainForm::Run(std::int16_t button) {
  const bool wasRunning = stop_.isEnabled();
  stop_.setEnabled(true);
  RunAnalysis(state_, button, analysis_, around_.Folder);
  stop_.setEnabled(wasRunning);
}

void MainForm::ShowUserGuide() {
  const std::filesystem::path& guide = around_.UserGuide;
  OpenInBrowser(AddressOfFile(guide), [this, guide] { around_.Messages.Show(NoUserGuideMessage(guide)); });
}

// The side panel comes first. Initially no control has the focus: the window keeps it.
void MainForm::OrderTabs() {
  std::vector<QWidget*> order = {this};
  for (const ControlTable& table : main_layout::kTables) {
    for (QWidget* stop : TabStopsOf(table, controls_)) {
      order.push_back(stop);
      for (std::int16_t i = 1; stop == &controls_.LabelAt("lblCards", 0) && i < kHandClassCount; ++i)
        order.push_back(&controls_.LabelAt("lblCards", i));
    }
  }
  quillon::OrderTabs(order);
}

}  // namespace quillon
