#include "tests/window_journey.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <utility>
#include <vector>

#include "analysis/input_screens.h"
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

std::string Indexed(std::string_view name, std::int16_t index) {
  return ObjectName(name, index);
}

// A start button and the link to its screen have the same index.
std::string ButtonOf(std::int16_t button) {
  return Indexed("cmdPreflopEV", button);
}
std::string LinkOf(std::int16_t button) {
  return Indexed("lblNav", button);
}

}  // namespace

const FormPlan& MainPlan() {
  static const FormPlan kPlan(main_layout::kTables);
  return kPlan;
}

const FormPlan& ManagerPlan() {
  static const FormPlan kPlan(manager_layout::kTables);
  return kPlan;
}

const FormPlan& NewRangePlan() {
  static const FormPlan kPlan(new_range_layout::kTables);
  return kPlan;
}

Analysis AnalysisOf(std::int16_t button, const EnteredSituation& situation, const ProgramFolder& folder) {
  LoadEquityTable();
  return *Analyze(SituationOf(ScreenOfButton(button).Mode, situation, folder));
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

std::string WindowJourney::Companion(std::vector<std::string> arguments) const {
  arguments.insert(arguments.end(), {"--folder", Session().Program().Path.string()});
  ProgramRun run;
  run.Program = QUILLON_CLI_PROGRAM;
  run.Arguments = std::move(arguments);
  const ProgramOutcome outcome = RunProgram(run);
  EXPECT_EQ(outcome.Status, 0) << outcome.Errors;
  return outcome.Output;
}

void WindowJourney::StartProgram() {
  session_.Start();
  main_ = session_.WaitForWindow(kMainTitle);
}

void WindowJourney::StartProgramWithRanges() {
  session_.AddExampleRanges();
  StartProgram();
}

fs::path WindowJourney::StartProgramWithRangesFrom(const std::string& folderName) {
  session_.AddExampleRanges();
  const fs::path program = session_.Program().Path;
  fs::create_directory(program / folderName);
  fs::copy(program / "Ranges", program / folderName / "Ranges");
  fs::path folder = session_.StartFromAnother(folderName);
  main_ = session_.WaitForWindow(kMainTitle);
  return folder;
}

int WindowJourney::CloseProgram() {
  session_.Press({"alt+F4"});
  return session_.WaitForEnd();
}

QRect WindowJourney::OnScreen(const Window& window, const FormPlan& plan, std::string_view control) const {
  const QRect place = plan.Place(control);
  const double scale = Session().Screen().Scale;
  return {window.Place.topLeft() + place.topLeft() * scale, place.size() * scale};
}

void WindowJourney::Fill(std::int16_t box, std::string_view text) const {
  Click(Indexed("txtNumber", box));
  Session().Press({"ctrl+a", "Delete"});
  if (!text.empty()) Session().Type(text);
}

// The mouse leaves the open list, which would otherwise select the entry under it. A list that is still open at the
// next click swallows it.
void WindowJourney::TakeFromList(std::string_view control, const std::vector<std::string>& keys) const {
  const std::size_t windows = Session().WindowCount();
  Click(control);
  Session().WaitUntil("the list is open", [&] { return Session().WindowCount() == windows + 1; });
  Session().PutMouseAside();
  Session().Press(keys);
  Session().Press({"Return"});
  Session().WaitUntil("the list is closed", [&] { return Session().WindowCount() == windows; });
}

// Counted from the first entry, the empty one: a search by letters depends on typing speed.
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

void WindowJourney::FillIn(std::int16_t button, const EnteredSituation& situation) const {
  const InputScreen& screen = ScreenOfButton(button);
  const std::array amounts = {situation.Pot, situation.Call, situation.Shove};
  const std::array ranges = {situation.Range, situation.CallingRange};
  Click(LinkOf(button));
  for (std::size_t i = 0; i < amounts.size(); ++i) {
    if (screen.AmountBoxes.at(i) != kNoControl) Fill(screen.AmountBoxes.at(i), amounts.at(i));
  }
  for (std::size_t i = 0; i < ranges.size(); ++i) {
    if (!ranges.at(i).empty()) Choose(screen.RangeLists.at(i), ranges.at(i));
  }
}

void WindowJourney::Analyze(std::int16_t button, const EnteredSituation& typed, const EnteredSituation& meant) const {
  FillIn(button, typed);
  const GridColorTable expected = GridColors(AnalysisOf(button, meant, Session().Program()));
  Click(ButtonOf(button));
  Session().WaitUntil("the grid shows the colours of the analysis", [&] { return CellColors() == expected; });
  Session().PutMouseAside();
}

void WindowJourney::AnalyzeAndHoldUp(std::int16_t button) {
  constexpr int kTries = 20;
  for (int tries = 0; tries < kTries; ++tries) {
    if (HoldUpOneRun(button)) return;
    Session().Running().LetGoOn();
    Session().WaitUntil("the run is over", [&] { return IsSelected("lblNav(3)"); });
    Click(LinkOf(button));
  }
  throw std::runtime_error("every run ended before it was seen");
}

bool WindowJourney::HoldUpOneRun(std::int16_t button) {
  constexpr int kFrom = 33;
  constexpr int kUpTo = 90;
  const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(5);
  // The click waits for the screen to be watched.
  Session().Running().HoldUp();
  Click(ButtonOf(button));
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

// The text is in the upper half, to the right of the icon, and gets the focus when clicked.
std::string WindowJourney::MessageText(const Window& box) const {
  const int line = qRound(18 * Session().Screen().Scale);
  Session().ClickAt({box.Place.center().x(), box.Place.top() + line});
  return Session().CopyAllText();
}

void WindowJourney::Answer(const Window& box, const std::vector<std::string>& keys) const {
  Session().Press(keys);
  Session().WaitUntilGone(box);
}

GridColorTable WindowJourney::CellColors(const Window& window, const FormPlan& plan) const {
  const int below = qRound(3 * Session().Screen().Scale);
  GridColorTable colors{};
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const QRect square = OnScreen(window, plan, Indexed("shapeCardBack", index));
    const QRgb color = Session().Color({square.center().x(), square.top() + below});
    colors.at(static_cast<std::size_t>(index)) = MakeRgb(qRed(color), qGreen(color), qBlue(color));
  }
  return colors;
}

}  // namespace quillon
