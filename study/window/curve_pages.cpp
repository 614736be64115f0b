#include "study/window/curve_pages.h"

#include <QElapsedTimer>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

namespace quillon {
namespace {

// Long enough that drawing costs little, and short enough for a step of the work.
constexpr int kStepMilliseconds = 10;

}  // namespace

HowFarPage::HowFarPage(ProgramFolder folder, QWidget* parent) : CurvePage(std::move(folder), 1, parent) {}

StepTexts HowFarPage::StepsFor(std::span<const std::int16_t> hands) const {
  return AmountStepsFor(About(), hands);
}

std::variant<Steps, std::string> HowFarPage::ReadSteps(const StepTexts& texts) const {
  return ReadAmountSteps(About(), texts);
}

void HowFarPage::Begin(const std::vector<std::int16_t>& hands, const Steps& steps) {
  Draw(AmountCurves(About(), hands, steps));
  TellFigure();
}

std::vector<Figure> HowFarPage::FiguresOf(const HandCurves& curves) const {
  return {AmountFigure(About(), curves)};
}

WidthPage::WidthPage(ProgramFolder folder, QWidget* parent)
    : CurvePage(std::move(folder), 2, parent), work_(*new StudyWork(this)) {
  ShowBelowBoxes(work_);
}

void WidthPage::Show(const StudySituation& situation) {
  work_.Drop();
  CurvePage::Show(situation);
}

StepTexts WidthPage::StepsFor(std::span<const std::int16_t> /*hands*/) const {
  return {.From = "1", .To = "100", .Step = "1"};
}

std::variant<Steps, std::string> WidthPage::ReadSteps(const StepTexts& texts) const {
  return ReadWidthSteps(About(), texts, BestFirst());
}

void WidthPage::Begin(const std::vector<std::int16_t>& hands, const Steps& steps) {
  const auto curves = std::make_shared<HandCurves>(HandCurves{.What = "width", .Hands = hands, .Rows = {}});
  const auto step = [this, curves, steps]() -> std::optional<double> {
    QElapsedTimer watch;
    watch.start();
    const std::int64_t count = steps.Count();
    auto done = static_cast<std::int64_t>(curves->Rows.size());
    do {  // at least one, however busy the machine is: there is no figure without rows
      curves->Rows.push_back(WidthRow(About(), curves->Hands, BestFirst(), steps.Text(done)));
    } while (++done < count && watch.elapsed() < kStepMilliseconds);
    Draw(*curves);
    if (done == count) return std::nullopt;
    return static_cast<double>(done) / static_cast<double>(count);
  };
  work_.Start(QStringLiteral("Working out the widths"), step, [this] { TellFigure(); });
}

std::vector<Figure> WidthPage::FiguresOf(const HandCurves& curves) const {
  const auto figures = WidthFigures(About(), curves);
  return {figures.begin(), figures.end()};
}

}  // namespace quillon
