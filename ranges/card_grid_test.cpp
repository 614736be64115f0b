#include "ranges/card_grid.h"

#include <cstddef>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "ranges/range_text.h"
#include "testing/fault_of.h"
#include "testing/range_texts.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

constexpr CellClick kPlainClick{};
constexpr CellClick kHalfClick{.Half = true};
constexpr CellClick kShiftClick{.Shift = true};

Rgb& ColorOf(CellColors& cells, std::string_view label) {
  return cells.at(static_cast<std::size_t>(HandIndex(label)));
}

// A grid with two lists of labels selected at full and at half.
CellColors GridWith(const std::string& full, const std::string& half = {}) {
  CellColors cells = UnselectedCells();
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    if (HasLabel(full, HandLabel(index))) ColorOf(cells, HandLabel(index)) = kFullColor;
    if (HasLabel(half, HandLabel(index))) ColorOf(cells, HandLabel(index)) = kHalfColor;
  }
  return cells;
}

CellColors Clicked(CellColors cells, std::string_view label, CellClick click) {
  ToggleCell(cells, HandIndex(label), click);
  return cells;
}

TEST(PlaceCardGrid, GoesByTheFramesPlaceAndTheSizeOfASquare) {
  const CardGridPlaces places = PlaceCardGrid(1260, -40, {300, 200});
  for (std::size_t index = 0; index < places.Cells.size(); ++index) {
    const CellPlace& cell = places.Cells.at(index);
    const auto left = static_cast<float>(1360 + 325 * (index % 13));
    const std::size_t row = index / 13;
    const auto top = static_cast<float>(60 + 225 * row);
    EXPECT_EQ(cell.Square, (TwipRect{left, top, 300, 200})) << index;
    EXPECT_EQ(cell.Label, (TwipRect{left + 10, top + 100, 280, 100})) << index;
  }
  EXPECT_EQ(places.Frame, (TwipRect{1260, -40, 4400, 3100}));
}

TEST(CellBaseColor, LooksAtTheLastCharacterAlone) {
  EXPECT_EQ(ColorText(CellBaseColor("nuts")), "#ffc0c0");
  EXPECT_EQ(ColorText(CellBaseColor("AKo")), "#e0e0e0");
  for (const char* label : {"AA", "", "sAK", "AKS"})
    EXPECT_EQ(ColorText(CellBaseColor(label)), "#c0ffc0") << label;
  const CellColors cells = UnselectedCells();
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    EXPECT_EQ(cells.at(static_cast<std::size_t>(index)), CellBaseColor(HandLabel(index))) << index;
}

TEST(CaptionColor, IsWhiteOnFullAlone) {
  EXPECT_EQ(ColorText(kFullColor), "#0a246a");
  EXPECT_EQ(ColorText(kHalfColor), "#ff8000");
  EXPECT_EQ(CaptionColorOn(kFullColor), (Rgb{255, 255, 255}));
  for (const Rgb color : {kHalfColor, kUnselectedPairColor, Rgb{10, 36, 107}})
    EXPECT_EQ(CaptionColorOn(color), (Rgb{0, 0, 0})) << ColorText(color);
}

struct ClickCase {
  const char* rule;
  const char* label;
  Rgb before;
  CellClick click;
  Rgb after;
};

TEST(ToggleCell, ClickSelectsAnUnselectedCellAndClearsAnyOther) {
  const std::vector<ClickCase> cases = {
      {"a pair is selected in full", "AA", kUnselectedPairColor, kPlainClick, kFullColor},
      {"an offsuit class is selected in full", "72o", kUnselectedOffsuitColor, kPlainClick, kFullColor},
      {"so is a suited class", "A5s", kUnselectedSuitedColor, kHalfClick, kHalfColor},
      {"full is cleared", "AA", kFullColor, kPlainClick, kUnselectedPairColor},
      {"half is cleared and does not turn to full", "AKo", kHalfColor, kPlainClick, kUnselectedOffsuitColor},
      {"nor is a colour one step away", "AA", {192, 255, 193}, kPlainClick, kUnselectedPairColor},
  };
  for (const ClickCase& c : cases) {
    CellColors before = UnselectedCells();
    ColorOf(before, c.label) = c.before;
    CellColors after = UnselectedCells();
    ColorOf(after, c.label) = c.after;
    EXPECT_EQ(Clicked(before, c.label, c.click), after) << c.rule;
  }
}

// A slow check by label: the sweep from a class takes those of its higher rank and kind, from its lower rank up.
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
    EXPECT_EQ(Clicked(UnselectedCells(), label, kShiftClick), GridWith(expected)) << label;
  }
}

