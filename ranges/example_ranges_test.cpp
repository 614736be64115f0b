#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "ranges/range_files.h"
#include "ranges/range_lists.h"
#include "ranges/range_summary.h"
#include "ranges/range_text.h"

namespace quillon {
namespace {

using ::testing::ElementsAre;

const ProgramFolder& Examples() {
  static const ProgramFolder folder{QUILLON_EXAMPLES_FOLDER};
  return folder;
}

struct Example {
  const char* name;
  const char* summary;
  double combos;
  const char* caption;
};

const std::vector<Example>& AllExamples() {
  static const std::vector<Example> examples = {
      {"Big Blind Call", "77+,A2s+,KJs+,A2o+,KQo", 260, "19.6% selected"},
      {"Button Shove",
       "Full: 22+,A2s+,K4s+,Q7s+,J7s+,T7s+,97s+,86s+,76s,65s,A4o+,K9o+,Q9o+,J9o+,T9o | Half: K3s-K2s,54s,A3o,K8o", 492,
       "37.1% selected"},
      {"Everything", "[Everything]", 1326, "100% selected"},
      {"Tight Open", "66+,ATs+,KTs+,QTs+,JTs,T9s,ATo+,KQo", 158, "11.9% selected"},
  };
  return examples;
}

TEST(ExampleRanges, AreTheFilesOfTheirFolder) {
  EXPECT_THAT(RangeFolderEntries(Examples()),
              ElementsAre("Big Blind Call.txt", "Button Shove.txt", "Everything.txt", "Tight Open.txt"));
}

TEST(ExampleRanges, AreWrittenAsTheProgramWritesThem) {
  for (const Example& example : AllExamples()) {
    const std::string text = LoadRangeText(Examples(), example.name);
    std::array<double, kHandClassCount> weights{};
    for (std::int16_t index = 0; index < kHandClassCount; ++index)
      weights[static_cast<std::size_t>(index)] = RangeWeightOf(text, HandLabel(index));
    EXPECT_EQ(text, RangeTextOf(weights)) << example.name;
    EXPECT_EQ(ReadAllBytes(RangeFilePath(Examples(), example.name)), text + "\r\n") << example.name;
  }
}

TEST(ExampleRanges, HoldTheHandsTheyAreKnownFor) {
  for (const Example& example : AllExamples()) {
    const std::string text = LoadRangeText(Examples(), example.name);
    EXPECT_EQ(RangeSummary(text), example.summary) << example.name;
    EXPECT_EQ(SelectedCombos(text), example.combos) << example.name;
    EXPECT_EQ(SelectionCaption(SelectedCombos(text)), example.caption) << example.name;
  }
}

// With these two an analysis of a shove shows its warning about dropped hands: one that is halved and one that is gone.
TEST(ExampleRanges, BigBlindCallsWithTwoClassesMoreThanTheButtonShoves) {
  const std::string shove = LoadRangeText(Examples(), "Button Shove");
  const std::string call = LoadRangeText(Examples(), "Big Blind Call");
  std::vector<std::string> dropped;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const std::string_view label = HandLabel(index);
    if (RangeWeightOf(call, label) > RangeWeightOf(shove, label)) dropped.emplace_back(label);
  }
  EXPECT_THAT(dropped, ElementsAre("A3o", "A2o"));
  EXPECT_EQ(RangeWeightOf(shove, "A3o"), 0.5);
  EXPECT_EQ(RangeWeightOf(shove, "A2o"), 0);
}

}  // namespace
}  // namespace quillon
