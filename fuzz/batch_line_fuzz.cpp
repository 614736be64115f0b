// Lines of a batch with arbitrary bytes: each is a question or a printable refusal, and an answer is JSON with the
// line's id.

#include <cmath>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <variant>

#include "analysis/scenarios.h"
#include "fuzz/fuzz_target.h"
#include "hand/equity_table.h"
#include "study/batch.h"

namespace quillon {
namespace {

using Json = nlohmann::ordered_json;

// A folder without ranges: no name exists, and notations need none.
const Batch& TheBatch() {
  LoadEquityTable();
  static const Batch batch({"/nonexistent"}, {"best", "ev"});
  return batch;
}

void CheckQuestion(const BatchQuestion& question) {
  const Situation& asked = question.Situation;
  Require(asked.Mode != AnalysisMode::kNone, "a question has a scenario");
  for (const AmountKind& amount : kAmounts) {
    const double value = asked.Amounts.*amount.Value;
    Require(std::isfinite(value) && value >= 0, "an amount is a number that is not below 0");
  }
  Require(!asked.RangeName.empty() && !asked.RangeText.empty(), "a question has a range");
  Require(ScenarioOf(asked.Mode).HasCallingRange == !asked.CallingRangeText.empty(),
          "a question has a calling range where its scenario has one");
}

void CheckRefusal(const BatchRefusal& refusal) {
  Require(!refusal.Reason.empty(), "a refusal has a reason");
  Require(Json::accept(refusal.Id), "an id is JSON");
}

void CheckAnswer(std::string_view line, bool refused, const std::string& id) {
  constexpr int kNumber = 7;
  const BatchAnswer answer = TheBatch().Answer(line, kNumber);
  Require(answer.Line.find('\n') == std::string::npos, "an answer is one line");
  const Json object = Json::parse(answer.Line, nullptr, false);
  Require(object.is_object(), "an answer is a JSON object");
  Require(object.begin().key() == "id" && object["id"] == Json::parse(id), "an answer begins with the id of its line");
  Require(answer.Refused || !refused, "what cannot be read is refused");
  Require(answer.Refused == object.contains("error"), "a refusal has an error");
  if (answer.Refused) Require(object["line"] == kNumber, "a refusal has its line");
}

}  // namespace

void CheckInput(FuzzInput input) {
  const ChecksOfRun checks(input, 2);
  const std::string_view line = input.Rest();
  const auto reading = TheBatch().Read(line);
  const auto* const question = std::get_if<BatchQuestion>(&reading);
  if (question != nullptr) {
    CheckQuestion(*question);
    if (checks.All()) CheckAnswer(line, false, question->Id);
  } else {
    const auto& refusal = std::get<BatchRefusal>(reading);
    CheckRefusal(refusal);
    if (checks.Has(1)) CheckAnswer(line, true, refusal.Id);
  }
}

}  // namespace quillon
