#include "analysis/dealt_range.h"

#include <cstddef>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "testing/fault_of.h"
#include "testing/range_texts.h"

namespace quillon {
namespace {

using testing::SizeIs;

HandList Deal(std::string_view text, std::string_view card1, std::string_view card2) {
  return DealText("", card1, card2, text);
}

HandList DealForClass(const std::string& text, std::string_view label) {
  const FixedText<5> cards = HandCards(label);
  return Deal(text, cards.View().substr(0, 2), cards.View().substr(3, 2));
}

TEST(BuildCombos, EveryFieldOfARecordIsFilled) {
  const HandRecord aceKing = BuildCombos("As", "Yy").at(4);
  EXPECT_EQ(aceKing.Card1Rank, 'A');
  EXPECT_EQ(aceKing.Card2Rank, 'K');
  EXPECT_EQ(aceKing.Card1Suit, 's');
  EXPECT_EQ(aceKing.Card2Suit, 'h');
  EXPECT_EQ(aceKing.Card1, "As");
  EXPECT_EQ(aceKing.Card2, "Kh");
  EXPECT_EQ(aceKing.Cards, "As Kh");
  EXPECT_EQ(aceKing.Label, "AKo");
  EXPECT_EQ(aceKing.Weight, 0);
  EXPECT_EQ(aceKing.WeightText, "0");
  EXPECT_EQ(BuildCombos("As", "Yy").back().WeightText, "1");
}

TEST(DealText, AWeightThatSpellsAPairIsTakenForItsLabel) {
  // "33" is found in the weight before it, and no weight follows.
  EXPECT_EQ(FaultOf([] { return Deal(RangeWith({{"AA", 0.333}}), "Xx", "Yy"); }), RunTimeFault::kInvalidProcedureCall);
  EXPECT_EQ(Deal(RangeWith({{"32o", 0.333}}), "Xx", "Yy").at(1302).Weight, 0.333) << "after the entry it is harmless";
}

TEST(DealText, AFaultNamesTheRangesFile) {
  EXPECT_EQ(FaultTextOf([] { return DealText("Missing", "Xx", "Yy", ""); }),
            "Run-time error '9': Subscript out of range (the range file \"Missing.txt\" is missing or empty)");
  EXPECT_EQ(FaultTextOf([] { return DealText("Broken", "Xx", "Yy", "AA (1"); }),
            "Run-time error '5': Invalid procedure call or argument (the range file \"Broken.txt\" holds no weight for "
            "AA)");
}

TEST(DealText, ATextWithoutBracketsFailsEvenIfEveryHandIsBlocked) {
  EXPECT_EQ(FaultOf([] { return Deal("aces and kings", "Xx", "Yy"); }), RunTimeFault::kInvalidProcedureCall);
  EXPECT_EQ(FaultOf([] { return Deal("aces and kings", "", ""); }), RunTimeFault::kInvalidProcedureCall);
}

TEST(TotalWeight, AddsInTheOrderOfTheList) {
  HandList list(4);
  list[0].Weight = 1e16;
  list[1].Weight = 1;
  list[2].Weight = 1;
  list[3].Weight = -1e16;
  EXPECT_EQ(FaultOf([] { return TotalWeight({}); }), RunTimeFault::kSubscriptOutOfRange);
  EXPECT_EQ(TotalWeight(list), 0) << "adding 1 does not change such a large number";
}

TEST(LimitToRange, RecordsBeyondTheCurrentListStay) {
  HandList calling(3);
  for (HandRecord& hand : calling)
    hand.Weight = 1;
  const HandList limited = LimitToRange(HandList(2), calling);
  ASSERT_THAT(limited, SizeIs(3));
  EXPECT_EQ(limited[1].Weight, 0);
  EXPECT_EQ(limited[2].Weight, 1);
}

TEST(LimitToRange, ListsThatDoNotMatchFail) {
  struct Row {
    const char* name;
    std::size_t current;
    std::size_t calling;
  };
  for (const Row& row : {Row{"both empty", 0, 0}, Row{"no current range", 0, 1326}, Row{"no calling range", 1326, 0},
                         Row{"a calling range that ends early", 1326, 1325}}) {
    const auto limit = [&] { return LimitToRange(HandList(row.current), HandList(row.calling)); };
    const auto list = [&] { return ListDroppedHands(HandList(row.current), HandList(row.calling)); };
    EXPECT_EQ(FaultOf(limit), RunTimeFault::kSubscriptOutOfRange) << row.name;
    EXPECT_EQ(FaultOf(list), RunTimeFault::kSubscriptOutOfRange) << row.name;
  }
}

TEST(ListDroppedHands, NamesWhatAFullCallingWeightLoses) {
  struct Row {
    const char* name;
    std::string current;
    std::string calling;
    const char* hero;
    const char* dropped;
  };
  for (const Row& row : {
           Row{"nothing to drop", EveryHandAt(1), EveryHandAt(1), "22", ""},
           Row{"classes come in the order of the deck, not of the grid", RangeWith({{"AKo", 0.5}}),
               RangeWith({{"22", 1}, {"KK", 1}, {"AQs", 1}, {"AKo", 1}, {"AKs", 1}, {"AA", 1}}), "72o",
               "AA, AKs, AKo (½'d), AQs, KK, 22"},
           Row{"a half calling weight is cut in silence", EveryHandAt(0), RangeWith({{"AA", 0.5}}), "22", ""},
           Row{"a calling weight above 1 is cut in silence", EveryHandAt(0), RangeWith({{"AA", 2}}), "22", ""},
           Row{"a current weight of neither 0 nor a half is cut in silence", RangeWith({{"AA", 0.25}}),
               RangeWith({{"AA", 1}}), "22", ""},
           Row{"a class with all hands but one blocked is found", EveryHandAt(0), RangeWith({{"22", 1}}), "22", "22"},
       }) {
    EXPECT_EQ(ListDroppedHands(DealForClass(row.current, row.hero), DealForClass(row.calling, row.hero)), row.dropped)
        << row.name;
  }
}

}  // namespace
}  // namespace quillon
