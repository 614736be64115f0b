#include "ranges/card_grid.h"

#include <cstddef>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "ranges/range_fixtures.h"
#include "ranges/range_text.h"
#include "ranges/recorded_card_grid.h"

namespace quillon {
namespace {

using ::testing::IsEmpty;

constexpr Rgb kBlack = {0, 0, 0};
constexpr Rgb kWhite = {255, 255, 255};

RecordedCardGrid ClearGrid() {
  RecordedCardGrid grid;
  BuildCardGrid(grid);
  ClearCardGrid(grid);
  grid.Painted.clear();
  return grid;
}

// A grid with the words of two lists of labels at full and at half.
RecordedCardGrid GridWith(const std::string& full, const std::string& half = {}) {
  RecordedCardGrid grid = ClearGrid();
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    if (HasLabel(full, HandLabel(index))) grid.SetCellColor(index, kFullColor);
    if (HasLabel(half, HandLabel(index))) grid.SetCellColor(index, kHalfColor);
  }
  grid.Painted.clear();
  return grid;
}

// The labels of the squares painted since the last look, in that order.
std::string TakePainted(RecordedCardGrid& grid) {
  std::string labels;
  for (const std::int16_t index : grid.Painted)
    labels.append(labels.empty() ? "" : " ").append(HandLabel(index));
  grid.Painted.clear();
  return labels;
}

// What a user sees of a cell.
std::string LookOf(const RecordedCardGrid& grid, std::string_view label) {
  const RecordedCardGrid::Cell& cell = grid.Of(label);
  return ColorText(cell.Color) + " under " + ColorText(cell.CaptionColor);
}

void Click(RecordedCardGrid& grid, std::string_view label) {
  ToggleCell(grid, HandIndex(label));
}

void ShiftClick(RecordedCardGrid& grid, std::string_view label) {
  grid.ShiftAnswers = {true};
  Click(grid, label);
}

TEST(CardGridColors, HaveTheNumbersTheyAreComparedBy) {
  struct Case {
    const char* state;
    Rgb color;
    std::int32_t number;
  };
  const std::vector<Case> cases = {
      {"none, suited", kUnselectedSuitedColor, 12632319},
      {"none, offsuit", kUnselectedOffsuitColor, 14737632},
      {"none, pair", kUnselectedPairColor, 12648384},
      {"half", kHalfColor, 33023},
      {"full", kFullColor, 6956042},
  };
  for (const Case& c : cases)
    EXPECT_EQ(ColorNumber(c.color), c.number) << c.state;
}

TEST(CellBaseColor, LooksAtTheLastCharacterAlone) {
  struct Case {
    const char* label;
    Rgb color;
  };
  const std::vector<Case> cases = {{"AKs", kUnselectedSuitedColor},  {"32s", kUnselectedSuitedColor},
                                   {"AKo", kUnselectedOffsuitColor}, {"AA", kUnselectedPairColor},
                                   {"22", kUnselectedPairColor},     {"", kUnselectedPairColor},
                                   {"s", kUnselectedSuitedColor},    {"sAK", kUnselectedPairColor},
                                   {"AKS", kUnselectedPairColor},    {"nuts", kUnselectedSuitedColor}};
  for (const Case& c : cases)
    EXPECT_EQ(CellBaseColor(c.label), c.color) << c.label;
}

TEST(BuildCardGrid, PlacesCellsFromTheFrameOn) {
  struct Case {
    const char* label;
    TwipRect square;
    TwipRect caption;
  };
  const std::vector<Case> cases = {
      {"AA", {4960, 820, 405, 405}, {4970, 920, 385, 305}},     {"AKs", {5390, 820, 405, 405}, {5400, 920, 385, 305}},
      {"A2s", {10120, 820, 405, 405}, {10130, 920, 385, 305}},  {"AKo", {4960, 1250, 405, 405}, {4970, 1350, 385, 305}},
      {"KK", {5390, 1250, 405, 405}, {5400, 1350, 385, 305}},   {"A2o", {4960, 5980, 405, 405}, {4970, 6080, 385, 305}},
      {"22", {10120, 5980, 405, 405}, {10130, 6080, 385, 305}},
  };
  RecordedCardGrid grid;
  BuildCardGrid(grid);
  ASSERT_EQ(grid.Cells.size(), 169U);
  for (const Case& c : cases) {
    EXPECT_EQ(grid.Of(c.label).Square, c.square) << c.label;
    EXPECT_EQ(grid.Of(c.label).Label, c.caption) << c.label;
  }
}

TEST(BuildCardGrid, FitsTheFrameRoundTheCells) {
  RecordedCardGrid grid;
  BuildCardGrid(grid);
  EXPECT_EQ(grid.Frame, (TwipRect{.Left = 4860, .Top = 720, .Width = 5765, .Height = 5765}));
}

TEST(BuildCardGrid, GoesByTheFramesPlaceAndTheSizeOfSquareZero) {
  RecordedCardGrid grid;
  grid.Frame = {.Left = 1260, .Top = -40, .Width = 7, .Height = 7};
  grid.Cells.front().Square = {.Left = 1, .Top = 2, .Width = 300, .Height = 200};
  BuildCardGrid(grid);

  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const int row = index / 13;
    const int column = index % 13;
    const TwipRect square = {.Left = static_cast<float>(1360 + 325 * column),
                             .Top = static_cast<float>(60 + 225 * row),
                             .Width = 300,
                             .Height = 200};
    const TwipRect label = {.Left = square.Left + 10, .Top = square.Top + 100, .Width = 280, .Height = 100};
    EXPECT_EQ(grid.Cells.at(static_cast<std::size_t>(index)).Square, square) << index;
    EXPECT_EQ(grid.Cells.at(static_cast<std::size_t>(index)).Label, label) << index;
  }
  EXPECT_EQ(grid.Frame, (TwipRect{.Left = 1260, .Top = -40, .Width = 4400, .Height = 3100}));
}

