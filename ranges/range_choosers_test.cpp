#include "ranges/range_choosers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "ranges/range_fixtures.h"
#include "ranges/recorded_dialogs.h"

namespace quillon {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The four choosers of a main window over the ranges "a" and "b", all blank.
class Choosers : public testing::Test {
 public:
  Choosers() {
    SaveRangeText(program.Folder(), "a", TextWith("AA"));
    SaveRangeText(program.Folder(), "b", TextWith("KK"));
    main.RefreshLists();
    main.Notes.clear();
  }

  TemporaryProgram program;
  RecordedMain main{program.Folder()};
};

TEST_F(Choosers, BlankOneOffersNoRangeToEdit) {
  EXPECT_THAT(main.OrVisible, Each(false)) << "filling the lists selects the blank and so hides the links";
  EXPECT_THAT(main.EditRangeVisible, Each(false));
}

TEST_F(Choosers, LinksToEditShowWhereARangeIsChosen) {
  SelectChooserEntry(main, 1, "b");
  EXPECT_THAT(main.OrVisible, ElementsAre(false, true, false, false));
  EXPECT_THAT(main.EditRangeVisible, ElementsAre(false, true, false, false));
  SelectChooserEntry(main, 3, "a");
  EXPECT_THAT(main.EditRangeVisible, ElementsAre(false, true, false, true));
  SelectChooserEntry(main, 1, "");
  EXPECT_THAT(main.OrVisible, ElementsAre(false, false, false, true));
  EXPECT_THAT(main.EditRangeVisible, ElementsAre(false, false, false, true));
}

TEST_F(Choosers, SelectingAnEntryThatIsNotThereDoesNothing) {
  SelectChooserEntry(main, 2, "b");
  SelectChooserEntry(main, 2, "B");
  EXPECT_EQ(main.List(2).CurrentText(), "b");
}

TEST_F(Choosers, DeletedRangeFallsBackToTheBlankAndHidesTheLinks) {
  RecordedManager manager(main);
  SelectChooserEntry(main, 0, "a");
  SelectChooserEntry(main, 1, "b");
  manager.Boxes.Answers = {MessageAnswer::kYes};
  ClickDelete(manager, program.Folder());
  EXPECT_EQ(main.List(0).CurrentText(), "");
  EXPECT_EQ(main.List(1).CurrentText(), "b");
  EXPECT_THAT(main.OrVisible, ElementsAre(false, true, false, false));
  EXPECT_THAT(main.EditRangeVisible, ElementsAre(false, true, false, false));
}

TEST_F(Choosers, EditOpensTheManagerOnTheChosenRange) {
  RecordedManager manager(main);
  SelectChooserEntry(main, 2, "b");
  ClickEditRange(main, 2);
  EXPECT_THAT(main.Notes, ElementsAre("show manager on b"));
  EXPECT_EQ(manager.RangeName, "b");
}

TEST_F(Choosers, EditOfABlankChooserShowsTheManagerAsItStands) {
  RecordedManager manager(main);
  SelectListEntry(main.ManagerRanges, "b");
  ClickEditRange(main, 0);
  EXPECT_THAT(main.Notes, ElementsAre("show manager on b"));
}

TEST_F(Choosers, NewRememberWhichChooserItWasFor) {
  RecordedNewRange dialog(main);
  EXPECT_EQ(main.LastEditCaption, "0");
  ClickNewRange(main, 2);
  ClickNewRange(main, 3);
  EXPECT_EQ(main.LastEditCaption, "3");
  EXPECT_THAT(main.Notes, ElementsAre("show new range for 2", "show new range for 3"));
  EXPECT_THAT(dialog.Boxes.Shown, IsEmpty());
}

}  // namespace
}  // namespace quillon
