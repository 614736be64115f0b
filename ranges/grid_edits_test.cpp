#include "ranges/grid_edits.h"

#include <algorithm>
#include <cstddef>
#include <gtest/gtest.h>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include "testing/range_texts.h"

namespace quillon {
namespace {

// AA, AKs, AQs and so on: as good an order as any.
HandOrder IndexOrder() {
  HandOrder order{};
  std::iota(order.begin(), order.end(), std::int16_t{0});
  return order;
}

CellColors GridOf(const std::string& notation) {
  return std::get<CellColors>(CellsOfNotation(notation, IndexOrder()));
}

TEST(TogglesBetween, AreThoseOfTheCellsThatChange) {
  struct Case {
    const char* rule;
    std::string from;
    std::string to;
    std::vector<CellToggle> toggles;
  };
  for (const Case& c : std::vector<Case>{
           {"what is right already stays", "AA,AKs:0.5", "AA,AKs:0.5", {}},
           {"selected at half weight", "none", "AA:0.5", {{0, true}}},
           {"full is cleared", "AA", "none", {{0, false}}},
           {"half turns to full by way of none", "AA:0.5", "AA", {{0, false}, {0, false}}},
           {"full turns to half by way of none", "AA", "AA:0.5", {{0, true}, {0, true}}},
           {"in index order", "22,KK:0.5", "AA,KK", {{0, false}, {14, false}, {14, false}, {168, false}}},
       }) {
    EXPECT_EQ(TogglesBetween(GridOf(c.from), GridOf(c.to)), c.toggles) << c.rule;
  }
}

TEST(GridEdits, SelectAsAClickDoes) {
  struct Case {
    const char* rule;
    CellColors cells;
    std::string text;
  };
  std::string others = AllLabels();
  for (const std::string_view selected : {"AA ", "KK ", "QQ "})
    others.erase(others.find(selected), selected.size());
  const CellColors shown = GridOf("AA,KK:0.5,QQ:0.5");
  for (const Case& c : std::vector<Case>{
           {"everything", EverySelectedCell(false), EveryHandAt(1)},
           {"the opposite has neither full nor half", InvertedCells(shown, false), TextWith(others)},
           {"the opposite, with \"Maybe\"", InvertedCells(shown, true), TextWith("", others)},
           {"the opposite of nothing", InvertedCells(UnselectedCells(), false), EveryHandAt(1)},
           {"the opposite of everything", InvertedCells(EverySelectedCell(true), true), EveryHandAt(0)},
       }) {
    EXPECT_EQ(RangeTextFromGrid(c.cells), c.text) << c.rule;
  }
}

TEST(CellsOfNotation, HaveEachWeightThatAGridCanShow) {
  EXPECT_EQ(RangeTextFromGrid(GridOf("AA,KK:0.5,QQ:0")), TextWith("AA", "KK"));
  EXPECT_EQ(RangeTextFromGrid(GridOf("Full: AA | Half: KK,QQ")), TextWith("AA", "KK QQ"));
  EXPECT_EQ(RangeTextFromGrid(GridOf("top 1%")), TextWith("AA AKs AQs")) << "by the order given";
  EXPECT_EQ(std::get<NotationError>(CellsOfNotation("AA, KK:0.25", IndexOrder())),
            (NotationError{4, "the grid knows the weights 0, 0.5 and 1 only"}));
}

TEST(BestCells, TakeAShareAsPeopleTypeIt) {
  struct Case {
    std::string share;
    std::string notation;  // empty if it is not a share
  };
  for (const Case& c : std::vector<Case>{
           {"15", "top 15%"},  {"15%", "top 15%"}, {" 12.5 % ", "top 12.5%"},
           {".5", "top 0.5%"}, {"0", "none"},      {"100", "any"},
           {"007", "top 7%"},  {"", ""},           {" ", ""},
           {"%", ""},          {".", ""},          {"100.1", ""},
           {"-5", ""},         {"+5", ""},         {"1e1", ""},
           {"12,5", ""},       {"15%,AKs", ""},    {"15:0.5", ""},
           {"1 5", ""},        {"15%%", ""},       {"1.2.3", ""},
           {"fifteen", ""},    {"inf", ""},
       }) {
    for (const bool half : {false, true}) {
      const std::optional<CellColors> best = BestCells(c.share, half, IndexOrder());
      ASSERT_EQ(best.has_value(), !c.notation.empty()) << c.share;
      if (!best) continue;
      EXPECT_EQ(*best, GridOf(c.notation + (half ? ":0.5" : ""))) << c.share;
    }
  }
}

// Letters add grids of their own, "<" is undo and ">" redo.
TEST(GridHistory, GoesBackAndForth) {
  struct Case {
    const char* rule;
    std::string steps;
    std::string shown;
    bool canUndo;
    bool canRedo;
  };
  const auto gridNamed = [](char name) { return GridOf(std::string(2, name)); };
  std::string many;
  for (int i = 0; i < 500; ++i)
    many += "34";
  for (const Case& c : std::vector<Case>{
           {"nothing yet", "", "2", false, false},
           {"one step back", "3<", "2", false, true},
           {"no further back than the range shown", "3<<<<>", "3", true, false},
           {"no further forth than the last step", "34<>>>", "4", true, false},
           {"a new step ends the way forth", "345<<6", "6", true, false},
           {"and the way back goes past it", "345<<6<<", "2", false, true},
           {"any number of steps", many + std::string(1000, '<'), "2", false, true},
           {"a step that changes nothing is none", "33", "3", true, false},
           {"nor does it end the way forth", "34<3", "3", true, true},
       }) {
    GridHistory history(gridNamed('2'));
    CellColors shown = gridNamed('2');
    for (const char step : c.steps) {
      shown = step == '<' ? history.Undo() : step == '>' ? history.Redo() : gridNamed(step);
      history.Add(shown);  // no change, even after an undo
    }
    EXPECT_EQ(shown, gridNamed(c.shown.front())) << c.rule;
    EXPECT_EQ(std::pair(history.CanUndo(), history.CanRedo()), std::pair(c.canUndo, c.canRedo)) << c.rule;
  }
}

}  // namespace
}  // namespace quillon
