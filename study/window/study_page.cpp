#include "study/window/study_page.h"

#include "analysis/scenarios.h"

namespace quillon {

std::optional<QString> StudyPage::WhyNothing(const StudySituation& situation) const {
  if (situation.Asked.Mode == AnalysisMode::kNone) {
    return QStringLiteral(
        "No analysis has finished yet. Fill in Preflop Call or Preflop Raise in the main window and click Analyze; "
        "then this page shows what follows from it.");
  }
  if (ScenarioOf(situation.Asked.Mode).HasExpectedValue()) return std::nullopt;
  return QStringLiteral(
      "\"Equity Only\" asks for no amounts, so nothing is won or lost here. Analyze a Preflop Call or a "
      "Preflop Raise.");
}

}  // namespace quillon