TEST(BuildCardGrid, ShowsEachLabelInFrontOfItsSquare) {
  RecordedCardGrid grid;
  BuildCardGrid(grid);
  std::vector<std::string> raised;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const RecordedCardGrid::Cell& cell = grid.Cells.at(static_cast<std::size_t>(index));
    EXPECT_TRUE(cell.SquareShown) << index;
    EXPECT_TRUE(cell.LabelShown) << index;
    EXPECT_EQ(cell.Caption, HandLabel(index));
    raised.push_back("square " + std::to_string(index));
    raised.push_back("label " + std::to_string(index));
  }
  EXPECT_EQ(grid.Raised, raised);
}

TEST(BuildCardGrid, LeavesEveryCellUnselectedAndItsTextColourAlone) {
  RecordedCardGrid grid;
  BuildCardGrid(grid);
  EXPECT_EQ(RangeTextFromGrid(grid), TextWith(""));
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const RecordedCardGrid::Cell& cell = grid.Cells.at(static_cast<std::size_t>(index));
    EXPECT_EQ(cell.Color, CellBaseColor(HandLabel(index))) << index;
    EXPECT_EQ(cell.CaptionColor, RecordedCardGrid::Cell{}.CaptionColor) << index;
  }
}

TEST(ClearCardGrid, PutsEveryCellIntoStateNone) {
  RecordedCardGrid grid;
  BuildCardGrid(grid);
  for (RecordedCardGrid::Cell& cell : grid.Cells) {
    cell.Color = kFullColor;
    cell.CaptionColor = kWhite;
  }
  ClearCardGrid(grid);
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const RecordedCardGrid::Cell& cell = grid.Cells.at(static_cast<std::size_t>(index));
    EXPECT_EQ(cell.Color, CellBaseColor(HandLabel(index))) << index;
    EXPECT_EQ(cell.CaptionColor, kBlack) << index;
  }
}

struct ClickCase {
  const char* rule;
  const char* label;
  Rgb before;
  bool half;
  Rgb after;
  Rgb captionAfter;
};

