#include "tests/window_journey.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <vector>

#include "analysis/analysis_driver.h"
#include "hand/equity_table.h"
#include "ranges/dialogs/manager_layout.h"
#include "ranges/dialogs/new_range_layout.h"
#include "ranges/range_lists.h"
#include "results/results_grid.h"
#include "shell/screens/main_layout.h"
#include "testing/recorded_messages.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

// What a scenario's input screen is reached by, and what it asks for.
struct InputScreen {
  std::string_view Link;
  std::string_view Button;
  std::int16_t PotBox;  // the call and the shove are the next ones
  std::int16_t RangeList;  // the calling range is the next one
};

constexpr std::array kInputScreens = {
    InputScreen{"lblNav(0)", "cmdPreflopEV(0)", 0, 0},
    InputScreen{"lblNav(1)", "cmdPreflopEV(1)", 2, 1},
    InputScreen{"lblNav(2)", "cmdPreflopEV(2)", -1, 3},
};

const InputScreen& ScreenOf(std::int16_t button) {
  return kInputScreens.at(static_cast<std::size_t>(button));
}

std::string Indexed(std::string_view name, std::int16_t index) {
  return ObjectName(name, index);
}

}  // namespace

const FormPlan& MainPlan() {
  static const FormPlan kPlan(MainLayout());
  return kPlan;
}

const FormPlan& ManagerPlan() {
  static const FormPlan kPlan(ManagerLayout());
  return kPlan;
}

const FormPlan& NewRangePlan() {
  static const FormPlan kPlan(NewRangeLayout());
  return kPlan;
}

AnalysisState StateAfter(std::int16_t button, const Situation& situation, const ProgramFolder& folder) {
  LoadEquityTable();
  RecordedMessages messages;
  QuietWindow window(situation, messages);
  AnalysisState state;
  RunAnalysis(state, button, window, folder);
  return state;
}

void WindowJourney::TearDown() {
  if (!HasFailure()) return;
  const fs::path folder = QUILLON_FAILED_SCREENS_FOLDER;
  fs::create_directories(folder);
  std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
  std::ranges::replace(name, '/', '_');
  const fs::path file = folder / (name + ".png");
  if (Session().Picture().save(QString::fromStdString(file.string()))) {
    ADD_FAILURE() << "The screen at the end is in " << file;
  }
}

void WindowJourney::StartProgram() {
  session_.Start();
  main_ = session_.WaitForWindow(kMainTitle);
}

void WindowJourney::StartProgramWithRanges() {
  session_.AddExampleRanges();
  StartProgram();
}

int WindowJourney::CloseProgram() {
  session_.Press({"alt+F4"});
  return session_.WaitForEnd();
}

QRect WindowJourney::OnScreen(const Window& window, const FormPlan& plan, std::string_view control) const {
  const QRect place = plan.Place(control);
  const int scale = Session().Screen().Scale;
  return {window.Place.topLeft() + place.topLeft() * scale, place.size() * scale};
}

void WindowJourney::Fill(std::int16_t box, std::string_view text) const {
  Click(Indexed("txtNumber", box));
  Session().Press({"ctrl+a", "Delete"});
  if (!text.empty()) Session().Type(text);
}

// The mouse goes away from the open list, which would otherwise select the entry under it. A list that is
// still open when the next click comes swallows it.
void WindowJourney::TakeFromList(std::string_view control, const std::vector<std::string>& keys) const {
  const std::size_t windows = Session().WindowCount();
  Click(control);
  Session().WaitUntil("the list is open", [&] { return Session().WindowCount() == windows + 1; });
  Session().PutMouseAside();
  Session().Press(keys);
  Session().Press({"Return"});
  Session().WaitUntil("the list is closed", [&] { return Session().WindowCount() == windows; });
}

// Counted from the first entry, the empty one: a search by letters would depend on how fast they are typed.
void WindowJourney::Choose(std::int16_t list, std::string_view range) const {
  const std::vector<std::string> files = RangeFolderEntries(Session().Program());
  const auto wanted = std::ranges::find(files, std::string(range) + ".txt");
  if (wanted == files.end()) throw std::invalid_argument("there is no range called " + std::string(range));
  std::vector<std::string> keys = {"Home"};
  keys.resize(static_cast<std::size_t>(wanted - files.begin()) + 2, "Down");
  TakeFromList(Indexed("cmboRanges", list), keys);
}

