#include <CLI/CLI.hpp>
#include <cstdint>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>

#include "support/number_text.h"
#include "tools/commands.h"

namespace quillon {
namespace {

std::string CsvOutput(const HandNumbers& hands) {
  std::string text = "hand";
  for (std::int16_t column = 0; column < kHandClassCount; ++column)
    text.append(",").append(HandLabel(column));
  text += '\n';
  for (std::int16_t row = 0; row < kHandClassCount; ++row) {
    text += HandLabel(row);
    for (const double equity : hands.Equities(row))
      text.append(",").append(NumberText(equity));
    text += '\n';
  }
  return text;
}

std::string JsonOutput(const HandNumbers& hands) {
  nlohmann::ordered_json labels;
  for (std::int16_t row = 0; row < kHandClassCount; ++row)
    labels.push_back(HandLabel(row));
  std::string text = "{\"hands\": " + labels.dump() + ",\n\"equities\": [";
  for (std::int16_t row = 0; row < kHandClassCount; ++row)
    text.append(row == 0 ? "\n" : ",\n").append(nlohmann::json(hands.Equities(row)).dump());
  return text + "\n]}\n";
}

constexpr std::array<Format<HandNumbers>, 2> kFormats = {{
    {{"csv", "a row of labels, then each label with its equities"}, CsvOutput},
    {{"json", "the labels, and the equities as an array of arrays"}, JsonOutput},
}};

}  // namespace

RunCommand OfferMatrix(CLI::App& options) {
  const auto format = std::make_shared<std::string>();
  OfferFormat(options, *format, kFormats);
  return [format](const Surroundings& surroundings) {
    const CommandInputs inputs(surroundings, {});
    surroundings.Output << InFormat(kFormats, *format, inputs.Hands());
    return kDone;
  };
}

}  // namespace quillon