TEST(ToggleCell, ClickSelectsAnUnselectedCellAndClearsAnyOther) {
  const std::vector<ClickCase> cases = {
      {"a pair is selected in full", "AA", kUnselectedPairColor, false, kFullColor, kWhite},
      {"a suited class is selected in full", "AKs", kUnselectedSuitedColor, false, kFullColor, kWhite},
      {"an offsuit class is selected in full", "72o", kUnselectedOffsuitColor, false, kFullColor, kWhite},
      {"with the box checked a pair is selected at half", "22", kUnselectedPairColor, true, kHalfColor, kBlack},
      {"so is a suited class", "A5s", kUnselectedSuitedColor, true, kHalfColor, kBlack},
      {"so is an offsuit class", "AKo", kUnselectedOffsuitColor, true, kHalfColor, kBlack},
      {"full is cleared", "AA", kFullColor, false, kUnselectedPairColor, kBlack},
      {"full is cleared with the box checked", "AKs", kFullColor, true, kUnselectedSuitedColor, kBlack},
      {"half is cleared and does not turn to full", "AKo", kHalfColor, false, kUnselectedOffsuitColor, kBlack},
      {"half is cleared with the box checked", "AKo", kHalfColor, true, kUnselectedOffsuitColor, kBlack},
      {"the base colour of another kind is no base colour", "AA", kUnselectedSuitedColor, false, kUnselectedPairColor,
       kBlack},
      {"nor is a colour one step away", "AA", {192, 255, 193}, false, kUnselectedPairColor, kBlack},
  };
  for (const ClickCase& c : cases) {
    RecordedCardGrid grid = ClearGrid();
    grid.Of(c.label).Color = c.before;
    grid.Half = c.half;
    Click(grid, c.label);
    EXPECT_EQ(grid.Of(c.label).Color, c.after) << c.rule;
    EXPECT_EQ(grid.Of(c.label).CaptionColor, c.captionAfter) << c.rule;
    EXPECT_EQ(TakePainted(grid), c.label) << c.rule;
    EXPECT_EQ(grid.ShiftQuestions, 1) << c.rule;
  }
}

TEST(ToggleCell, TwoClicksWithTheHalfBoxGiveHalfAndThenNone) {
  RecordedCardGrid grid = ClearGrid();
  grid.Half = true;
  Click(grid, "KQo");
  EXPECT_EQ(LookOf(grid, "KQo"), "#ff8000 under #000000");
  Click(grid, "KQo");
  EXPECT_EQ(LookOf(grid, "KQo"), "#e0e0e0 under #000000");
  grid.Half = false;
  Click(grid, "KQo");
  EXPECT_EQ(LookOf(grid, "KQo"), "#0a246a under #ffffff");
}

struct SweepCase {
  const char* rule;
  const char* label;
  const char* painted;
};

TEST(ToggleCell, ShiftClickSweepsToTheBestHandOfTheKind) {
  const std::vector<SweepCase> cases = {
      {"suited, along the row", "A5s", "A5s A6s A7s A8s A9s ATs AJs AQs AKs"},
      {"suited in the first row stops before index 0", "AKs", "AKs"},
      {"suited beside the diagonal", "54s", "54s"},
      {"suited at the right end", "K2s", "K2s K3s K4s K5s K6s K7s K8s K9s KTs KJs KQs"},
      {"the last suited class", "32s", "32s"},
      {"offsuit, up the column", "A5o", "A5o A6o A7o A8o A9o ATo AJo AQo AKo"},
      {"offsuit in the first column stops before index 0", "AKo", "AKo"},
      {"offsuit beside the diagonal", "54o", "54o"},
      {"offsuit at the lower end", "K2o", "K2o K3o K4o K5o K6o K7o K8o K9o KTo KJo KQo"},
      {"the last offsuit class", "32o", "32o"},
      {"a pair, along the diagonal", "88", "88 99 TT JJ QQ KK AA"},
      {"the best pair alone", "AA", "AA"},
      {"the lowest pair takes all", "22", "22 33 44 55 66 77 88 99 TT JJ QQ KK AA"},
  };
  for (const SweepCase& c : cases) {
    RecordedCardGrid grid = ClearGrid();
    ShiftClick(grid, c.label);
    EXPECT_EQ(RangeTextFromGrid(grid), TextWith(c.painted)) << c.rule;
    EXPECT_EQ(TakePainted(grid), c.painted) << c.rule;
    EXPECT_EQ(grid.ShiftQuestions, 1) << c.rule;
  }
}

