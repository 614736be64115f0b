#pragma once

// The two pages of curves ("study/window/curve_page.h").

#include "study/window/curve_page.h"
#include "study/window/study_work.h"

namespace quillon {

/// The page "How far?": the value of hands as the amount that you call, or that he has to call, goes up.
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

/// The page "Width": the share of profitable hands, and the value of some hands, as the width of the opponent's range,
/// or of his calling range, goes up. Every width is computed on its own, and the lines grow meanwhile.
class WidthPage : public CurvePage {
  Q_OBJECT

 public:
  explicit WidthPage(ProgramFolder folder, QWidget* parent = nullptr);

  [[nodiscard]] QString Title() const override { return QStringLiteral("Width"); }
  void Show(const StudySituation& situation) override;

  [[nodiscard]] StudyWork& Work() const { return work_; }

 protected:
  [[nodiscard]] StepTexts StepsFor(std::span<const std::int16_t> hands) const override;
  [[nodiscard]] std::variant<Steps, std::string> ReadSteps(const StepTexts& texts) const override;
  void Begin(const std::vector<std::int16_t>& hands, const Steps& steps) override;
  [[nodiscard]] std::vector<Figure> FiguresOf(const HandCurves& curves) const override;

 private:
  StudyWork& work_;
};

}  // namespace quillon