std::string WindowJourney::BoxText(std::int16_t box) const {
  Click(Indexed("txtNumber", box));
  return Session().CopyAllText();
}

void WindowJourney::FillIn(std::int16_t button, const Situation& situation) const {
  const InputScreen& screen = ScreenOf(button);
  Click(screen.Link);
  if (button != kEquityRun) {
    Fill(screen.PotBox, situation.Pot);
    Fill(static_cast<std::int16_t>(screen.PotBox + 1), situation.Call);
  }
  if (button == kRaiseRun) Fill(static_cast<std::int16_t>(screen.PotBox + 2), situation.Shove);
  if (!situation.Range.empty()) Choose(screen.RangeList, situation.Range);
  if (!situation.CallingRange.empty()) {
    Choose(static_cast<std::int16_t>(screen.RangeList + 1), situation.CallingRange);
  }
}

void WindowJourney::Analyze(std::int16_t button, const Situation& typed, const Situation& meant) const {
  FillIn(button, typed);
  const GridColorTable expected = GridColors(StateAfter(button, meant, Session().Program()));
  Click(ScreenOf(button).Button);
  Session().WaitUntil("the grid shows the colours of the analysis", [&] { return CellColors() == expected; });
  Session().PutMouseAside();
}

void WindowJourney::AnalyzeAndHoldUp(std::int16_t button) {
  constexpr int kTries = 20;
  for (int tries = 0; tries < kTries; ++tries) {
    if (HoldUpOneRun(button)) return;
    Session().Running().LetGoOn();
    Session().WaitUntil("the run is over", [&] { return IsSelected("lblNav(3)"); });
    Click(ScreenOf(button).Link);
  }
  throw std::runtime_error("no run was ever seen under way");
}

bool WindowJourney::HoldUpOneRun(std::int16_t button) {
  constexpr int kFrom = 33;
  constexpr int kUpTo = 90;
  const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(5);
  // The click waits until the eyes are on the bar.
  Session().Running().HoldUp();
  Click(ScreenOf(button).Button);
  Session().Running().LetGoOn();
  while (!BarReaches(kFrom) && std::chrono::steady_clock::now() < limit) {
  }
  Session().Running().HoldUp();
  return BarReaches(kFrom) && !BarReaches(kUpTo);
}

// The selection bar begins left of the links.
bool WindowJourney::IsSelected(std::string_view link) const {
  constexpr QRgb kSelectionColor = qRgb(0xC5, 0xE3, 0xBF);
  return Session().Color({Main().Place.left() + 2, OnScreen(link).center().y()}) == kSelectionColor;
}

bool WindowJourney::BarReaches(int percent) const {
  constexpr QRgb kBarColor = qRgb(0x1B, 0x56, 0xBA);
  const QRect bar = OnScreen("picProgBar");
  return Session().Color({bar.left() + bar.width() * percent / 100, bar.center().y()}) == kBarColor;
}

// The text is in the upper half, to the right of the icon, and takes the keyboard when it is clicked.
std::string WindowJourney::MessageText(const Window& box) const {
  const int line = 18 * Session().Screen().Scale;
  Session().ClickAt({box.Place.center().x(), box.Place.top() + line});
  return Session().CopyAllText();
}

void WindowJourney::Answer(const Window& box, const std::vector<std::string>& keys) const {
  Session().Press(keys);
  Session().WaitUntilGone(box);
}

GridColorTable WindowJourney::CellColors(const Window& window, const FormPlan& plan) const {
  const int scale = Session().Screen().Scale;
  GridColorTable colors{};
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const QRect square = OnScreen(window, plan, Indexed("shapeCardBack", index));
    const QRgb color = Session().Color({square.center().x(), square.top() + 3 * scale});
    colors.at(static_cast<std::size_t>(index)) = MakeRgb(qRed(color), qGreen(color), qBlue(color));
  }
  return colors;
}

}  // namespace quillon
