// What a player waits for in the window: from a click on Analyze to the painted grid, from a mouse move to the painted
// hover panel, from a click on Details to the written report, from opening a page of the study window to the page, and
// the creation of the whole window. It is a real window on whatever platform Qt is given; bench/window.sh runs this on
// a virtual screen.

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>

#include "ranges/dialogs/range_dialogs.h"
#include "shell/screens/main_form.h"
#include "study/window/study_work.h"
#include "testing/range_texts.h"
#include "testing/temporary_program.h"
#include "toolkit/application.h"

namespace quillon {
namespace {

class NoBoxes : public MessageBoxes {
 public:
  MessageAnswer Show(const Message& message) override {
    std::cerr << message.title << ": " << message.text << "\n";
    std::exit(EXIT_FAILURE);
  }
};

// Counts the paint events of a widget.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count_;
    return false;
  }
  void WaitForNext() const {
    for (const int before = count_; count_ == before;)
      QCoreApplication::processEvents();
  }
  [[nodiscard]] int Count() const { return count_; }

 private:
  int count_ = 0;
};

struct Program {
  TemporaryProgram Files;
  NoBoxes Boxes;
  ShiftWatch Shift;
  std::unique_ptr<MainForm> Window;

  Program() {
    SaveRangeText(Files.Folder(), "Everything", EveryHandAt(1));
    Window = std::make_unique<MainForm>(MainForm::Surroundings{.Folder = Files.Folder(),
                                                               .UserGuide = {},
                                                               .Messages = Boxes,
                                                               .Ask = {},
                                                               .Web = {},
                                                               .Shift = Shift,
                                                               .EndProcess = [] {}});
    Window->Start();
    QCoreApplication::processEvents();
  }

  [[nodiscard]] const MainControls& Controls() const { return Window->Controls(); }

  void FillInRaise() const {
    Controls().LabelAt("lblNav", 1).Click();
    Controls().Get<QLineEdit>("txtNumber", 2).setText(QStringLiteral("150"));
    Controls().Get<QLineEdit>("txtNumber", 3).setText(QStringLiteral("50"));
    Controls().Get<QLineEdit>("txtNumber", 4).setText(QStringLiteral("400"));
    for (const std::int16_t chooser : {std::int16_t{1}, std::int16_t{2}}) {
      Window->Dialogs().Choosers().List(chooser).SelectEntry("Everything");
    }
    QCoreApplication::processEvents();
  }
};

// One program serves all benchmarks except that of its creation. It ends before the application does.
std::unique_ptr<Program>& TheProgramPlace() {
  static std::unique_ptr<Program> place;
  return place;
}

Program& TheProgram() {
  std::unique_ptr<Program>& place = TheProgramPlace();
  if (!place) place = std::make_unique<Program>();
  return *place;
}

double ResidentMegabytes() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    if (word != "VmRSS:") continue;
    double kilobytes = 0;
    status >> kilobytes;
    return kilobytes / 1024;
  }
  return 0;
}

void ClickAnalyzeToPaintedGrid(benchmark::State& timing) {
  Program& program = TheProgram();
  program.FillInRaise();
  PaintWatch bar(program.Controls().ShapeAt("picProgBar"));
  PaintWatch grid(program.Controls().LabelAt("lblCards", 168));
  int bars = 0;
  while (timing.KeepRunning()) {
    bars = bar.Count();
    program.Controls().PictureAt("cmdPreflopEV", 1).Click();
    bars = bar.Count() - bars;
    grid.WaitForNext();
  }
  timing.counters["bar_paints"] = bars;
  timing.counters["RSS_MB"] = ResidentMegabytes();
}
BENCHMARK(ClickAnalyzeToPaintedGrid)->Unit(benchmark::kMillisecond)->MinTime(2);

void MouseMoveToPaintedPanel(benchmark::State& timing) {
  Program& program = TheProgram();
  if (program.Window->State().HandInfo.empty()) {
    program.FillInRaise();
    program.Controls().PictureAt("cmdPreflopEV", 1).Click();
  }
  program.Controls().LabelAt("lblNav", 3).Click();
  QCoreApplication::processEvents();
  PaintWatch panel(program.Controls().FrameAt("frameHover"));
  static std::int16_t index = 0;  // never the same hand twice, which would paint nothing
  while (timing.KeepRunning()) {
    Label& cell = program.Controls().LabelAt("lblCards", index);
    const QPointF at(5, 5);
    QMouseEvent move(QEvent::MouseMove, at, cell.mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&cell, &move);
    panel.WaitForNext();
    index = static_cast<std::int16_t>((index + 7) % kHandClassCount);
  }
}
BENCHMARK(MouseMoveToPaintedPanel)->Unit(benchmark::kMillisecond);

void ClickDetailsToReport(benchmark::State& timing) {
  Program& program = TheProgram();
  while (timing.KeepRunning()) {
    program.Controls().LabelAt("lblNav", 4).Click();
  }
}
BENCHMARK(ClickDetailsToReport)->Unit(benchmark::kMillisecond);

// The study window is open at another page, and switches to this one for a situation that it has not shown yet.
void AskForPage(benchmark::State& timing, StudyTopic topic, StudyTopic other) {
  Program& program = TheProgram();
  program.FillInRaise();
  program.Controls().PictureAt("cmdPreflopEV", 1).Click();
  while (timing.KeepRunning()) {
    timing.PauseTiming();
    program.Window->ShowStudy(other);
    program.Window->Study().Loaded()->Follow(program.Window->State());
    QCoreApplication::processEvents();
    auto* const page = program.Window->Study().Loaded()->Page(topic);
    const PaintWatch paints(*page);
    timing.ResumeTiming();
    program.Window->ShowStudy(topic);
    paints.WaitForNext();
    while (page->findChild<StudyWork*>() != nullptr && page->findChild<StudyWork*>()->HasWork())
      QCoreApplication::processEvents();
  }
}

BENCHMARK_CAPTURE(AskForPage, Limits, StudyTopic::kLimits, StudyTopic::kBalanced)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(AskForPage, Curves, StudyTopic::kHowFar, StudyTopic::kLimits)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(AskForPage, Widths, StudyTopic::kWidth, StudyTopic::kLimits)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(AskForPage, Balanced, StudyTopic::kBalanced, StudyTopic::kLimits)->Unit(benchmark::kMillisecond);

void MakeTheWindow(benchmark::State& timing) {
  while (timing.KeepRunning()) {
    const Program program;
    benchmark::DoNotOptimize(program.Window.get());
  }
}
BENCHMARK(MakeTheWindow)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillon

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  quillon::Application application(argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  quillon::TheProgramPlace().reset();
}
