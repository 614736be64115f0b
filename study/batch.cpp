#include "study/batch.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>

#include "analysis/expressions.h"
#include "analysis/input_checks.h"
#include "ranges/range_lookup.h"
#include "results/analysis_json.h"
#include "study/hand_order.h"
#include "support/joined_text.h"
#include "support/number_text.h"
#include "support/run_time_error.h"
#include "support/utf8.h"

namespace quillon {
namespace {

using Json = nlohmann::ordered_json;

enum Key : std::size_t { kId, kMode, kPot, kCall, kShove, kRange, kHands, kCallingRange, kCallingHands, kKeyCount };

constexpr std::string_view kText = "a text";
constexpr std::string_view kAmount = "a number or a text";
constexpr std::string_view kName = "a text or a whole number in digits";

struct KeyRow {
  std::string_view Name;
  std::string_view Form;
  std::size_t Longest;  // bytes
};

constexpr std::size_t kLongestWord = 1000;

constexpr std::array<KeyRow, kKeyCount> kKeys = {{
    {"id", kName, kLongestWord},
    {"mode", kText, kLongestWord},
    {"pot", kAmount, kLongestWord},
    {"call", kAmount, kLongestWord},
    {"shove", kAmount, kLongestWord},
    {"range", kText, kLongestWord},
    {"hands", kText, kLongestBatchLine},
    {"calling_range", kText, kLongestWord},
    {"calling_hands", kText, kLongestBatchLine},
}};

std::string Quoted(std::string_view text) {
  return Joined({"\"", text, "\""});
}

std::string QuotedKey(Key key) {
  return Quoted(kKeys[key].Name);
}

// The names of a table's rows, as "a, b or c".
template <typename Rows, typename NameOf>
std::string Listed(const Rows& rows, NameOf nameOf) {
  std::string list;
  for (std::size_t i = 0; i < rows.size(); ++i)
    list.append(i == 0 ? "" : i + 1 == rows.size() ? " or " : ", ").append(nameOf(rows[i]));
  return list;
}

// The values of a line, an amount as it is written, and the first thing that is wrong with them. The rest is read all
// the same, so that the answer can have its id.
class LineValues final : public nlohmann::json_sax<nlohmann::json> {
 public:
  [[nodiscard]] const std::optional<std::string>& operator[](Key key) const { return values_[key]; }
  [[nodiscard]] const std::string& Id() const { return id_; }
  [[nodiscard]] const std::string& Fault() const { return fault_; }

  bool null() override {
    Outermost();
    return true;
  }
  bool boolean(bool /*value*/) override { return Misplaced(); }
  bool number_integer(number_integer_t value) override { return TakeNumber(std::to_string(value)); }
  bool number_unsigned(number_unsigned_t value) override { return TakeNumber(std::to_string(value)); }
  // Of whole numbers, those of more than 64 bits.
  bool number_float(number_float_t /*value*/, const string_t& written) override { return TakeNumber(written); }
  bool binary(binary_t& /*value*/) override { return Misplaced(); }

  bool string(string_t& value) override {
    if (!Outermost() || !key_) return true;
    if (value.size() > kKeys[*key_].Longest) {
      return Fail(Joined({QuotedKey(*key_), " has more than ", std::to_string(kKeys[*key_].Longest), " bytes"}));
    }
    if (*key_ == kId) id_ = Json(value).dump();
    values_[*key_] = std::move(value);
    return true;
  }

  bool start_object(std::size_t /*size*/) override {
    if (depth_ > 0) Misplaced();
    ++depth_;
    return true;
  }
  bool start_array(std::size_t /*size*/) override {
    Misplaced();
    ++depth_;
    return true;
  }
  bool end_object() override { return Leave(); }
  bool end_array() override { return Leave(); }

  bool key(string_t& name) override {
    if (depth_ != 1) return true;
    key_.reset();
    const auto* const row = std::ranges::find(kKeys, name, &KeyRow::Name);
    if (row == kKeys.end()) {
      constexpr std::size_t kShown = 60;
      return Fail(Joined({"there is no key ", Quoted(WholeCharacters(name, kShown)), "; there are ",
                          Listed(kKeys, [](const KeyRow& key) { return key.Name; })}));
    }
    const auto found = static_cast<Key>(row - kKeys.begin());
    if (std::exchange(seen_[found], true)) return Fail(QuotedKey(found) + " is there twice");
    key_ = found;
    return true;
  }

