#include <CLI/CLI.hpp>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <string>

#include "ranges/range_notation.h"
#include "study/balance_texts.h"
#include "support/file_names.h"
#include "support/number_text.h"
#include "support/rounding.h"
#include "tools/commands.h"
#include "tools/saved_range.h"

namespace quillon {
namespace {

struct Request {
  SituationOptions situation;
  RangeOption his;
  RangeOption own;
  std::optional<std::string> saveShove;
  std::optional<std::string> saveCall;
  bool replace = false;
  std::string format;
  std::string folder;
};

struct Answer {
  BalanceQuestion question;
  Equilibrium found;
};

std::string PlainOutput(const Answer& answer) {
  const auto& [question, found] = answer;
  const auto range = [](std::string_view what, const ClassWeights& weights) {
    return std::string(what) + NumberText(PercentOfHands(weights)) + "% of hands: " + RangeNotation(weights) + "\n";
  };
  return range("You hold ", question.OwnHands) + range("He holds ", question.HisHands) + range("Shove ", found.Shove) +
         range("Call  ", found.Call) + "Worth " + NumberText(RoundTo(found.Value, 6)) +
         " on average\nBoth together could gain at most " +
         NumberText(PercentOf(found.Exploitability, question.Pot, 9)) + "% of the pot by changing\n";
}

std::string JsonOutput(const Answer& answer) {
  const auto& [question, found] = answer;
  const auto range = [](const ClassWeights& weights) {
    return nlohmann::ordered_json{{"hands", RangeNotation(weights)}, {"percent", PercentOfHands(weights)}};
  };
  const nlohmann::ordered_json object = {{"pot", question.Pot},
                                         {"call", question.Call},
                                         {"shove", question.Shove},
                                         {"own_range", range(question.OwnHands)},
                                         {"his_range", range(question.HisHands)},
                                         {"shove_range", range(found.Shove)},
                                         {"call_range", range(found.Call)},
                                         {"value", found.Value},
                                         {"exploitability", found.Exploitability}};
  return object.dump(2) + "\n";
}

constexpr std::array<Format<Answer>, 2> kFormats = {{
    {{"plain", "what both can hold, both ranges as notation, what they are worth, and how near they are to balance"},
     PlainOutput},
    {{"json", "the same as one object, with the situation"}, JsonOutput},
}};

// The weights of an option; all hands if it is missing, nothing after an error message.
std::optional<ClassWeights> HandsOf(const RangeOption& option, CommandInputs& inputs) {
  if (!option.Given()) return AllHands();
  const std::optional<GivenRange> range = inputs.RangeWithHands(option);
  if (!range) return std::nullopt;
  if (CanBeHeld(range->Weights)) return range->Weights;
  return inputs.Refuse("The range \"" + range->Name + "\" has weights that are not from 0 to 1.");
}

// The situation, once checked to be one that can be balanced.
std::optional<BalanceQuestion> QuestionOf(const Request& request, CommandInputs& inputs) {
  const auto& [pot, call, shove] = request.situation.Amounts;
  const auto [potOption, callOption, shoveOption] = kAmountOptions;
  const auto potSize = inputs.Amount(potOption, pot, LeastAmount::kAboveZero);
  const auto callAmount = inputs.Amount(callOption, call, LeastAmount::kZero);
  const auto shoveAmount = inputs.Amount(shoveOption, shove, LeastAmount::kAboveZero);
  const auto own = HandsOf(request.own, inputs);
  const auto his = HandsOf(request.his, inputs);
  if (!potSize || !callAmount || !shoveAmount || !own || !his) return std::nullopt;
  if ((*callAmount + *shoveAmount) / *potSize <= kMostPotsAtRisk)
    return BalanceQuestion{*potSize, *callAmount, *shoveAmount, *own, *his};
  return inputs.Refuse("--call and --shove may be at most " + NumberText(kMostPotsAtRisk) + " times --pot, together");
}

// Whether both ranges may be saved under their names, if given.
bool MaySaveBoth(const Request& request, CommandInputs& inputs, const Surroundings& surroundings) {
  const auto maySave = [&](const std::optional<std::string>& name) {
    return !name || MaySave(inputs, *name, request.replace, surroundings);
  };
  if (!request.saveShove || !request.saveCall || !IsSameName(*request.saveShove, *request.saveCall))
    return maySave(request.saveShove) && maySave(request.saveCall);
  inputs.Refuse("--save-shove and --save-call need different names");
  return false;
}

std::optional<NamedText> NamedTextOf(const std::optional<std::string>& name, const ClassWeights& weights) {
  if (!name) return std::nullopt;
  return NamedText{*name, SearchableRangeText(weights)};
}

int Print(const Request& request, const Surroundings& surroundings) {
  CommandInputs inputs(surroundings, request.folder);
  const std::optional<BalanceQuestion> question = QuestionOf(request, inputs);
  if (!question || !MaySaveBoth(request, inputs, surroundings)) return inputs.Status();
  const std::optional<Equilibrium> found = FindEquilibrium(inputs.Hands(), *question);
  if (!found) {
    inputs.Refuse("No ranges were found that are in balance to a millionth of the pot: the shove is too large for it");
    return inputs.Status();
  }
  const auto shove = NamedTextOf(request.saveShove, found->Shove);
  const auto call = NamedTextOf(request.saveCall, found->Call);
  if (shove && call)
    SaveBoth(inputs.Folder(), *shove, *call);
  else if (const auto& one = shove ? shove : call)
    SaveRangeText(inputs.Folder(), one->Name, one->Text);
  surroundings.Output << InFormat(kFormats, request.format, Answer{*question, *found});
  return kDone;
}

}  // namespace

RunCommand OfferBalance(CLI::App& options) {
  const auto request = std::make_shared<Request>();
  OfferAmounts(options, AnalysisMode::kPreflopRaise, kAmountOptions.size(), request->situation);
  OfferRange(options, "--range", "--hands", request->his, "What he can hold (default: any hand)");
  OfferRange(options, "--own-range", "--own-hands", request->own, "What you can hold (default: any hand)");
  options.add_option("--save-shove", request->saveShove, "Saves the range to shove")->type_name("NAME");
  options.add_option("--save-call", request->saveCall, "Saves the range to call with")->type_name("NAME");
  options.add_flag("--replace", request->replace, "Replaces ranges of these names");
  OfferFormat(options, request->format, kFormats);
  OfferFolder(options, request->folder);
  return [request](const Surroundings& surroundings) { return Print(*request, surroundings); };
}

}  // namespace quillon
