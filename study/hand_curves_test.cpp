#include "study/hand_curves.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <variant>
#include <vector>

#include "study/sweep_figure.h"
#include "support/number_text.h"
#include "testing/study_hands.h"

namespace quillon {
namespace {

// The small blind with 10 big blinds.
StudySituation Shove(double amount = 9, const std::string& calling = "top 30%") {
  return {.Asked = {.Mode = AnalysisMode::kPreflopRaise,
                    .Amounts = {1.5, 0.5, amount},
                    .RangeName = "Any",
                    .CallingRangeName = "Calls"},
          .Range = RangeOf("any"),
          .CallingRange = RangeOf(calling),
          .Hands = Hands()};
}

StudySituation Call(double pot, double call) {
  return {.Asked = {.Mode = AnalysisMode::kPreflopCall, .Amounts = {pot, call, 0}, .RangeName = "Button"},
          .Range = RangeOf("top 20%"),
          .Hands = Hands()};
}

std::vector<std::int16_t> HandsOf(const std::string& notation) {
  return std::get<std::vector<std::int16_t>>(ReadCurveHands(notation, BestFirst()));
}

Steps StepsOf(const std::string& text) {
  return std::get<Steps>(Steps::Read(text));
}

TEST(CurveHands, AreReadAsANotation) {
  struct Case {
    const char* text;
    const char* hands;
  };
  for (const Case& c : std::vector<Case>{
           {"A7o 88", "88 A7o"},
           {"aa", "AA"},
           {"22+", "AA KK QQ JJ TT 99 88 77 66 55 44 33 22"},
           {"AA AA:0.5", "AA"},
           {"none", "name at least one hand"},
           {"AK:0", "name at least one hand"},
           {"A2s+,88", "13 hands"},
           {"any", "169 hands are too many to tell their lines apart: name up to 13"},
           {"AXs", "\"X\" is not a rank"},
       }) {
    const auto read = ReadCurveHands(c.text, BestFirst());
    if (const auto* const reason = std::get_if<std::string>(&read)) {
      EXPECT_EQ(*reason, c.hands) << c.text;
    } else if (std::string(c.hands) == "13 hands") {
      EXPECT_EQ(std::get<0>(read).size(), 13U) << c.text;
    } else {
      EXPECT_EQ(CurveHandsText(std::get<0>(read)), c.hands) << c.text;
    }
  }
}

// Every hand that gains less than the marginal one loses, by separate analyses.
TEST(CurveHands, BeginWithTheHandThatHardlyPays) {
  for (const StudySituation& situation : {Shove(), Shove(15), Call(150, 50)}) {
    const auto rows = [&](const std::vector<std::int16_t>& hands) {
      return situation.Asked.Mode == AnalysisMode::kPreflopRaise
                 ? SweepAmount({situation.Asked.Mode, situation.Asked.Amounts, hands}, situation.Numbers(),
                               &Amounts::PotSize, StepsOf("1.5:1.5:1"))
                 : SweepAmount({situation.Asked.Mode, situation.Asked.Amounts, hands}, situation.Numbers(),
                               &Amounts::PotSize, StepsOf("150:150:1"));
    };
    std::vector<std::int16_t> all(kHandClassCount);
    for (std::int16_t index = 0; index < kHandClassCount; ++index)
      all[static_cast<std::size_t>(index)] = index;
    const std::vector<double> values = rows(all).front().ExpectedValues;
    const double marginal = values.at(static_cast<std::size_t>(MarginalHand(situation)));
    EXPECT_GE(marginal, 0);
    EXPECT_TRUE(std::ranges::none_of(values, [marginal](double value) { return value >= 0 && value < marginal; }));
  }
  // Against aces alone everything loses, and aces least.
  StudySituation hopeless = Call(100, 99);
  hopeless.Range = RangeOf("AA");
  EXPECT_EQ(HandLabel(MarginalHand(hopeless)), "AA");
}

TEST(AmountSteps, ReachBeyondTheAmountAndItsLimits) {
  struct Case {
    const char* rule;
    StudySituation situation;
    const char* hands;
    StepTexts steps;
  };
  for (const Case& c : std::vector<Case>{
           {"a limit of 23.07 and a quarter more", Shove(), "K9o", {"0.2", "29", "0.2"}},
           {"a limit below the amount", Shove(), "72o", {"0.1", "18", "0.1"}},
           {"one of 116.72 is out of sight", Shove(), "A5s", {"0.1", "18", "0.1"}},
           {"an odd amount is one of the steps", Shove(9.05), "72o", {"0.05", "18.1", "0.05"}},
           {"one with many digits is not", Shove(9.123456), "72o", {"0.1", "18.3", "0.1"}},
           {"large amounts", Shove(4000), "72o", {"50", "8000", "50"}},
           {"small ones", Shove(0.004), "AA", {"0.00005", "0.008", "0.00005"}},
           {"a call far below the pot", Call(150, 5), "72o", {"0.1", "10", "0.1"}},
           {"a call stays below the pot", Call(150, 90), "AA", {"1", "149", "1"}},
       }) {
    const StepTexts steps = AmountStepsFor(c.situation, HandsOf(c.hands));
    EXPECT_EQ(steps, c.steps) << c.rule << ": " << steps.From << ":" << steps.To << ":" << steps.Step;
    EXPECT_TRUE(std::holds_alternative<Steps>(ReadAmountSteps(c.situation, steps))) << c.rule;
  }
}

TEST(AmountSteps, AreThoseThatAnAnalysisTakes) {
  struct Case {
    StudySituation situation;
    StepTexts steps;
    const char* reason;
  };
  for (const Case& c : std::vector<Case>{
           {Shove(), {"0", "9", "1"}, "the first amount must be above 0"},
           {Call(150, 50), {"0", "9", "1"}, "the first amount must be above 0"},
           {Call(150, 50), {"1", "150", "1"}, "a call is smaller than the pot, which is 150"},
           {Shove(), {"1", "2001", "1"}, "2001 steps are too many to be seen: at most 2000"},
           {Shove(), {"1", "9", "0"}, "the step must be above 0"},
           {Shove(), {"a", "9", "1"}, "\"a\" is not a plain decimal of at most 15 digits"},
       }) {
    const auto read = ReadAmountSteps(c.situation, c.steps);
    ASSERT_TRUE(std::holds_alternative<std::string>(read)) << c.reason;
    EXPECT_EQ(std::get<std::string>(read), c.reason);
  }
  EXPECT_TRUE(std::holds_alternative<Steps>(ReadAmountSteps(Call(150, 50), {"1", "149.99", "1"})));
  EXPECT_TRUE(std::holds_alternative<Steps>(ReadAmountSteps(Shove(), {"1", "2000", "1"})));
}

TEST(WidthSteps, AreThoseOfARange) {
  struct Case {
    const char* rule;
    StudySituation situation;
    StepTexts steps;
    const char* reason;
  };
  for (const Case& c : std::vector<Case>{
           {"", Shove(), {"1", "101", "1"}, "a range is at most 100% wide"},
           {"a call is against some hand", Call(150, 50), {"0.1", "5", "1"}, "the narrowest range has no hands"},
           {"a shove need not be called", Shove(), {"0.1", "5", "1"}, nullptr},
           {"all", Call(150, 50), {"1", "100", "1"}, nullptr},
       }) {
    const auto read = ReadWidthSteps(c.situation, c.steps, BestFirst());
    const auto* const reason = std::get_if<std::string>(&read);
    EXPECT_EQ(reason == nullptr ? "" : *reason, c.reason == nullptr ? "" : c.reason) << c.rule;
  }
}

// The companion's figures in the guide, and every digit of a sweep.
TEST(HandCurves, AreTheCompanionsFigures) {
  const HandCurves amounts = AmountCurves(Shove(), HandsOf("K9o 22"), StepsOf("5:20:5"));
  const auto rows = SweepAmount({AnalysisMode::kPreflopRaise, {1.5, 0.5, 0}, HandsOf("K9o 22")}, Shove().Numbers(),
                                &Amounts::ShoveAmount, StepsOf("5:20:5"));
  ASSERT_EQ(amounts.Rows.size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(amounts.Rows[i].At, rows[i].At);
    EXPECT_EQ(amounts.Rows[i].ExpectedValues, rows[i].ExpectedValues);
  }
  const std::string csv = amounts.Csv();
  EXPECT_EQ(csv.substr(0, csv.find('\n')), "shove,profitable,K9o,22");
  EXPECT_EQ(PointWords(AmountFigure(Shove(), amounts), {0, 1}),
            "K9o at 10 chips, 6.6667 pots: 0.6581 chips, 0.4387 pots");

  HandCurves widths{.What = "width", .Hands = HandsOf("K9o 22"), .Rows = {}};
  for (const char* width : {"10", "30", "50", "70"})
    widths.Rows.push_back(WidthRow(Shove(), widths.Hands, BestFirst(), width));
  EXPECT_EQ(PointWords(WidthFigures(Shove(), widths)[1], {0, 3}), "K9o at 70%: 1.3971 chips, 0.9314 pots");
  EXPECT_EQ(PointWords(WidthFigures(Shove(), widths)[0], {0, 1}), "Profitable at 30%: 85.52%");

  const auto calls = AmountCurves(Call(150, 50), HandsOf("AA"), StepsOf("50:50:1"));
  EXPECT_EQ(calls.Csv(), SweepCsv("call", std::vector<std::string>{"AA"}, calls.Rows));
}

// If his range is a top of all hands, the figures at its width are the current ones.
TEST(HandCurves, OverTheWidthMeetThoseOfNow) {
  for (const auto& [situation, width] : {std::pair{Shove(), "30"}, {Call(150, 50), "20"}}) {
    const std::vector<std::int16_t> hands = HandsOf("22 A5s T8s");
    const SweepRow there = WidthRow(situation, hands, BestFirst(), width);
    const SweepRow now = SweepRowAt({situation.Asked.Mode, situation.Asked.Amounts, hands}, situation.Numbers(), width);
    EXPECT_EQ(there.ExpectedValues, now.ExpectedValues);
    EXPECT_EQ(there.ProfitableCombos, now.ProfitableCombos);
  }
}

TEST(AmountFigure, MarksTheAmountAndTheLimits) {
  const StudySituation situation = Shove();
  const HandCurves curves = AmountCurves(situation, HandsOf("K9o A5s 72o"), StepsOf("0.2:28.8:0.2"));
  const Figure figure = AmountFigure(situation, curves);
  EXPECT_EQ(FigureWords(figure),
            "Preflop Raise: pot 1.5, 0.5 to call. He plays \"Any\" and calls with \"Calls\". now 9 chips, 6 pots. "
            "A5s, up to 116.72. K9o, up to 23.07. 72o, up to 7.89");
  EXPECT_EQ(figure.Across.Low, 0) << "the first step starts from 0";
  EXPECT_EQ(figure.Across.Pot, 1.5);
  EXPECT_EQ(figure.Up.Pot, 1.5);
  for (const FigureLine& line : figure.Lines) {
    if (line.Name == "A5s") continue;
    // A line crosses zero at its limit.
    ASSERT_TRUE(line.Limit) << line.Name;
    for (std::size_t i = 0; i < figure.Places.size(); ++i)
      EXPECT_EQ(LeadingNumber(figure.Places[i]) <= *line.Limit, line.Values[i] >= 0) << line.Name << " " << i;
  }
  EXPECT_EQ(AmountFigure(situation, AmountCurves(situation, HandsOf("K9o"), StepsOf("6:20:5"))).Across.Low, 6);
}

TEST(WidthFigures, MarkTheWidthOfTheRangeInQuestion) {
  for (const auto& [situation, width, words] :
       {std::tuple{Shove(9, "AA KK:0.5"), 0.68,
                   "Preflop Raise: pot 1.5, 0.5 to call, he must call 9. He plays \"Any\". now 0.68%. Profitable"},
        {Call(150, 50), 19.91, "Preflop Call: pot 150, 50 to call. now 19.91%. Profitable"}}) {
    const std::vector<std::int16_t> hands = HandsOf("22");
    const HandCurves curves{.What = "width", .Hands = hands, .Rows = {WidthRow(situation, hands, BestFirst(), "10")}};
    const auto figures = WidthFigures(situation, curves);
    const Figure& figure = figures[0];
    EXPECT_EQ(FigureWords(figures[1]), "Expected value, in chips. now " + NumberText(figure.Marks.at(0).At) + "%. 22");
    EXPECT_NEAR(figure.Marks.at(0).At, width, 0.1);
    EXPECT_EQ(FigureWords(figure), words);
    EXPECT_EQ(figure.Across.Low, 0);
    EXPECT_EQ(figure.Across.High, 100);
  }
}

}  // namespace
}  // namespace quillon
