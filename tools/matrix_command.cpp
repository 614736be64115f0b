#include <CLI/CLI.hpp>
#include <cstdint>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>

#include "hand/equity_table.h"
#include "support/number_text.h"
#include "tools/commands.h"

namespace quillon {
namespace {

void PrintCsv(const HandNumbers& hands, std::ostream& output) {
  output << "hand";
  for (std::int16_t column = 0; column < kHandClassCount; ++column)
    output << ',' << HandLabel(column);
  output << '\n';
  for (std::int16_t row = 0; row < kHandClassCount; ++row) {
    output << HandLabel(row);
    for (const double equity : hands.Equities(row))
      output << ',' << NumberText(equity);
    output << '\n';
  }
}

void PrintJson(const HandNumbers& hands, std::ostream& output) {
  nlohmann::ordered_json labels;
  for (std::int16_t row = 0; row < kHandClassCount; ++row)
    labels.push_back(HandLabel(row));
  output << "{\"hands\": " << labels.dump() << ",\n\"equities\": [";
  for (std::int16_t row = 0; row < kHandClassCount; ++row)
    output << (row == 0 ? "\n" : ",\n") << nlohmann::json(hands.Equities(row)).dump();
  output << "\n]}\n";
}

}  // namespace

RunCommand OfferMatrix(CLI::App& options) {
  const auto format = std::make_shared<std::string>();
  OfferFormat(options, *format, {"csv", "json"});
  return [format](const Surroundings& surroundings) {
    const CommandInputs inputs(surroundings, {});
    if (*format == "json")
      PrintJson(inputs.Hands(), surroundings.Output);
    else
      PrintCsv(inputs.Hands(), surroundings.Output);
    return kDone;
  };
}

}  // namespace quillon