// A slow reading of the labels: the sweep from a class takes those with its higher rank and kind, from its lower rank
// up.
TEST(ToggleCell, SweepOfEveryClassIsWhatItsLabelSays) {
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const std::string label(HandLabel(index));
    const bool pair = label.size() == 2;
    std::string expected;
    for (std::size_t rank = kRankLetters.find(label[1]) + 1; rank-- > 0;) {
      const char letter = kRankLetters[rank];
      if (!pair && letter == label[0]) break;
      expected += pair ? std::string(2, letter) : std::string{label[0], letter, label[2]};
      expected += ' ';
    }
    RecordedCardGrid grid = ClearGrid();
    ShiftClick(grid, label);
    EXPECT_EQ(TakePainted(grid) + " ", expected) << label;
  }
}

TEST(ToggleCell, SweepPaintsWhateverTheCellsHad) {
  RecordedCardGrid grid = GridWith("A5s A7s AKs", "A6s");
  ShiftClick(grid, "A5s");
  EXPECT_EQ(RangeTextFromGrid(grid), TextWith("")) << "a selected cell clears all, the unselected too";
  EXPECT_EQ(TakePainted(grid), "A5s A6s A7s A8s A9s ATs AJs AQs AKs");
  EXPECT_EQ(LookOf(grid, "AKs"), "#ffc0c0 under #000000");

  grid = GridWith("99", "AA");
  ShiftClick(grid, "88");
  EXPECT_EQ(RangeTextFromGrid(grid), TextWith("88 99 TT JJ QQ KK AA"));
  EXPECT_EQ(LookOf(grid, "AA"), "#0a246a under #ffffff");

  grid = GridWith("KQo", "K9o");
  grid.Half = true;
  ShiftClick(grid, "KTo");
  EXPECT_EQ(RangeTextFromGrid(grid), TextWith("", "K9o KTo KJo KQo"));
  EXPECT_EQ(LookOf(grid, "KQo"), "#ff8000 under #000000");
}

TEST(ToggleCell, SecondClickUnderOnePressOfShiftIsAPlainOne) {
  RecordedCardGrid grid = ClearGrid();
  grid.ShiftAnswers = {true, false};
  Click(grid, "QQ");
  Click(grid, "88");
  EXPECT_EQ(RangeTextFromGrid(grid), TextWith("88 QQ KK AA"));
}

struct CountCase {
  const char* rule;
  std::string full;
  std::string half;
  double combos;
  const char* caption;
};

TEST(GridSelectedCombos, CountsFullAndHalfCells) {
  const std::vector<CountCase> cases = {
      {"nothing", "", "", 0, "0% selected"},
      {"one pair", "88", "", 6, "0.5% selected"},
      {"one half pair", "", "AA", 3, "0.2% selected"},
      {"one suited class", "AKs", "", 4, "0.3% selected"},
      {"one half suited class", "", "AKs", 2, "0.2% selected"},
      {"one offsuit class", "AKo", "", 12, "0.9% selected"},
      {"one half offsuit class", "", "AKo", 6, "0.5% selected"},
      {"a mixture", "AA KK AKs", "AKo 72o", 28, "2.1% selected"},
      {"all at full", AllLabels(), "", 1326, "100% selected"},
      {"all at half", "", AllLabels(), 663, "50% selected"},
  };
  for (const CountCase& c : cases) {
    const RecordedCardGrid grid = GridWith(c.full, c.half);
    EXPECT_EQ(SelectedCombos(grid), c.combos) << c.rule;
    EXPECT_EQ(SelectedCombos(RangeTextFromGrid(grid)), c.combos) << c.rule;
    EXPECT_EQ(SelectionCaption(SelectedCombos(grid)), c.caption) << c.rule;
  }
}

