#include "study/balance_texts.h"

#include <algorithm>
#include <cstddef>

#include "analysis/entered_situation.h"
#include "ranges/card_grid.h"
#include "support/number_text.h"
#include "support/rounding.h"

namespace quillon {
namespace {

constexpr Rgb kNotHeldColor = {0xF7, 0xF8, 0xF9};
constexpr Rgb kAtTimesColor = {0xFF, 0xB0, 0x60};

std::string OftenWords(BalanceSide side, const std::string& before, const std::string& after = {}) {
  return (side == BalanceSide::kShove ? "you " + before + "shove" : "he " + before + "calls") + after;
}

// What is wrong with an amount, or nothing.
std::string WhyNot(std::string_view what, const std::string& text, bool mayBeZero) {
  if (text.empty()) return "Type " + std::string(what) + ".";
  if (!IsNumericText(text)) return "\"" + text + "\" is not a plain number.";
  const double value = BoxValue(text);
  if (value > 0 || (mayBeZero && value == 0)) return {};
  return "The amount must be above zero" + std::string(mayBeZero ? ", or zero" : "") + ": " + text + ".";
}

// For a share that is neither 0 nor 1.
std::string ShortPercent(double share) {
  constexpr double kLeast = 0.1;
  const double percent = share * 100;
  if (percent < kLeast) return "<.1%";
  if (percent < 1) return NumberText(RoundTo(percent, 1)) + "%";
  return NumberText(std::clamp(RoundTo(percent, 0), 1.0, 99.0)) + "%";
}

ClassCell PlayedCell(BalanceSide side, double played, double held) {
  if (held == 0) {
    return {.Color = kNotHeldColor,
            .Words = side == BalanceSide::kShove ? "you do not hold it" : "he does not hold it",
            .Pale = true};
  }
  if (played == 0) return {.Color = kNeverPlayedColor, .Words = OftenWords(side, "never ")};
  if (played == 1) return {.Color = kFullColor, .Words = OftenWords(side, "always ")};
  constexpr int kDecimals = 10;  // for a share with twelve
  const std::string percent = NumberText(RoundTo(played * 100, kDecimals)) + "%";
  return {.Color = kAtTimesColor,
          .Text = ShortPercent(played),
          .Words = OftenWords(side, {}, " " + percent + " of the time")};
}

}  // namespace

std::variant<BalanceQuestion, std::string> ReadBalanceQuestion(const BalanceTexts& texts) {
  for (const std::string& why : {WhyNot("the pot", texts.Pot, false), WhyNot("what you must call", texts.Call, true),
                                 WhyNot("what he must call if you shove", texts.Shove, false)}) {
    if (!why.empty()) return why;
  }
  const BalanceQuestion question = {
      .Pot = BoxValue(texts.Pot), .Call = BoxValue(texts.Call), .Shove = BoxValue(texts.Shove)};
  if ((question.Call + question.Shove) / question.Pot <= kMostPotsAtRisk) return question;
  return "Call and shove together may be at most " + NumberText(kMostPotsAtRisk) + " times the pot.";
}

bool CanBeHeld(const ClassWeights& weights) {
  const auto [least, most] = std::ranges::minmax(weights);
  return least >= 0 && most > 0 && most <= 1;
}

double PercentOfHands(const ClassWeights& weights) {
  double combos = 0;
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    combos += weights[static_cast<std::size_t>(index)] * ComboCount(HandLabel(index));
  return PercentOf(combos, kConcreteHandCount, 2);
}

ClassCells PlayedCells(BalanceSide side, const ClassWeights& played, const ClassWeights& held) {
  ClassCells cells;
  std::ranges::transform(played, held, cells.begin(),
                         [side](double often, double most) { return PlayedCell(side, often, most); });
  return cells;
}

std::vector<PageLegend> PlayedLegend(const ClassCells& one, const ClassCells& other) {
  std::vector<PageLegend> legend = {
      {kFullColor, "always"}, {kAtTimesColor, "at times"}, {kNeverPlayedColor, "never"}, {kNotHeldColor, "not held"}};
  std::erase_if(legend, [&](const PageLegend& line) {
    const auto has = [&line](const ClassCell& cell) { return cell.Color == line.Color; };
    return std::ranges::none_of(one, has) && std::ranges::none_of(other, has);
  });
  return legend;
}

std::string BalanceWords(const Equilibrium& found) {
  constexpr double kLeast = 1e-6;
  const std::string gain = found.Exploitability < kLeast
                               ? "less than 0.000001"
                               : "at most " + NumberText(RoundTo(found.Exploitability + kLeast / 2, 6));
  return "On average the shove wins " + NumberText(RoundTo(found.Value, 6)) +
         " chips more than a fold. Whoever changes his range gains " + gain + " chips by it.";
}

}  // namespace quillon
