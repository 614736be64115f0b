#include "study/batch.h"

#include <nlohmann/json.hpp>
#include <utility>

#include "analysis/input_checks.h"
#include "ranges/range_lookup.h"
#include "results/analysis_json.h"
#include "study/hand_order.h"
#include "support/joined_text.h"
#include "support/run_time_error.h"

namespace quillon {
namespace {

using Json = nlohmann::ordered_json;

}  // namespace

// Makes a question from the values of a line, or says what is wrong.
class Batch::Reader {
 public:
  Reader(const Batch& batch, const BatchLine& line) : batch_(batch), line_(line) {}

  std::variant<BatchQuestion, BatchRefusal> Read() {
    BatchQuestion question;
    if (!ReadMode() || !ReadAmounts(question.Warning) || !ReadRanges(question)) return Refusal();
    if (const auto complaint = CheckInputs(scenario_->Mode, entered_, batch_.folder_)) {
      Fail(Joined({complaint->Title, ": ", complaint->Text}));
      return Refusal();
    }
    question.Id = line_.Id;
    question.Situation = SituationOf(scenario_->Mode, entered_, batch_.folder_);
    return question;
  }

 private:
  [[nodiscard]] BatchRefusal Refusal() const { return {line_.Id, reason_}; }

  // Always false, so that a caller can return it.
  bool Fail(std::string reason) {
    reason_ = std::move(reason);
    return false;
  }

  bool ReadMode() {
    auto scenario = ScenarioOfLine(line_);
    if (auto* const reason = std::get_if<std::string>(&scenario)) return Fail(std::move(*reason));
    scenario_ = std::get<const Scenario*>(scenario);
    std::vector<std::string> foreign = ForeignKeys(line_, *scenario_);
    return foreign.empty() || Fail(std::move(foreign.front()));
  }

  bool ReadAmounts(std::string& warning) {
    for (std::size_t i = 0; i < scenario_->AmountCount; ++i) {
      const BatchKey key = kAmountKeys.at(i);
      LineAmount amount = AmountOfLine(line_, key);
      if (!amount.Fault.empty()) return Fail(std::move(amount.Fault));
      if (const auto comma = CommaWarning(kBatchKeys.at(key), amount.Text))
        warning += (warning.empty() ? "" : " ") + *comma;
      entered_.*kEnteredAmounts.at(i) = std::move(amount.Text);
    }
    return true;
  }

  bool ReadRanges(BatchQuestion& question) {
    if (!ReadRange(kRangeKey, kHandsKey, entered_.Range, entered_.RangeText, question.Range)) return false;
    return !scenario_->HasCallingRange || ReadRange(kCallingRangeKey, kCallingHandsKey, entered_.CallingRange,
                                                    entered_.CallingRangeText, question.CallingRange);
  }

  bool ReadRange(BatchKey nameKey, BatchKey handsKey, std::string& name, std::string& text, ClassWeights& weights) {
    const auto& saved = line_[nameKey];
    const auto& typed = line_[handsKey];
    if (saved && typed) return Fail(Joined({QuotedKey(nameKey), " and ", QuotedKey(handsKey), " exclude each other"}));
    if (!saved && !typed) return Fail(Missing(nameKey, handsKey));
    RangeFinding finding = saved ? batch_.Saved(*saved) : TypedRange(*typed, batch_.bestFirst_);
    if (auto* const reason = std::get_if<std::string>(&finding)) return Fail(std::move(*reason));
    auto& range = std::get<GivenRange>(finding);
    name = std::move(range.Name);
    text = std::move(range.Text);
    weights = range.Weights;
    return true;
  }

  const Batch& batch_;
  const BatchLine& line_;
  const Scenario* scenario_ = nullptr;
  EnteredSituation entered_;
  std::string reason_;
};

Batch::Batch(ProgramFolder folder, std::vector<std::string> fields)
    : folder_(std::move(folder)), fields_(std::move(fields)), bestFirst_(HandsBestFirst(hands_)) {}

std::variant<BatchQuestion, BatchRefusal> Batch::Read(std::string_view text) const {
  BatchLine line = ReadBatchLine(text);
  if (!line.Faults.empty()) return BatchRefusal{std::move(line.Id), std::move(line.Faults.front())};
  try {
    return Reader(*this, line).Read();
  } catch (const RunTimeError& error) {  // about this line only; later lines go on
    return BatchRefusal{line.Id, error.what()};
  }
}

BatchAnswer Batch::Answer(std::string_view line, std::int64_t number) const {
  const auto dump = [](const Json& object) {
    // A range's name may be invalid UTF-8.
    return object.dump(-1, ' ', false, Json::error_handler_t::replace);
  };
  const auto refused = [&](const std::string& id, const std::string& reason) {
    return BatchAnswer{
        Joined({"{\"id\":", id, ",\"line\":", std::to_string(number), ",\"error\":", dump(reason), "}"}), true, {}};
  };
  const auto reading = Read(line);
  if (const auto* const refusal = std::get_if<BatchRefusal>(&reading)) return refused(refusal->Id, refusal->Reason);
  const auto& question = std::get<BatchQuestion>(reading);
  const auto object = Attempt([&] {
    const RangeNumbers ranges(hands_, question.Range, question.CallingRange);
    return dump(AnalysisJson(*Analyze(question.Situation, ranges), fields_));
  });
  if (!object) return refused(question.Id, "the amounts make a value that is beyond all numbers");
  const std::string_view fields = std::string_view(*object).substr(1);
  return {Joined({"{\"id\":", question.Id, fields == "}" ? "" : ",", fields}), false, question.Warning};
}

RangeFinding Batch::Saved(const std::string& name) const {
  {
    const std::lock_guard lock(savedAccess_);
    const auto found = saved_.find(name);
    if (found != saved_.end()) return found->second;
  }
  RangeFinding finding = SavedRange(name, folder_);
  if (const auto* const range = std::get_if<GivenRange>(&finding)) {
    const std::lock_guard lock(savedAccess_);
    saved_.emplace(name, *range);
  }
  return finding;
}

}  // namespace quillon