TEST(RangeTextFromGrid, WritesTheWeightsOfFullAndHalf) {
  EXPECT_EQ(RangeTextFromGrid(GridWith("AA 72o", "AKs 22")), TextWith("AA 72o", "AKs 22"));
}

TEST(RangeTextFromGrid, ColourOneStepAwayHasNoWeight) {
  RecordedCardGrid grid = ClearGrid();
  grid.Of("AA").Color = {10, 36, 107};
  grid.Of("KK").Color = {255, 128, 1};
  grid.Of("QQ").Color = {106, 36, 10};
  EXPECT_EQ(RangeTextFromGrid(grid), TextWith(""));
  EXPECT_EQ(SelectedCombos(grid), 0);
}

TEST(ShowRangeOnGrid, PaintsWhatWasSaved) {
  const TemporaryProgram program;
  const RecordedCardGrid saved = GridWith("AA AKs 72o", "AKo 22");
  SaveRangeText(program.Folder(), "Tight", RangeTextFromGrid(saved));

  RecordedCardGrid grid = ClearGrid();
  ShowRangeOnGrid(grid, program.Folder(), "Tight");
  EXPECT_EQ(RangeTextFromGrid(grid), LoadRangeText(program.Folder(), "Tight"));
  EXPECT_EQ(LookOf(grid, "AKs"), "#0a246a under #ffffff");
  EXPECT_EQ(LookOf(grid, "AKo"), "#ff8000 under #000000");
  EXPECT_EQ(LookOf(grid, "KK"), "#c0ffc0 under #000000");
}

TEST(ShowRangeOnGrid, LeavesSquaresOfOtherWeightsAsTheyAre) {
  const TemporaryProgram program;
  SaveRangeText(program.Folder(), "Other", TextWith("AKs"));
  RecordedCardGrid grid = GridWith("AA", "KK");
  ShowRangeOnGrid(grid, program.Folder(), "Other");
  EXPECT_EQ(RangeTextFromGrid(grid), TextWith("AA AKs", "KK"));
}

TEST(ShowRangeOnGrid, WeightThatNoStateHasShowsAsUnselected) {
  const TemporaryProgram program;
  ClassWeights weights{};
  weights[0] = 0.25;
  weights[1] = 2;
  weights[2] = -1;
  weights[3] = 0.999999999999;
  weights[4] = 0.5;
  SaveRangeText(program.Folder(), "By hand", RangeTextOf(weights));
  RecordedCardGrid grid = ClearGrid();
  ShowRangeOnGrid(grid, program.Folder(), "By hand");
  EXPECT_EQ(RangeTextFromGrid(grid), TextWith("", "ATs"));
}

TEST(ShowRangeOnGrid, CaptionFollowsTheSquareWhateverTheWeight) {
  const TemporaryProgram program;
  SaveRangeText(program.Folder(), "Empty", TextWith(""));
  RecordedCardGrid grid = GridWith("AA", "KK");
  for (RecordedCardGrid::Cell& cell : grid.Cells)
    cell.CaptionColor = {1, 2, 3};
  ShowRangeOnGrid(grid, program.Folder(), "Empty");
  EXPECT_EQ(LookOf(grid, "AA"), "#0a246a under #ffffff");
  EXPECT_EQ(LookOf(grid, "KK"), "#ff8000 under #000000");
  EXPECT_EQ(LookOf(grid, "32o"), "#e0e0e0 under #000000");
  EXPECT_THAT(grid.Painted, IsEmpty());
}

TEST(ShowRangeOnGrid, WithoutARangeTextIsFatalAndPaintsNothing) {
  const TemporaryProgram program;
  program.Write("Empty.txt");
  program.Write("Cut.txt", "AA (1), KK (1), 22 ");
  for (const char* const name : {"Missing", "Empty", "Cut", ""}) {
    RecordedCardGrid grid = ClearGrid();
    const auto show = [&] {
      ShowRangeOnGrid(grid, program.Folder(), name);
      return 0;
    };
    EXPECT_EQ(FaultOf(show), RunTimeFault::kInvalidProcedureCall) << name;
    EXPECT_THAT(grid.Painted, IsEmpty()) << name;
  }
}

}  // namespace
}  // namespace quillon
