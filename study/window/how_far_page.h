#pragma once

// The page "How far?": the value of hands as the amount that you call, or that he has to call, goes up.

#include "study/window/curve_page.h"

namespace quillon {

class HowFarPage : public CurvePage {
  Q_OBJECT

 public:
  explicit HowFarPage(ProgramFolder folder, QWidget* parent = nullptr);

  [[nodiscard]] QString Title() const override { return QStringLiteral("How far?"); }

 protected:
  [[nodiscard]] StepTexts StepsFor(std::span<const std::int16_t> hands) const override;
  [[nodiscard]] std::variant<Steps, std::string> ReadSteps(const StepTexts& texts) const override;
  void Begin(const std::vector<std::int16_t>& hands, const Steps& steps) override;
  [[nodiscard]] std::vector<Figure> FiguresOf(const HandCurves& curves) const override;
};

}  // namespace quillon
