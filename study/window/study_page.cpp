#include "study/window/study_page.h"

#include <string>
#include <vector>

#include "analysis/scenarios.h"
#include "support/joined_text.h"
#include "toolkit/text.h"

namespace quillon {

std::optional<QString> StudyPage::WhyNothing(const StudySituation& situation) const {
  std::vector<std::string> moves;
  for (const Scenario& scenario : kScenarios) {
    if (scenario.HasExpectedValue()) moves.emplace_back(scenario.Name);
  }
  const Scenario* const asked = FindRow(kScenarios, situation.Asked.Mode);
  if (asked == nullptr) {
    return ToQt(Joined({"No analysis has finished yet. Fill in ", Listed(moves),
                        " in the main window and click Analyze; then this page shows what follows from it."}));
  }
  if (asked->HasExpectedValue()) return std::nullopt;
  return ToQt(Joined({Quoted(asked->Name), " asks for no amounts, so nothing is won or lost here. Analyze ",
                      Listed(moves, [](const std::string& move) { return "a " + move; }), "."}));
}

}  // namespace quillon
