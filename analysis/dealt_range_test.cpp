#include "analysis/dealt_range.h"

#include <cstddef>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "testing/fault_of.h"
#include "testing/range_texts.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

using testing::SizeIs;

HandList Deal(std::string text, std::string_view card1, std::string_view card2) {
  return DealRange(ProgramFolder{}, "", card1, card2, text);
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
}

TEST(BuildCombos, DeadTextsAreSearchedAsTexts) {
  struct Row {
    const char* name;
    const char* dead1;
    const char* dead2;
    std::ptrdiff_t blocked;
  };
  for (const Row& row : {
           Row{"placeholders block nothing", "Xx", "Yy", 0},
           Row{"two cards block 51 + 51 - 1 hands", "As", "Ac", 101},
           Row{"the empty text is found everywhere", "", "Yy", 1326},
           Row{"a rank blocks all hands that hold it", "A", "Yy", 48 * 4 + 6},
           Row{"a suit blocks all hands that hold it", "Yy", "s", 13 * 39 + 78},
           Row{"the cards the other way round are in no hand", "Kh As", "Yy", 0},
           Row{"suit, blank and rank are searched across the cards", "s K", "Yy", 4 + 3},
           Row{"more than a card is in no hand", "Ahx", "Yy", 0},
       }) {
    std::ptrdiff_t blocked = 0;
    for (const HandRecord& hand : BuildCombos(row.dead1, row.dead2)) {
      const bool found = hand.Cards.View().find(row.dead1) != std::string::npos ||
                         hand.Cards.View().find(row.dead2) != std::string::npos;
      EXPECT_EQ(hand.Weight, found ? 0 : 1) << row.name << ", " << hand.Cards;
      EXPECT_EQ(hand.WeightText, found ? "0" : "1") << row.name << ", " << hand.Cards;
      blocked += found ? 1 : 0;
    }
    EXPECT_EQ(blocked, row.blocked) << row.name;
  }
}

TEST(DealRange, AWeightThatSpellsAPairIsTakenForItsLabel) {
  // "33" is taken for part of the weight before it, and no weight follows it.
  EXPECT_EQ(FaultOf([] { return Deal(RangeWith({{"AA", 0.333}}), "Xx", "Yy"); }), RunTimeFault::kInvalidProcedureCall);
  EXPECT_EQ(Deal(RangeWith({{"32o", 0.333}}), "Xx", "Yy").at(1302).Weight, 0.333) << "after the entry it does no harm";
}

TEST(DealRange, AnEmptyTextIsReadFromTheFileAndStaysWithTheCaller) {
  const TemporaryProgram ranges;
  ranges.Save("Aces", RangeWith({{"AA", 1}}));
  std::string text;
  EXPECT_EQ(TotalWeight(DealRange(ranges.Folder(), "Aces", "Xx", "Yy", text)), 6);
  EXPECT_EQ(text, RangeWith({{"AA", 1}}));
  text = RangeWith({{"AKs", 1}});
  EXPECT_EQ(TotalWeight(DealRange(ranges.Folder(), "Aces", "Xx", "Yy", text)), 4) << "a text at hand is not read again";
  std::string none;
  EXPECT_THAT(DealRange(ranges.Folder(), "", "Xx", "Yy", none), SizeIs(0)) << "no range is chosen";
  EXPECT_EQ(none, "");
}

TEST(DealRange, AFaultNamesTheRangesFile) {
  struct Row {
    const char* range;
    const char* fault;
  };
  const TemporaryProgram ranges;
  ranges.Save("Broken", "AA (1");
  for (const Row& row : {
           Row{"Missing",
               "Run-time error '9': Subscript out of range (the range file \"Missing.txt\" is missing or empty)"},
           Row{"Broken",
               "Run-time error '5': Invalid procedure call or argument (the range file \"Broken.txt\" holds no weight "
               "for "
               "AA)"},
       }) {
    std::string text;
    EXPECT_EQ(FaultTextOf([&] { return DealRange(ranges.Folder(), row.range, "Xx", "Yy", text); }), row.fault);
  }
}

TEST(DealRange, ATextWithoutBracketsFailsEvenIfEveryHandIsBlocked) {
  EXPECT_EQ(FaultOf([] { return Deal("aces and kings", "Xx", "Yy"); }), RunTimeFault::kInvalidProcedureCall);
  EXPECT_EQ(FaultOf([] { return Deal("aces and kings", "", ""); }), RunTimeFault::kInvalidProcedureCall);
}

TEST(TotalWeight, CountsTheHandsThatSurvive) {
  struct Row {
    const char* name;
    std::string range;
    const char* hero;  // "" for nobody
    double weight;
  };
  for (const Row& row : {
           Row{"the full range around As Ac", EveryHandAt(1), "AA", 1225},
           Row{"aces around As Ac are Ah Ad alone", RangeWith({{"AA", 1}}), "AA", 1},
           Row{"aces around Ac Ks lose three hands", RangeWith({{"AA", 1}}), "AKo", 3},
           Row{"half aces around 7c 2s weigh a half each", RangeWith({{"AA", 0.5}}), "72o", 3},
       }) {
    const HandList list = *row.hero == '\0' ? Deal(row.range, "Xx", "Yy") : DealForClass(row.range, row.hero);
    EXPECT_EQ(TotalWeight(list), row.weight) << row.name;
  }
}

TEST(TotalWeight, AddsInTheOrderOfTheList) {
  HandList list(4);
  list[0].Weight = 1e16;
  list[1].Weight = 1;
  list[2].Weight = 1;
  list[3].Weight = -1e16;
  EXPECT_EQ(FaultOf([] { return TotalWeight({}); }), RunTimeFault::kSubscriptOutOfRange);
  EXPECT_EQ(TotalWeight(list), 0) << "each 1 is lost in the large number it is added to";
}

TEST(LimitToRange, EachHandTakesTheSmallerWeight) {
  struct Row {
    double current;
    double calling;
    double limited;
  };
  for (const Row& row : {Row{1, 0.5, 0.5}, Row{0.5, 1, 0.5}, Row{0, 1, 0}, Row{-1, 0, -1}}) {
    const HandList limited = LimitToRange(Deal(RangeWith({{"AA", row.current}}), "Xx", "Yy"),
                                          Deal(RangeWith({{"AA", row.calling}}), "Xx", "Yy"));
    EXPECT_EQ(limited.at(0).Weight, row.limited) << row.current << " and " << row.calling;
  }
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
