// Situation files of arbitrary bytes, and input screens with any texts: what is read is written as a file that reads
// the same, everything missing is reported, and a line that a batch answers can be opened.

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <variant>

#include "fuzz/fuzz_target.h"
#include "hand/equity_table.h"
#include "study/batch.h"
#include "study/batch_line.h"
#include "study/situation_file.h"
#include "support/utf8.h"

namespace quillon {
namespace {

constexpr std::size_t kMostRemarks = 20;

std::array<std::string, 5> TextsOf(const ScreenSituation& situation) {
  const EnteredSituation& entered = situation.Entered;
  return {entered.Pot, entered.Call, entered.Shove, entered.Range, entered.CallingRange};
}

void CheckIsOfItsMode(const ScreenSituation& situation) {
  const Scenario& scenario = ScenarioOf(situation.Mode);
  const EnteredSituation& entered = situation.Entered;
  for (std::size_t i = scenario.AmountCount; i < kEnteredAmounts.size(); ++i)
    Require((entered.*kEnteredAmounts.at(i)).empty(), "an amount that is not asked for is empty");
  Require(scenario.HasCallingRange || entered.CallingRange.empty(), "only a shove has a calling range");
}

// A sum is written as it is, but read as its value.
void CheckWritten(const ScreenSituation& situation) {
  const SituationText text = TextOfSituation(situation);
  Require(text.Line.find('\n') == text.Line.size() - 1, "a situation is one line");
  const auto again = SituationOfText(text.Line);
  const auto* const read = std::get_if<ReadSituation>(&again);
  Require(read != nullptr, "what is written can be opened");
  if (!text.Fault.empty()) {
    Require(!read->NotTaken.empty(), "writing reports what cannot be read back");
    return;
  }
  Require(read->Situation.Mode == situation.Mode, "the mode is the same");
  const std::array<std::string, 5> wanted = TextsOf(situation);
  const std::array<std::string, 5> found = TextsOf(read->Situation);
  for (std::size_t i = 0; i < wanted.size(); ++i)
    Require(wanted.at(i) == found.at(i) || wanted.at(i).starts_with('='), "the texts are the same");
}

void CheckRead(std::string_view bytes) {
  const auto reading = SituationOfText(bytes);
  if (const auto* const reason = std::get_if<std::string>(&reading)) {
    Require(!reason->empty(), "what cannot be opened has a reason");
    return;
  }
  const auto& read = std::get<ReadSituation>(reading);
  Require(read.NotTaken.size() <= kMostRemarks, "the remarks fit a box");
  Require(std::ranges::none_of(read.NotTaken, &std::string::empty), "a remark is a sentence");
  CheckIsOfItsMode(read.Situation);
  CheckWritten(read.Situation);
}

// A folder without ranges: a batch answers only notations.
void CheckBatch(std::string_view line) {
  if (line.find('\n') != std::string_view::npos) return;
  LoadEquityTable();
  static const Batch batch({"/nonexistent"});
  const auto answered = batch.Read(line);
  const auto* const question = std::get_if<BatchQuestion>(&answered);
  if (question == nullptr) return;
  const auto reading = SituationOfText(line);
  const auto* const read = std::get_if<ReadSituation>(&reading);
  Require(read != nullptr, "a line that a batch answers can be opened");
  Require(read->Situation.Mode == question->Situation.Mode, "its mode is that of the batch");
  Require(AmountsOf(read->Situation.Entered) == question->Situation.Amounts, "its amounts are those of the batch");
  const std::size_t notations = ScenarioOf(read->Situation.Mode).HasCallingRange ? 2 : 1;
  Require(read->NotTaken.size() == notations + (question->Id == "null" ? 0 : 1),
          "the rest is reported, and nothing else");
}

// Texts as an input screen may contain them: UTF-8 of any length.
ScreenSituation AnyScreen(FuzzInput& input) {
  ScreenSituation situation;
  situation.Mode = kScenarios.at(input.TakeBelow(kScenarios.size())).Mode;
  const Scenario& scenario = ScenarioOf(situation.Mode);
  EnteredSituation& entered = situation.Entered;
  const auto take = [&input](std::string& text, bool asked) {
    const std::string_view bytes = input.TakeText(input.TakeBelow(256) * input.TakeBelow(8));
    if (asked && IsUtf8(bytes)) text = bytes;
  };
  for (std::size_t i = 0; i < kEnteredAmounts.size(); ++i)
    take(entered.*kEnteredAmounts.at(i), i < scenario.AmountCount);
  take(entered.Range, true);
  take(entered.CallingRange, scenario.HasCallingRange);
  return situation;
}

}  // namespace

void CheckInput(FuzzInput input) {
  const ChecksOfRun checks(input, 4);
  if (checks.All() || checks.Has(1)) CheckBatch(input.Rest());
  if (checks.All() || checks.Has(2)) {
    FuzzInput texts = input;
    CheckWritten(AnyScreen(texts));
  }
  if (checks.All() || checks.Has(0) || checks.Has(3)) CheckRead(input.Rest());
}

}  // namespace quillon
