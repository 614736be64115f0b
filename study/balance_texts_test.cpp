#include "study/balance_texts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "testing/study_hands.h"

namespace quillon {
namespace {

std::string WhyNot(const BalanceTexts& texts) {
  const auto reading = ReadBalanceQuestion(texts);
  const auto* why = std::get_if<std::string>(&reading);
  return why == nullptr ? std::string() : *why;
}

TEST(ReadBalanceQuestion, ReadsAmountsAsTheInputScreensDo) {
  const auto question = std::get<BalanceQuestion>(ReadBalanceQuestion({"$150", " 0 ", "1,000"}));
  EXPECT_EQ(question.Pot, 150);
  EXPECT_EQ(question.Call, 0);
  EXPECT_EQ(question.Shove, 1) << "a comma ends a number";
  EXPECT_EQ(question.OwnHands, AllHands());
  EXPECT_EQ(question.HisHands, AllHands());
}

TEST(ReadBalanceQuestion, SaysWhatIsWrong) {
  struct Case {
    const char* rule;
    BalanceTexts texts;
    const char* why;
  };
  for (const Case& c : {
           Case{"no pot", {"", "0", "10"}, "Type the pot."},
           Case{"no call", {"1", "", "10"}, "Type what you must call."},
           Case{"no shove", {"1", "0", ""}, "Type what he must call if you shove."},
           Case{"the first that is wrong", {"0", "", "x"}, "The amount must be above zero: 0."},
           Case{"a negative call", {"1", "-1", "10"}, "The amount must be above zero, or zero: -1."},
           Case{"nothing to shove", {"1", "0", "0"}, "The amount must be above zero: 0."},
           Case{"no number", {"1", "0", "ten"}, "\"ten\" is not a plain number."},
           Case{"too much for the digits",
                {"1", "1", "100000000"},
                "Call and shove together may be at most 100000000 times the pot."},
           Case{"as much as there may be", {"1", "0", "100000000"}, ""},
       }) {
    EXPECT_EQ(WhyNot(c.texts), c.why) << c.rule;
  }
}

TEST(CanBeHeld, WantsWeightsFromZeroToOneAndAHand) {
  ClassWeights weights{};
  EXPECT_FALSE(CanBeHeld(weights));
  weights[5] = 0.25;
  EXPECT_TRUE(CanBeHeld(weights));
  weights[6] = 1.01;
  EXPECT_FALSE(CanBeHeld(weights));
  weights[6] = -0.01;
  EXPECT_FALSE(CanBeHeld(weights));
}

TEST(PlayedCells, TellHowOftenAClassIsPlayed) {
  struct Case {
    double played;
    double held;
    const char* text;
    const char* shove;
    const char* call;
  };
  for (const Case& c : {
           Case{1, 1, "", "you always shove", "he always calls"},
           Case{0, 1, "", "you never shove", "he never calls"},
           Case{0, 0, "", "you do not hold it", "he does not hold it"},
           Case{0.3725, 1, "37%", "you shove 37.25% of the time", "he calls 37.25% of the time"},
           Case{0.999999, 1, "99%", "you shove 99.9999% of the time", "he calls 99.9999% of the time"},
           Case{0.000001, 1, "<.1%", "you shove 0.0001% of the time", "he calls 0.0001% of the time"},
           Case{1e-12, 1, "<.1%", "you shove 0.0000000001% of the time", "he calls 0.0000000001% of the time"},
           Case{0.0061, 1, "0.6%", "you shove 0.61% of the time", "he calls 0.61% of the time"},
           Case{0.00999, 1, "1%", "you shove 0.999% of the time", "he calls 0.999% of the time"},
           Case{0.0149, 1, "1%", "you shove 1.49% of the time", "he calls 1.49% of the time"},
       }) {
    ClassWeights played{};
    ClassWeights held{};
    played[3] = c.played;
    held[3] = c.held;
    const ClassCell cell = PlayedCells(BalanceSide::kShove, played, held)[3];
    EXPECT_EQ(cell.Text, c.text);
    EXPECT_EQ(cell.Words, c.shove);
    EXPECT_EQ(PlayedCells(BalanceSide::kCall, played, held)[3].Words, c.call);
    EXPECT_EQ(cell.Pale, c.held == 0) << c.shove;
    EXPECT_LE(cell.Text.size(), 4U);
    EXPECT_GE(ContrastRatio(cell.Color, ReadableOn(cell.Color)), 4.5) << c.shove;
  }
}

TEST(PlayedLegend, HasALineForEachColourOfEitherGrid) {
  ClassWeights some{};
  some[0] = 0.5;
  const ClassCells all = PlayedCells(BalanceSide::kShove, AllHands(), AllHands());
  EXPECT_EQ(PlayedLegend(all, all).size(), 1U);
  EXPECT_EQ(PlayedLegend(all, PlayedCells(BalanceSide::kCall, some, AllHands())).size(), 3U);
  EXPECT_EQ(PlayedLegend(PlayedCells(BalanceSide::kShove, some, some), all).size(), 3U)
      << "always, sometimes, not held";
}

TEST(PercentOfHands, CountsWeights) {
  EXPECT_EQ(PercentOfHands(AllHands()), 100);
  ClassWeights aces{};
  aces[0] = 0.5;
  EXPECT_EQ(PercentOfHands(aces), 0.23);
}

TEST(BalanceWords, TellWhatTheShoveWinsAndWhatAChangeWould) {
  EXPECT_EQ(BalanceWords({.Value = 21.4, .Exploitability = 1e-7}),
            "On average the shove wins 21.4 chips more than a fold. Whoever changes his range gains less than 0.000001 "
            "chips by it.");
  EXPECT_EQ(
      BalanceWords({.Value = 0.1234567, .Exploitability = 0.00014212}),
      "On average the shove wins 0.123457 chips more than a fold. Whoever changes his range gains at most 0.000143 "
      "chips by it.");
}

}  // namespace
}  // namespace quillon
