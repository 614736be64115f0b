#include "results/analysis_table.h"

#include <string_view>
#include <variant>

#include "results/result_columns.h"
#include "support/number_text.h"

namespace quillon {
namespace {

std::string TextOf(std::string_view text) {
  return std::string(text);
}

std::string TextOf(double number) {
  return NumberText(number);
}

}  // namespace

std::string AnalysisTable(const Analysis& analysis, char separator) {
  const Scenario& scenario = ScenarioOf(analysis.Mode);
  std::string text;
  for (const ResultColumn& column : ResultColumns())
    text.append(column.Key) += separator;
  text.back() = '\n';
  for (const ShownHand& hand : ShownHands(analysis)) {
    for (const ResultColumn& column : ResultColumns()) {
      if (column.IsIn(scenario)) text += std::visit([](auto value) { return TextOf(value); }, column.ValueOf(hand));
      text += separator;
    }
    text.back() = '\n';
  }
  return text;
}

}  // namespace quillon
