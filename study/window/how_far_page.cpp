#include "study/window/how_far_page.h"

#include <utility>

namespace quillon {

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

}  // namespace quillon
