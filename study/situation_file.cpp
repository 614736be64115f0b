#include "study/situation_file.h"

#include <algorithm>
#include <iterator>
#include <nlohmann/json.hpp>
#include <utility>

#include "study/batch_line.h"
#include "support/joined_text.h"
#include "support/utf8.h"

namespace quillon {
namespace {

using Json = nlohmann::ordered_json;

bool IsBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

std::string_view TakeLine(std::string_view& bytes) {
  const std::size_t end = std::min(bytes.find('\n'), bytes.size());
  const std::string_view line = bytes.substr(0, end);
  bytes.remove_prefix(std::min(end + 1, bytes.size()));
  return line;
}

// A notation may fill a whole line.
std::string Shown(std::string_view notation) {
  constexpr std::size_t kShown = 100;
  const std::string_view start = WholeCharacters(notation, kShown);
  return Joined({start, start.size() < notation.size() ? "..." : ""});
}

std::string TakeRange(const BatchLine& line, BatchKey nameKey, BatchKey handsKey, std::vector<std::string>& notTaken) {
  if (line[handsKey]) {
    notTaken.push_back(Joined(
        {QuotedKey(handsKey), " is a notation, and the list takes only ranges with a name: ", Shown(*line[handsKey])}));
  } else if (!line[nameKey]) {
    notTaken.push_back(Missing(nameKey, handsKey));
  }
  return line[nameKey].value_or(std::string());
}

}  // namespace

SituationText TextOfSituation(const ScreenSituation& situation) {
  const Scenario& scenario = ScenarioOf(situation.Mode);
  const EnteredSituation& entered = situation.Entered;
  Json line;
  const auto put = [&line](BatchKey key, std::string_view text) { line[std::string(kBatchKeys.at(key))] = text; };
  put(kModeKey, scenario.Command);
  for (std::size_t i = 0; i < scenario.AmountCount; ++i)
    put(kAmountKeys.at(i), entered.*kEnteredAmounts.at(i));
  put(kRangeKey, entered.Range);
  if (scenario.HasCallingRange) put(kCallingRangeKey, entered.CallingRange);

  SituationText text{line.dump(-1, ' ', false, Json::error_handler_t::replace), {}};
  const BatchLine read = ReadBatchLine(text.Line);
  if (!read.Faults.empty()) text.Fault = read.Faults.front();
  text.Line += '\n';
  return text;
}

std::variant<ReadSituation, std::string> SituationOfText(std::string_view bytes) {
  std::string_view text;
  while (IsBlank(text) && !bytes.empty())
    text = TakeLine(bytes);
  BatchLine line = ReadBatchLine(text);
  if (!line.Broken.empty()) return std::move(line.Broken);
  const auto found = ScenarioOfLine(line);
  if (const auto* const reason = std::get_if<std::string>(&found)) return *reason;
  const Scenario& scenario = *std::get<const Scenario*>(found);

  ReadSituation read{{.Mode = scenario.Mode, .Entered = {}}, std::move(line.Faults)};
  EnteredSituation& entered = read.Situation.Entered;
  if (!IsBlank(bytes)) read.NotTaken.emplace_back("only the first line of the file is taken");
  if (line[kIdKey]) read.NotTaken.push_back(QuotedKey(kIdKey) + " has no place on a screen");
  std::ranges::move(ForeignKeys(line, scenario), std::back_inserter(read.NotTaken));
  for (std::size_t i = 0; i < scenario.AmountCount; ++i) {
    LineAmount amount = AmountOfLine(line, kAmountKeys.at(i));
    entered.*kEnteredAmounts.at(i) = std::move(amount.Text);
    if (!amount.Fault.empty()) read.NotTaken.push_back(std::move(amount.Fault));
  }
  entered.Range = TakeRange(line, kRangeKey, kHandsKey, read.NotTaken);
  if (scenario.HasCallingRange)
    entered.CallingRange = TakeRange(line, kCallingRangeKey, kCallingHandsKey, read.NotTaken);
  return read;
}

}  // namespace quillon
