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

TEST(ExampleRanges, AreFilesAsTheProgramWritesThemWithTheHandsTheyAreKnownFor) {
  struct Example {
    const char* name;
    const char* summary;
    double combos;
  };
  std::vector<std::string> files;
  for (const Example& example : {
           Example{"Big Blind Call", "77+,A2s+,KJs+,A2o+,KQo", 260},
           Example{"Button Shove",
                   "Full: 22+,A2s+,K4s+,Q7s+,J7s+,T7s+,97s+,86s+,76s,65s,A4o+,K9o+,Q9o+,J9o+,T9o | Half: "
                   "K3s-K2s,54s,A3o,K8o",
                   492},
           Example{"Everything", "[Everything]", 1326},
           Example{"Tight Open", "66+,ATs+,KTs+,QTs+,JTs,T9s,ATo+,KQo", 158},
       }) {
    const std::string text = LoadRangeText(Examples(), example.name);
    EXPECT_EQ(text, RangeTextOf(RangeWeightsOf(text))) << example.name;
    EXPECT_EQ(ReadAllBytes(RangeFilePath(Examples(), example.name)), text + "\r\n") << example.name;
    EXPECT_EQ(RangeSummary(text), example.summary);
    EXPECT_EQ(SelectedCombos(text), example.combos) << example.name;
    files.push_back(RangeFileName(example.name));
  }
  EXPECT_EQ(RangeFolderEntries(Examples()), files);
}

// With these two, the analysis of a shove warns about dropped hands: one halved and one gone.
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
