#include "ranges/range_notation.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <limits>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include "ranges/range_text.h"
#include "testing/fault_of.h"
#include "testing/range_texts.h"

namespace quillon {
namespace {

using Order = std::array<std::int16_t, kHandClassCount>;

// An order that differs from the index order: AA, KK and so on, then the other classes by index.
Order PairsFirst() {
  Order order{};
  std::size_t next = 0;
  for (const bool pairs : {true, false}) {
    for (std::int16_t index = 0; index < kHandClassCount; ++index) {
      if ((index % 14 == 0) == pairs) order[next++] = index;
    }
  }
  return order;
}

std::string Read(const std::string& notation) {
  const NotationReading reading = ReadRangeNotation(notation, PairsFirst());
  if (const auto* const error = std::get_if<NotationError>(&reading)) return MarkedPlace(notation, *error);
  return RangeTextOf(std::get<ClassWeights>(reading));
}

struct ReadingCase {
  const char* rule;
  std::string notation;
  std::string full;
  std::string half = "";
};

void ExpectReadings(const std::vector<ReadingCase>& cases) {
  for (const ReadingCase& c : cases)
    EXPECT_EQ(Read(c.notation), TextWith(c.full, c.half)) << c.rule;
}

TEST(RangeNotation, ReadsClassesAndRuns) {
  ExpectReadings({
      {"a pair", "88", "88"},
      {"both", "AK", "AKs AKo"},
      {"either card first", "KA", "AKs AKo"},
      {"10 is T", "10A,1010,J10o,109s", "ATs ATo TT JTo T9s"},
      {"an open run of pairs goes up to aces", "JJ+", "AA KK QQ JJ"},
      {"in an open run the high card stays", "ATs+", "AKs AQs AJs ATs"},
      {"the last class alone", "32o+", "32o"},
      {"a closed run of pairs", "JJ-88", "JJ TT 99 88"},
      {"in either order, either card first", "9A-QA", "AQs AJs ATs A9s AQo AJo ATo A9o"},
      {"both cards falling", "76s-54s", "76s 65s 54s"},
  });
}

TEST(RangeNotation, ReadsItemsHoweverTheyAreSeparated) {
  ExpectReadings({
      {"blanks and tabs", "  AA \t KK ", "AA KK"},
      {"many at once", ",;AA, ; \n,KK;;", "AA KK"},
      {"a byte-order mark before them",
       "\xEF\xBB\xBF"
       "AA, KK",
       "AA KK"},
  });
}

TEST(RangeNotation, ReadsSharesByTheOrderGiven) {
  ExpectReadings({
      {"a share takes the best", "top 1%", "AA KK"},
      {"without a blank, in any case", "TOP1%", "AA KK"},
      {"10% is a share", "10%",
       "AA KK QQ JJ TT 99 88 77 66 55 44 33 22 AKs AQs AJs ATs A9s A8s A7s A6s A5s A4s A3s A2s AKo"},
      {"nearer to nothing", ".22%", ""},
      {"nearer to aces", "0.23%", "AA"},
      {"a number with an exponent", "1e0%", "AA KK"},
      {"everything", "100%", AllLabels()},
  });
}

// 55 offsuit classes are 660 hands, and with aces 666: half of all, 663, is halfway between the two.
TEST(RangeNotation, OfTwoSharesEquallyNearTheSmallerIsTaken) {
  Order order{};
  std::iota(order.begin(), order.end(), std::int16_t{0});
  const auto offsuit = [](std::int16_t index) { return ComboCount(HandLabel(index)) == 12; };
  const auto rest = std::stable_partition(order.begin(), order.end(), offsuit);
  std::rotate(order.begin() + 55, std::find(rest, order.end(), HandIndex("AA")), order.end());
  std::string labels;
  for (std::size_t place = 0; place < 55; ++place)
    labels.append(HandLabel(order.at(place))).append(" ");
  EXPECT_EQ(ReadRangeNotation("50%", order), NotationReading(RangeWeightsOf(TextWith(labels))));
  EXPECT_EQ(ReadRangeNotation("50.01%", order), NotationReading(RangeWeightsOf(TextWith(labels + "AA"))));
}

TEST(RangeNotation, ReadsWholeRanges) {
  ExpectReadings({
      {"any", "any", AllLabels()},
      {"as the summary says it", "[everything]", AllLabels()},
      {"as the summary says it", "[None]", ""},
      {"none takes nothing away", "AA none", "AA"},
  });
}

TEST(RangeNotation, ReadsWeights) {
  ExpectReadings({
      {"in percent", "AA:50%,KK:100%", "KK", "AA"},
      {"as in a range file", "AA (0.5), KK (1), QQ (0), ", "KK", "AA"},
      {"without a blank before it", "AA(0.5),KK( 1 )", "KK", "AA"},
      {"with a blank in the weight", "AA (0. 5), KK ( 10 0 % )", "KK", "AA"},
      {"of a run", "QQ+:.5, 76s-54s (5E-1)", "", "AA KK QQ 76s 65s 54s"},
      {"of a share", "top 1%:50%", "", "AA KK"},
      {"of items that overlap the later holds", "JJ+,QQ:0.5,KK:0", "AA JJ", "QQ"},
      {"a summary", "Full: AA | Half: KK,QQ", "AA", "KK QQ"},
      {"in any case, without blanks", "half:KK|FULL:AA", "AA", "KK"},
      {"a weight of its own goes before the part's", "Half: KK:1 QQ", "KK", "QQ"},
  });
}

TEST(RangeNotation, AnErrorMarksTheItem) {
  const std::string spaced = "a run has no space before or after its dash, as in JJ-88";
  const std::string run =
      "a run goes from pair to pair, keeps its high card, or falls with both cards, all suited or all offsuit";
  const std::string weight = "a weight is from 0 to 1, or from 0% to 100%";
  const std::string half = "a hand is two cards, such as AKs, AK or 88";
  struct Case {
    std::string notation;
    std::string marked;
  };
  const std::string nul("AA \0", 4);
  for (const Case& c : std::vector<Case>{
           {"AKs, KXs+", "AKs, KXs+\n     ^ \"X\" is not a rank"},
           {"\xEF\xBB\xBF"
            "AKs, KXs+",
            "AKs, KXs+\n     ^ \"X\" is not a rank"},
           {"A", "A\n^ " + half},
           {"88s", "88s\n^ a pair is neither suited nor offsuit"},
           {"JJ - 88", "JJ - 88\n   ^ " + spaced},
           {"AA JJ -88", "AA JJ -88\n      ^ " + spaced},
           {"JJ- 88", "JJ- 88\n^ " + spaced},
           {"JJ, -88", "JJ, -88\n    ^ " + half},
           {"JJ,-88", "JJ,-88\n   ^ " + half},
           {"QQ-AKs", "QQ-AKs\n^ " + run},
           {"AQs-A9o", "AQs-A9o\n^ " + run},
           {"76s-53s", "76s-53s\n^ " + run},
           {"top 15", "top 15\n^ after top comes a share, such as 15%"},
           {"AA, 101%", "AA, 101%\n    ^ a share is from 0% to 100%"},
           {"1e999%", "1e999%\n^ a share is from 0% to 100%"},
           {"AA:2", "AA:2\n^ " + weight},
           {"AA:", "AA:\n^ " + weight},
           {"AA:%", "AA:%\n^ " + weight},
           {"AA:-1", "AA:-1\n^ " + weight},
           {"AA:nan", "AA:nan\n^ " + weight},
           {"-5%", "-5%\n^ " + half},
           {"JJ-88+", "JJ-88+\n^ \"+\" does not belong here"},
           {"AA (0.5 KK)", "AA (0.5 KK)\n^ \")\" is missing after the weight"},
           {"AA (1 1)", "AA (1 1)\n^ a weight is from 0 to 1, or from 0% to 100%"},
           {"AA (x)", "AA (x)\n^ " + weight},
           {"AA | KK", "AA | KK\n   ^ after \"|\" comes Full: or Half:"},
           {"", "\n^ there is no hand here; write \"none\" for an empty range"},
           {nul, "AA ?\n   ^ character 0 is not a rank"},
           {"KK\tJJ–88", "KK JJ–88\n   ^ \"–\" does not belong here"},
           {"½, AB", "½, AB\n^ \"½\" is not a rank"},
           {"AA\nKK, AB\nQQ", "KK, AB\n    ^ \"B\" is not a rank"},
       }) {
    EXPECT_EQ(Read(c.notation), c.marked) << c.notation;
  }
}

TEST(RangeNotation, ForAGridAWeightThatItCannotShowIsAnError) {
  const std::string reason = "^ the grid knows the weights 0, 0.5 and 1 only";
  struct Case {
    std::string notation;
    std::string marked;  // empty if the notation is valid
  };
  for (const Case& c : std::vector<Case>{
           {"AA:1, KK:0.5, QQ:0, JJ:50%, TT (0.5)", ""},
           {"Half: 88", ""},
           {"AA, KK:0.25", "AA, KK:0.25\n    " + reason},
           {"AA (0.75), ", "AA (0.75), \n" + reason},
           {"KK:0.25, KK", "KK:0.25, KK\n" + reason},
           {"KK, none:10%", "KK, none:10%\n    " + reason},
       }) {
    const NotationReading all = ReadRangeNotation(c.notation, PairsFirst());
    const NotationReading forGrid = ReadRangeNotation(c.notation, PairsFirst(), NotationWeights::kOfGrid);
    const auto* const error = std::get_if<NotationError>(&forGrid);
    EXPECT_EQ(error == nullptr ? "" : MarkedPlace(c.notation, *error), c.marked);
    EXPECT_EQ(error == nullptr, forGrid == all) << c.notation;
  }
}

TEST(RangeNotation, OfALongLineTheMarkShowsWhatIsAroundThePlace) {
  std::string before;
  for (int i = 0; i < 1000; ++i)
    before += "AA,";
  EXPECT_EQ(Read(before + "XX," + before), before.substr(0, 60) + "XX," + before.substr(0, 57) + "\n" +
                                               std::string(60, ' ') + "^ \"X\" is not a rank");
  EXPECT_EQ(MarkedPlace("AA,KK,XX,QQ,JJ", {6, "wrong"}, 3), "KK,XX,\n   ^ wrong");
  EXPECT_EQ(MarkedPlace("A½XX", {3, "wrong"}, 1), "X\n^ wrong") << "half a character is left out";
}

TEST(RangeNotation, ANotationWithoutEndIsRefused) {
  std::string notation(kLongestNotation, ' ');
  notation.replace(0, 2, "AA");
  EXPECT_EQ(Read(notation), TextWith("AA"));
  const NotationReading reading = ReadRangeNotation(notation + " ", PairsFirst());
  EXPECT_EQ(reading, NotationReading(NotationError{0, "a notation has at most 65536 bytes"}));
}

ClassWeights Weights(const std::vector<std::pair<std::string, double>>& weights) {
  ClassWeights all{};
  for (const auto& [label, weight] : weights)
    all.at(static_cast<std::size_t>(HandIndex(label))) = weight;
  return all;
}

TEST(RangeNotation, WritesRunsOfEqualWeight) {
  ClassWeights mixed = Weights({{"K3s", 0.5}, {"K2s", 0.5}, {"AKo", 0.25}});
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const std::string_view label = HandLabel(index);
    if (label.size() == 2 || (label[0] == 'A' && label[2] == 's')) mixed.at(static_cast<std::size_t>(index)) = 1;
  }
  ClassWeights everything{};
  everything.fill(1);
  ClassWeights nearlyEverything{};
  nearlyEverything.fill(0.5);
  struct Case {
    const char* rule;
    ClassWeights weights;
    std::string notation;
  };
  for (const Case& c : std::vector<Case>{
           {"everything", everything, "any"},
           {"runs and weights", mixed, "22+,A2s+,K3s-K2s:0.5,AKo:0.25"},
           {"a half run into a full class stays", Weights({{"AA", 0.5}, {"KK", 1}}), "AA:0.5,KK"},
           {"weights that read the same are one run", Weights({{"AA", 0.1 + 0.2}, {"KK", 0.3}}), "KK+:0.3"},
           {"a small weight has an exponent", Weights({{"AA", 1e-20}}), "AA:1E-20"},
           {"fifteen digits", Weights({{"AA", 1.0 / 3}}), "AA:0.333333333333333"},
           {"weights beyond 1 are written", Weights({{"AA", 2}, {"KK", -1}}), "AA:2,KK:-1"},
       }) {
    EXPECT_EQ(RangeNotation(c.weights), c.notation) << c.rule;
    EXPECT_EQ(RangeNotation(RangeTextOf(c.weights)), c.notation) << c.rule;
  }
  EXPECT_EQ(RangeNotation(nearlyEverything).substr(0, 16), "22+:0.5,A2s+:0.5");
  EXPECT_EQ(FaultOf([] {
              return RangeNotation(Weights({{"AA", std::numeric_limits<double>::quiet_NaN()}}));
            }),
            RunTimeFault::kOverflow);
}

}  // namespace
}  // namespace quillon
