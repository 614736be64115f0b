#include "study/batch_line.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

#include "analysis/expressions.h"
#include "ranges/range_lookup.h"
#include "support/ascii_text.h"
#include "support/joined_text.h"
#include "support/number_text.h"
#include "support/utf8.h"

namespace quillon {
namespace {

constexpr std::string_view kText = "a text";
constexpr std::string_view kAmount = "a number or a text";
constexpr std::string_view kName = "a text or a whole number in digits";

struct KeyRow {
  std::string_view Form;
  std::size_t Longest;  // bytes
};

constexpr std::size_t kLongestWord = 1000;

constexpr std::array<KeyRow, kBatchKeys.size()> kKeyRows = {{
    {kName, kLongestWord},  // id
    {kText, kLongestWord},  // mode
    {kAmount, kLongestWord},  // pot
    {kAmount, kLongestWord},  // call
    {kAmount, kLongestWord},  // shove
    {kText, kLongestWord},  // range
    {kText, kLongestBatchLine},  // hands
    {kText, kLongestWord},  // calling_range
    {kText, kLongestBatchLine},  // calling_hands
}};

constexpr std::size_t kMostFaults = 8;

// Collects the values of a line from the parser. A bad value does not stop it, so that an answer can have its id.
class LineValues final : public nlohmann::json_sax<nlohmann::json> {
 public:
  explicit LineValues(BatchLine& line) : line_(line) {}

  bool null() override {
    Outermost();
    return true;
  }
  bool boolean(bool /*value*/) override { return Misplaced(); }
  bool number_integer(number_integer_t value) override { return TakeNumber(std::to_string(value)); }
  bool number_unsigned(number_unsigned_t value) override { return TakeNumber(std::to_string(value)); }
  // Includes integers of more than 64 bits.
  bool number_float(number_float_t /*value*/, const string_t& written) override { return TakeNumber(written); }
  bool binary(binary_t& /*value*/) override { return Misplaced(); }

  bool string(string_t& value) override {
    if (!Outermost() || !key_) return true;
    if (value.size() > kKeyRows.at(*key_).Longest) {
      return Fail(Joined({QuotedKey(*key_), " has more than ", std::to_string(kKeyRows.at(*key_).Longest), " bytes"}));
    }
    if (*key_ == kIdKey) line_.Id = nlohmann::ordered_json(value).dump();
    line_.Values.at(*key_) = std::move(value);
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
    const auto* const row = std::ranges::find(kBatchKeys, name);
    if (row == kBatchKeys.end()) {
      constexpr std::size_t kShown = 60;
      return Fail(
          Joined({"there is no key ", Quoted(WholeCharacters(name, kShown)), "; there are ", Listed(kBatchKeys)}));
    }
    const auto found = static_cast<BatchKey>(row - kBatchKeys.begin());
    if (std::exchange(seen_.at(found), true)) return Fail(QuotedKey(found) + " is there twice");
    key_ = found;
    return true;
  }

  bool parse_error(std::size_t place, const std::string& token, const nlohmann::detail::exception& error) override {
    constexpr int kNumberOverflow = 406;
    constexpr std::size_t kShown = 30;
    std::string_view end = std::string_view(token).substr(token.size() - std::min(token.size(), kShown));
    while (!end.empty() && !StartsUtf8Character(end.front()))
      end.remove_prefix(1);
    end = Trimmed(end, " \t\r\n");
    if (error.id == kNumberOverflow)
      Break(Joined({end, " is beyond all numbers"}));
    else
      Break(Joined({"this is not JSON from byte ", std::to_string(place), " on: ", end}));
    return false;
  }

  void Break(const std::string& fault) {
    if (line_.Broken.empty()) line_.Broken = fault;
    Fail(fault);
  }

 private:
  // Always true, to continue parsing.
  bool Fail(std::string fault) {
    if (line_.Faults.size() < kMostFaults) line_.Faults.push_back(std::move(fault));
    return true;
  }

  // Whether a value belongs to a key of the outermost object.
  bool Outermost() {
    if (depth_ == 0) Break("a line is one JSON object");
    return depth_ == 1;
  }

  bool Misplaced() {
    if (Outermost() && key_) Fail(Joined({QuotedKey(*key_), " is ", kKeyRows.at(*key_).Form}));
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
    if (kKeyRows.at(*key_).Form == kText || (*key_ == kIdKey && !whole)) return Misplaced();
    if (*key_ == kIdKey) line_.Id = written;
    line_.Values.at(*key_) = written;
    return true;
  }

  BatchLine& line_;
  std::array<bool, kBatchKeys.size()> seen_{};
  std::optional<BatchKey> key_;  // the key of the next value
  int depth_ = 0;
};

std::string Missing(BatchKey key) {
  return QuotedKey(key) + " is missing";
}

}  // namespace

BatchLine ReadBatchLine(std::string_view line) {
  BatchLine read;
  LineValues values(read);
  if (line.starts_with(kUtf8Mark)) line.remove_prefix(kUtf8Mark.size());
  if (line.size() > kLongestBatchLine) {
    values.Break(Joined({"a line has at most ", std::to_string(kLongestBatchLine), " bytes"}));
  } else if (line.find_first_not_of(" \t\r") == std::string_view::npos) {
    values.Break("the line is empty");
  } else {
    nlohmann::json::sax_parse(line, &values);
    // The parser takes a NUL as the end of the text.
    if (const std::size_t nul = line.find('\0'); nul != std::string_view::npos && read.Broken.empty())
      values.Break(Joined({"this is not JSON from byte ", std::to_string(nul + 1), " on: a NUL character"}));
  }
  return read;
}

std::string QuotedKey(BatchKey key) {
  return Quoted(kBatchKeys.at(key));
}

std::variant<const Scenario*, std::string> ScenarioOfLine(const BatchLine& line) {
  if (!line[kModeKey]) return Missing(kModeKey);
  const auto* const scenario = std::ranges::find(kScenarios, *line[kModeKey], &Scenario::Command);
  if (scenario != kScenarios.end()) return scenario;
  return Joined({"\"mode\" is ", Listed(kScenarios, &Scenario::Command), ", not ", Quoted(*line[kModeKey])});
}

std::vector<std::string> ForeignKeys(const BatchLine& line, const Scenario& scenario) {
  std::vector<std::string> faults;
  const auto check = [&](BatchKey key, bool belongs) {
    if (line[key] && !belongs)
      faults.push_back(Joined({QuotedKey(key), " does not go with mode ", Quoted(scenario.Command)}));
  };
  for (std::size_t i = 0; i < kAmountKeys.size(); ++i)
    check(kAmountKeys.at(i), i < scenario.AmountCount);
  for (const BatchKey key : {kCallingRangeKey, kCallingHandsKey})
    check(key, scenario.HasCallingRange);
  return faults;
}

LineAmount AmountOfLine(const BatchLine& line, BatchKey key) {
  if (!line[key]) return {{}, Missing(key)};
  const std::string& text = *line[key];
  if (!text.starts_with('=')) return {text, {}};
  const auto sum = Attempt([&text] { return EvalExpression(text); });
  if (!sum) return {text, Joined({QuotedKey(key), ": ", kSumTooLarge})};
  if (!IsNumericText(*sum)) return {text, Joined({QuotedKey(key), ": ", *sum})};
  return {*sum, {}};
}

std::string Missing(BatchKey nameKey, BatchKey handsKey) {
  return Joined({QuotedKey(nameKey), " or ", QuotedKey(handsKey), " is missing"});
}

}  // namespace quillon
