#include "ranges/new_range.h"

#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "ranges/range_fixtures.h"
#include "ranges/range_text.h"
#include "ranges/recorded_dialogs.h"
#include "support/passing_calls.h"

namespace quillon {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The dialog, fresh, over the ranges "a" and "b", opened from chooser 0.
class NewRange : public testing::Test {
 public:
  NewRange() {
    SaveRangeText(program.Folder(), "a", TextWith("AA"));
    SaveRangeText(program.Folder(), "b", TextWith("KK"));
    main.RefreshLists();
    main.Notes.clear();
  }

  [[nodiscard]] const ProgramFolder& Folder() const { return program.Folder(); }
  [[nodiscard]] std::string Text(std::string_view name) const { return LoadRangeText(Folder(), name); }
  void ClickCell(std::string_view label) { ClickNewRangeCell(dialog, HandIndex(label)); }
  void CheckSaveRange(bool checked) {
    dialog.Save = checked;
    ClickSaveRange(dialog);
  }

  TemporaryProgram program;
  RecordedMain main{program.Folder()};
  RecordedNewRange dialog{main};
};

TEST_F(NewRange, ClickOnACellTogglesItAndSumsUp) {
  EXPECT_EQ(dialog.Selection, "0% Selected") << "before the first click";
  ClickCell("AA");
  EXPECT_EQ(dialog.Selection, "0.5% selected");
  EXPECT_EQ(dialog.Summary, "AA");
  dialog.Cells.Half = true;
  ClickCell("AKo");
  EXPECT_EQ(dialog.Selection, "0.9% selected");
  EXPECT_EQ(dialog.Summary, "Full: AA | Half: AKo");
  ClickCell("AA");
  ClickCell("AKo");
  EXPECT_EQ(dialog.Selection, "0% selected");
  EXPECT_EQ(dialog.Summary, "[None]");
  EXPECT_THAT(main.Notes, IsEmpty());
}

TEST_F(NewRange, NotToSaveTheRangeMeansTheScratchName) {
  dialog.Name = "mine";
  CheckSaveRange(false);
  EXPECT_EQ(dialog.Name, "Temp Range1");
  EXPECT_FALSE(dialog.NameEnabled);
  EXPECT_THAT(main.Notes, ElementsAre("disable name"));
}

TEST_F(NewRange, ToSaveItAfterAllSelectsTheScratchNameToBeTypedOver) {
  dialog.Name = "mine";
  CheckSaveRange(false);
  main.Notes.clear();
  CheckSaveRange(true);
  EXPECT_EQ(dialog.Name, "Temp Range1") << "the name of before does not come back";
  EXPECT_TRUE(dialog.NameEnabled);
  EXPECT_THAT(main.Notes, ElementsAre("enable name", "focus name", "select name"));
}

TEST_F(NewRange, OkSavesTellsRefreshesChoosesAndCloses) {
  ClickCell("QQ");
  dialog.Name = "mine";
  ClickNewRangeOk(dialog, Folder());
  EXPECT_EQ(Text("mine"), TextWith("QQ"));
  EXPECT_THAT(dialog.Boxes.Shown, ElementsAre(Saved("mine")));
  EXPECT_THAT(main.Notes, ElementsAre("message", "refresh", "close"));
  EXPECT_EQ(main.List(0).CurrentText(), "mine");
  EXPECT_TRUE(main.EditRangeVisible[0]);
}

TEST_F(NewRange, OnlyTheChooserItWasOpenedFromTakesTheRange) {
  SelectChooserEntry(main, 0, "a");
  SelectChooserEntry(main, 3, "b");
  ClickNewRange(main, 2);
  ClickCell("QQ");
  dialog.Name = "mine";
  ClickNewRangeOk(dialog, Folder());
  const std::vector<std::string> chosen = {"a", "", "mine", "b"};
  for (std::int16_t index = 0; index < kChooserCount; ++index) {
    EXPECT_EQ(main.List(index).CurrentText(), chosen.at(static_cast<std::size_t>(index))) << index;
    EXPECT_THAT(main.List(index).Entries(), ElementsAre("", "a", "b", "mine")) << index;
  }
}

TEST_F(NewRange, SecondLinkTakesTheOpenDialogOver) {
  ClickNewRange(main, 1);
  ClickCell("QQ");
  ClickNewRange(main, 3);
  EXPECT_EQ(RangeTextFromGrid(dialog.Cells), TextWith("QQ")) << "the same dialog";
  dialog.Name = "mine";
  ClickNewRangeOk(dialog, Folder());
  EXPECT_EQ(main.List(1).CurrentText(), "");
  EXPECT_EQ(main.List(3).CurrentText(), "mine");
}

TEST_F(NewRange, NameThatCannotBeHadLeavesTheDialogOpenWithAllItsInput) {
  ClickCell("QQ");
  ClickNewRangeOk(dialog, Folder());
  EXPECT_THAT(dialog.Boxes.Shown, ElementsAre(NoName()));
  dialog.Name = "b";
  ClickNewRangeOk(dialog, Folder());
  EXPECT_THAT(dialog.Boxes.Shown, ElementsAre(NoName(), Exists("b")));
  EXPECT_THAT(main.Notes, ElementsAre("message", "message")) << "neither saved nor closed";
  EXPECT_EQ(Text("b"), TextWith("KK"));
  EXPECT_EQ(dialog.Name, "b");
  EXPECT_EQ(RangeTextFromGrid(dialog.Cells), TextWith("QQ"));
}

TEST_F(NewRange, ScratchRangeIsReplacedEachTimeWithoutAComplaint) {
  for (const char* label : {"QQ", "JJ"}) {
    RecordedNewRange fresh(main);
    fresh.Save = false;
    ClickSaveRange(fresh);
    ClickNewRangeCell(fresh, HandIndex(label));
    ClickNewRangeOk(fresh, Folder());
    EXPECT_EQ(Text("Temp Range1"), TextWith(label));
    EXPECT_THAT(fresh.Boxes.Shown, ElementsAre(Saved("Temp Range1")));
    EXPECT_EQ(main.List(0).CurrentText(), "Temp Range1");
  }
}

TEST_F(NewRange, SelectionOfNothingIsSavedLikeAnyOther) {
  dialog.Name = "nothing";
  ClickNewRangeOk(dialog, Folder());
  EXPECT_EQ(Text("nothing"), TextWith(""));
  EXPECT_THAT(dialog.Boxes.Shown, ElementsAre(Saved("nothing")));
}

TEST_F(NewRange, EnterInTheNameIsAClickOnOk) {
  dialog.Name = "mine";
  for (const int character : {10, 109, 8, 27, 0})
    TypeInRangeName(dialog, Folder(), character);
  EXPECT_THAT(main.Notes, IsEmpty()) << "no other key is";
  TypeInRangeName(dialog, Folder(), 13);
  EXPECT_EQ(Text("mine"), TextWith(""));
  EXPECT_THAT(main.Notes, ElementsAre("message", "refresh", "close"));
}

TEST_F(NewRange, EnterWithANameThatCannotBeHadLeavesTheDialogOpen) {
  TypeInRangeName(dialog, Folder(), 13);
  EXPECT_THAT(dialog.Boxes.Shown, ElementsAre(NoName()));
  EXPECT_THAT(main.Notes, ElementsAre("message"));
}

TEST_F(NewRange, CancelHidesTheDialogAsItIs) {
  ClickCell("QQ");
  dialog.Name = "mine";
  CheckSaveRange(true);
  main.Notes.clear();
  ClickNewRangeCancel(dialog);
  EXPECT_THAT(main.Notes, ElementsAre("hide"));
  EXPECT_EQ(RangeTextFromGrid(dialog.Cells), TextWith("QQ"));
  EXPECT_EQ(dialog.Selection, "0.5% selected");
  EXPECT_EQ(dialog.Name, "mine");
}

TEST_F(NewRange, RangeThatCannotBeWrittenIsFatalBeforeAnythingIsTold) {
  class NoWriting final : public PassingCalls {
   public:
    ssize_t Write(int /*file*/, std::string_view /*bytes*/) override { return -ENOSPC; }
  };
  NoWriting calls;
  dialog.Name = "mine";
  EXPECT_EQ(FaultOf([&] { ClickNewRangeOk(dialog, {Folder().Path, &calls}); }), RunTimeFault::kDiskFull);
  EXPECT_THAT(main.Notes, IsEmpty());
}

}  // namespace
}  // namespace quillon