TEST(ToggleCell, SweepPaintsWhateverTheCellsHad) {
  struct Case {
    const char* rule;
    CellColors before;
    const char* label;
    CellClick click;
    CellColors after;
  };
  const std::vector<Case> cases = {
      {"a selected cell clears all, the unselected too", GridWith("A5s A7s AKs", "A6s"), "A5s", kShiftClick,
       UnselectedCells()},
      {"an unselected one selects all, the half ones too", GridWith("99", "AA"), "88", kShiftClick,
       GridWith("88 99 TT JJ QQ KK AA")},
      {"with the box checked all become half",
       GridWith("KQo", "K9o"),
       "KTo",
       {.Half = true, .Shift = true},
       GridWith("", "K9o KTo KJo KQo")},
  };
  for (const Case& c : cases)
    EXPECT_EQ(Clicked(c.before, c.label, c.click), c.after) << c.rule;
}

TEST(CardGrid, HasTheTextAndTheCaptionsOfFullAndHalf) {
  CellColors grid = GridWith("AA 72o", "AKs 22");
  ColorOf(grid, "KK") = {10, 36, 107};  // one step off is neither
  ColorOf(grid, "QQ") = {255, 128, 1};
  EXPECT_EQ(RangeTextFromGrid(grid), TextWith("AA 72o", "AKs 22"));
  EXPECT_EQ(SelectedCombos(grid), 6 + 12 + 2 + 3);
  EXPECT_EQ(GridCaption(grid), "1.7% selected");
  EXPECT_EQ(GridSummary(grid), "Full: AA,72o | Half: 22,AKs");
}

TEST(ShowRangeOnGrid, PaintsWhatWasSavedAndLeavesSquaresOfOtherWeights) {
  const TemporaryProgram program;
  ClassWeights byHand{};
  byHand[0] = 0.25;
  byHand[1] = 2;
  byHand[2] = -1;
  byHand[3] = 0.999999999999;
  byHand[4] = 0.5;
  struct Case {
    const char* rule;
    std::string saved;
    CellColors before;
    CellColors after;
  };
  const std::vector<Case> cases = {
      {"what was saved", TextWith("AA AKs 72o", "AKo 22"), UnselectedCells(), GridWith("AA AKs 72o", "AKo 22")},
      {"weight 0 leaves a square as it is", TextWith("AKs"), GridWith("AA", "KK"), GridWith("AA AKs", "KK")},
      {"so does a weight that no state has", RangeTextOf(byHand), UnselectedCells(), GridWith("", "ATs")},
  };
  for (const Case& c : cases) {
    SaveRangeText(program.Folder(), "Range", c.saved);
    CellColors grid = c.before;
    ShowRangeOnGrid(grid, program.Folder(), "Range");
    EXPECT_EQ(grid, c.after) << c.rule;
  }
}

TEST(ShowRangeOnGrid, WithoutARangeTextIsFatalAndPaintsNothing) {
  const TemporaryProgram program;
  program.Write("Empty.txt");
  program.Write("Cut.txt", "AA (1), KK (1), 22 ");
  for (const char* const name : {"Missing", "Empty", "Cut", ""}) {
    CellColors grid = GridWith("QQ");
    EXPECT_EQ(FaultOf([&] { ShowRangeOnGrid(grid, program.Folder(), name); }), RunTimeFault::kInvalidProcedureCall)
        << name;
    EXPECT_EQ(grid, GridWith("QQ")) << name;
  }
}

TEST(ShowRangeOnGrid, FailureNamesTheFileThatIsListed) {
  const TemporaryProgram program;
  for (const char* const file : {"Empty.txt", "Button.TXT", "notes.html", "Both.txt", "Both.bak", "K\xE4se.txt"})
    program.Write(file);
  const std::vector<std::pair<const char*, const char*>> cases = {
      {"Empty", "Empty.txt"}, {"Button", "Button.TXT"}, {"notes.", "notes.html"},
      {"Both", "Both.txt"},   {"Käse", "Käse.txt"},     {"Missing", "Missing.txt"},
  };
  CellColors grid{};
  for (const auto& c : cases) {
    EXPECT_THAT(FaultTextOf([&] { ShowRangeOnGrid(grid, program.Folder(), c.first); }),
                testing::HasSubstr("the range file \"" + std::string(c.second) + "\" holds"));
  }
  std::filesystem::remove_all(RangeFolderPath(program.Folder()));
  EXPECT_EQ(FaultOf([&] { ShowRangeOnGrid(grid, program.Folder(), "Empty"); }), RunTimeFault::kInvalidProcedureCall)
      << "the folder has gone";
}

}  // namespace
}  // namespace quillon