  bool parse_error(std::size_t place, const std::string& token, const nlohmann::detail::exception& error) override {
    constexpr int kNumberOverflow = 406;
    constexpr std::size_t kShown = 30;
    std::string_view end = std::string_view(token).substr(token.size() - std::min(token.size(), kShown));
    while (!end.empty() && !StartsUtf8Character(end.front()))
      end.remove_prefix(1);
    if (error.id == kNumberOverflow)
      Fail(Joined({end, " is beyond all numbers"}));
    else
      Fail(Joined({"this is not JSON from byte ", std::to_string(place), " on: ", end}));
    return false;
  }

 private:
  // Always true, for whoever reads on. Of several faults the first counts.
  bool Fail(std::string fault) {
    if (fault_.empty()) fault_ = std::move(fault);
    return true;
  }

  // Whether a value belongs to a key of the line.
  bool Outermost() {
    if (depth_ == 0) Fail("a line is one JSON object");
    return depth_ == 1;
  }

  bool Misplaced() {
    if (Outermost() && key_) Fail(Joined({QuotedKey(*key_), " is ", kKeys[*key_].Form}));
    return true;
  }

  bool Leave() {
    --depth_;
    return true;
  }

  bool TakeNumber(const std::string& written) {
    constexpr std::string_view kWhole = "-0123456789";
    if (!Outermost() || !key_) return true;
    const bool whole = written.find_first_not_of(kWhole) == std::string::npos;
    if (kKeys[*key_].Form == kText || (*key_ == kId && !whole)) return Misplaced();
    if (*key_ == kId) id_ = written;
    values_[*key_] = written;
    return true;
  }

  std::array<std::optional<std::string>, kKeyCount> values_;
  std::array<bool, kKeyCount> seen_{};
  std::optional<Key> key_;  // that the next value belongs to
  int depth_ = 0;
  std::string id_ = "null";
  std::string fault_;
};

constexpr std::array<Key, 3> kAmounts = {kPot, kCall, kShove};

}  // namespace

// Makes a question of the values of a line, or says why there is none.
class Batch::Reader {
 public:
  Reader(const Batch& batch, const LineValues& values) : batch_(batch), values_(values) {}

  std::variant<BatchQuestion, BatchRefusal> Read() {
    BatchQuestion question;
    if (!ReadMode() || !ReadAmounts(question.Warning) || !ReadRanges(question)) return Refusal();
    if (const auto complaint = CheckInputs(scenario_->Mode, entered_, batch_.folder_)) {
      Fail(Joined({complaint->Title, ": ", complaint->Text}));
      return Refusal();
    }
    question.Id = values_.Id();
    question.Situation = SituationOf(scenario_->Mode, entered_, batch_.folder_);
    return question;
  }

 private:
  [[nodiscard]] BatchRefusal Refusal() const { return {values_.Id(), reason_}; }

  // Always false, for whoever fails with it.
  bool Fail(std::string reason) {
    reason_ = std::move(reason);
    return false;
  }

  bool ReadMode() {
    if (!values_[kMode]) return Fail("\"mode\" is missing");
    scenario_ = std::ranges::find(kScenarios, *values_[kMode], &Scenario::Command);
    if (scenario_ == kScenarios.end()) {
      return Fail(Joined({"\"mode\" is ", Listed(kScenarios, [](const Scenario& row) { return row.Command; }), ", not ",
                          Quoted(*values_[kMode])}));
    }
    const auto foreign = [this](Key key) {
      return Fail(Joined({QuotedKey(key), " does not go with mode ", Quoted(scenario_->Command)}));
    };
    for (std::size_t i = AmountCount(); i < kAmounts.size(); ++i) {
      if (values_[kAmounts.at(i)]) return foreign(kAmounts.at(i));
    }
    for (const Key key : {kCallingRange, kCallingHands}) {
      if (values_[key] && !scenario_->HasCallingRange) return foreign(key);
    }
    return true;
  }

