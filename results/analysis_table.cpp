#include "results/analysis_table.h"

#include <initializer_list>
#include <string_view>

#include "results/results_grid.h"
#include "support/number_text.h"

namespace quillon {
namespace {

std::string Row(std::initializer_list<std::string_view> cells, char separator) {
  std::string row;
  for (const std::string_view cell : cells)
    row.append(cell) += separator;
  row.back() = '\n';
  return row;
}

}  // namespace

std::string AnalysisTable(const Analysis& analysis, char separator) {
  const Scenario& scenario = ScenarioOf(analysis.Mode);
  std::string text = Row({"hand", "combos", "ev", "equity", "fold", "colour"}, separator);
  for (const auto& [hand, color] : ShownHands(analysis)) {
    const std::string value = scenario.HasExpectedValue() ? NumberText(hand.ExpectedValue) : "";
    const std::string fold = scenario.HasCallingRange ? NumberText(hand.FoldShare) : "";
    text += Row({hand.Label, std::to_string(hand.Combos), value, NumberText(hand.Equity), fold, color}, separator);
  }
  return text;
}

}  // namespace quillon