  [[nodiscard]] std::size_t AmountCount() const { return static_cast<std::size_t>(scenario_->AmountCount); }

  bool ReadAmounts(std::string& warning) {
    const std::array<std::string*, 3> texts = {&entered_.Pot, &entered_.Call, &entered_.Shove};
    for (std::size_t i = 0; i < AmountCount(); ++i) {
      const Key key = kAmounts.at(i);
      if (!values_[key]) return Fail(QuotedKey(key) + " is missing");
      std::string text = *values_[key];
      if (text.starts_with('=')) {
        const auto sum = Attempt([&text] { return EvalExpression(text); });
        if (!sum) return Fail(QuotedKey(key) + ": the sum is beyond all numbers");
        text = *sum;
        if (!IsNumericText(text)) return Fail(Joined({QuotedKey(key), ": ", text}));
      }
      if (const auto comma = CommaWarning(kKeys[key].Name, text)) warning += (warning.empty() ? "" : " ") + *comma;
      *texts.at(i) = std::move(text);
    }
    return true;
  }

  bool ReadRanges(BatchQuestion& question) {
    if (!ReadRange(kRange, kHands, entered_.Range, entered_.RangeText, question.Range)) return false;
    return !scenario_->HasCallingRange || ReadRange(kCallingRange, kCallingHands, entered_.CallingRange,
                                                    entered_.CallingRangeText, question.CallingRange);
  }

  bool ReadRange(Key nameKey, Key handsKey, std::string& name, std::string& text, ClassWeights& weights) {
    const auto& saved = values_[nameKey];
    const auto& typed = values_[handsKey];
    if (saved && typed) return Fail(Joined({QuotedKey(nameKey), " and ", QuotedKey(handsKey), " exclude each other"}));
    if (!saved && !typed) return Fail(Joined({QuotedKey(nameKey), " or ", QuotedKey(handsKey), " is missing"}));
    RangeFinding finding = saved ? batch_.Saved(*saved) : TypedRange(*typed, batch_.bestFirst_);
    if (auto* const reason = std::get_if<std::string>(&finding)) return Fail(std::move(*reason));
    auto& range = std::get<GivenRange>(finding);
    name = std::move(range.Name);
    text = std::move(range.Text);
    weights = range.Weights;
    return true;
  }

  const Batch& batch_;
  const LineValues& values_;
  const Scenario* scenario_ = nullptr;
  EnteredSituation entered_;
  std::string reason_;
};

Batch::Batch(ProgramFolder folder, std::vector<std::string> fields)
    : folder_(std::move(folder)), fields_(std::move(fields)), bestFirst_(HandsBestFirst(hands_)) {}

std::variant<BatchQuestion, BatchRefusal> Batch::Read(std::string_view line) const {
  if (line.starts_with(kUtf8Mark)) line.remove_prefix(kUtf8Mark.size());
  if (line.size() > kLongestBatchLine) {
    return BatchRefusal{"null", "a line has at most " + std::to_string(kLongestBatchLine) + " bytes"};
  }
  if (line.find_first_not_of(" \t\r") == std::string_view::npos) return BatchRefusal{"null", "the line is empty"};
  LineValues values;
  nlohmann::json::sax_parse(line, &values);
  if (!values.Fault().empty()) return BatchRefusal{values.Id(), values.Fault()};
  // The parser takes a NUL for the end of the text.
  if (const std::size_t nul = line.find('\0'); nul != std::string_view::npos) {
    return BatchRefusal{values.Id(),
                        Joined({"this is not JSON from byte ", std::to_string(nul + 1), " on: a NUL character"})};
  }
  try {
    return Reader(*this, values).Read();
  } catch (const RunTimeError& error) {  // of this line, and the next one is another matter
    return BatchRefusal{values.Id(), error.what()};
  }
}

BatchAnswer Batch::Answer(std::string_view line, std::int64_t number) const {
  const auto dump = [](const Json& object) {
    // The name of a range may be no valid UTF-8.
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
