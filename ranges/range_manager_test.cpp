#include "ranges/range_manager.h"

#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "ranges/range_fixtures.h"
#include "ranges/range_text.h"
#include "ranges/recorded_dialogs.h"
#include "support/passing_calls.h"

namespace quillon {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

// The Range Manager over the ranges "a" (AA), "b" (KK, and AKs at half) and "c" (all hands), with "a" selected.
class RangeManager : public testing::Test {
 public:
  RangeManager() {
    SaveRangeText(program.Folder(), "a", TextWith("AA"));
    SaveRangeText(program.Folder(), "b", TextWith("KK", "AKs"));
    SaveRangeText(program.Folder(), "c", TextWith(AllLabels()));
    main.RefreshLists();
    main.Notes.clear();
  }

  [[nodiscard]] const ProgramFolder& Folder() const { return program.Folder(); }
  [[nodiscard]] std::string Text(std::string_view name) const { return LoadRangeText(Folder(), name); }
  [[nodiscard]] bool FileExists(const std::string& name) const {
    return std::filesystem::exists(program.RangeFile(name + ".txt"));
  }
  [[nodiscard]] std::vector<std::string> Files() const { return RangeFolderEntries(Folder()); }
  void SelectRange(std::string_view name) { SelectListEntry(main.ManagerRanges, name); }
  void ClickCell(std::string_view label) { ClickManagerCell(manager, HandIndex(label)); }
  [[nodiscard]] std::string Selected() const { return main.ManagerRanges.CurrentText(); }
  [[nodiscard]] std::string GridText() const { return RangeTextFromGrid(manager.Cells); }

  // Empties the folder and the list, as a program without ranges shows it.
  void LoseAllRanges() {
    for (const char* name : {"a", "b", "c"})
      DeleteRange(Folder(), name);
    main.RefreshLists();
    main.Notes.clear();
  }

  TemporaryProgram program;
  RecordedMain main{program.Folder()};
  RecordedManager manager{main};
};

TEST_F(RangeManager, SelectionCaptionIsThePercentageOfAllHands) {
  struct Case {
    const char* rule;
    std::string full;
    std::string half;
    const char* caption;
  };
  const std::vector<Case> cases = {
      {"nothing", "", "", "0% selected"},         {"one pair", "AA", "", "0.5% selected"},
      {"half a pair", "", "AA", "0.2% selected"}, {"all at half", "", AllLabels(), "50% selected"},
      {"all", AllLabels(), "", "100% selected"},
  };
  for (const Case& c : cases) {
    SaveRangeText(Folder(), "x", TextWith(c.full, c.half));
    ClearCardGrid(manager.Cells);
    ShowRangeOnGrid(manager.Cells, Folder(), "x");
    UpdateSelLabel(manager);
    EXPECT_EQ(manager.Selection, c.caption) << c.rule;
  }
}

TEST_F(RangeManager, SelectingARangeShowsIt) {
  EXPECT_EQ(Selected(), "a") << "the first one, when the window is loaded";
  EXPECT_EQ(GridText(), TextWith("AA"));
  EXPECT_EQ(manager.RangeName, "a");
  EXPECT_EQ(manager.Summary, "AA");
  EXPECT_EQ(manager.Selection, "0.5% selected");

  SelectRange("b");
  EXPECT_EQ(GridText(), TextWith("KK", "AKs")) << "and nothing of the range before";
  EXPECT_EQ(manager.RangeName, "b");
  EXPECT_EQ(manager.Summary, "Full: KK | Half: AKs");
  EXPECT_EQ(manager.Selection, "0.6% selected");

  SelectRange("c");
  EXPECT_EQ(manager.Summary, "[Everything]");
  EXPECT_EQ(manager.Selection, "100% selected");
}

TEST_F(RangeManager, SummaryIsOfWhatTheGridCanShow) {
  SaveRangeText(Folder(), "a", "AA (0.25), KK (1), " + TextWith(""));
  SelectRange("a");
  EXPECT_EQ(manager.Summary, "KK");
  EXPECT_EQ(manager.Selection, "0.5% selected");
}

TEST_F(RangeManager, SelectingARangeWithoutAFileIsFatal) {
  std::filesystem::remove(program.RangeFile("b.txt"));
  EXPECT_EQ(FaultOf([&] { SelectRange("b"); }), RunTimeFault::kInvalidProcedureCall);
}

TEST_F(RangeManager, SelectingAnotherRangeLosesTheEditsWithoutAQuestion) {
  ClickCell("QQ");
  SelectRange("b");
  SelectRange("a");
  EXPECT_EQ(GridText(), TextWith("AA"));
  EXPECT_EQ(Text("a"), TextWith("AA"));
  EXPECT_THAT(manager.Boxes.Shown, IsEmpty());
}

TEST_F(RangeManager, RefreshPutsTheGridBackToTheSavedRange) {
  ClickCell("QQ");
  main.RefreshLists();
  EXPECT_EQ(Selected(), "a");
  EXPECT_EQ(GridText(), TextWith("AA"));
  EXPECT_EQ(manager.Summary, "AA");
  EXPECT_THAT(manager.Boxes.Shown, IsEmpty());
}

TEST_F(RangeManager, ClickOnACellTogglesItAndSumsUp) {
  ClickCell("KK");
  EXPECT_EQ(GridText(), TextWith("AA KK"));
  EXPECT_EQ(manager.Selection, "0.9% selected");
  EXPECT_EQ(manager.Summary, "KK+");

  manager.Cells.Half = true;
  ClickCell("QQ");
  EXPECT_EQ(manager.Selection, "1.1% selected");
  EXPECT_EQ(manager.Summary, "Full: KK+ | Half: QQ");

  ClickCell("AA");
  ClickCell("KK");
  ClickCell("QQ");
  EXPECT_EQ(manager.Selection, "0% selected");
  EXPECT_EQ(manager.Summary, "[None]");
  EXPECT_EQ(Text("a"), TextWith("AA")) << "nothing is written";
  EXPECT_THAT(main.Notes, IsEmpty());
}

TEST_F(RangeManager, ModifiedMeansThatGridAndFileDifferAsTexts) {
  struct Case {
    const char* rule;
    std::string text;
    bool modified;
  };
  const std::vector<Case> cases = {
      {"as saved", TextWith("AA", "KK"), false},
      {"a weight that the grid cannot show", "AA (0.25), " + TextWith("KK").substr(8), true},
      {"a weight that is written in another way", "AA (1.0), " + TextWith("KK").substr(8), true},
      {"a remark behind the entries", TextWith("AA") + "my best", true},
      {"a second line end", TextWith("AA") + "\r\n", true},
  };
  for (const Case& c : cases) {
    SaveRangeText(Folder(), "a", c.text);
    SelectRange("a");
    EXPECT_EQ(HasBeenModified(manager, Folder()), c.modified) << c.rule;
  }
}

TEST_F(RangeManager, ClickAndClickAgainIsNoModification) {
  ClickCell("QQ");
  EXPECT_TRUE(HasBeenModified(manager, Folder()));
  ClickCell("QQ");
  EXPECT_FALSE(HasBeenModified(manager, Folder()));
  ClickManagerOk(manager, Folder());
  EXPECT_THAT(main.Notes, ElementsAre("close"));
}

TEST_F(RangeManager, FileThatChangedBehindTheGridIsAModification) {
  SaveRangeText(Folder(), "a", TextWith("22"));
  EXPECT_TRUE(HasBeenModified(manager, Folder()));
  DeleteRange(Folder(), "a");
  EXPECT_TRUE(HasBeenModified(manager, Folder()));
}

TEST_F(RangeManager, NewSavesAndSelectsAnEmptyRange) {
  ClickCell("QQ");
  manager.Questions.Answers = {"d"};
  ClickNew(manager, Folder());
  EXPECT_THAT(manager.Questions.Asked,
              ElementsAre(InputQuestion{"What do you want to name the range?", "Rename Range", ""}));
  EXPECT_EQ(Text("d"), TextWith(""));
  EXPECT_EQ(Text("a"), TextWith("AA")) << "unsaved changes are gone without a question";
  EXPECT_EQ(Selected(), "d");
  EXPECT_EQ(GridText(), TextWith(""));
  EXPECT_EQ(manager.RangeName, "d");
  EXPECT_EQ(manager.Selection, "0% selected");
  EXPECT_EQ(manager.Summary, "[None]");
  EXPECT_THAT(main.Notes, ElementsAre("refresh")) << "and no message";
}

TEST_F(RangeManager, NewInAnEmptyFolderSelectsItsRange) {
  LoseAllRanges();
  manager.Questions.Answers = {"d"};
  ClickNew(manager, Folder());
  EXPECT_EQ(Selected(), "d");
}

TEST_F(RangeManager, NewWithoutAnAnswerStopsWithoutAWord) {
  ClickCell("QQ");
  ClickNew(manager, Folder());
  EXPECT_THAT(manager.Boxes.Shown, IsEmpty());
  EXPECT_EQ(GridText(), TextWith("AA QQ"));
  EXPECT_THAT(main.Notes, IsEmpty());
  EXPECT_EQ(Files().size(), 3U);
}

TEST_F(RangeManager, NewWithANameThatCannotBeHadLeavesAllAsItWas) {
  ClickCell("QQ");
  manager.Questions.Answers = {"b", "b?"};
  ClickNew(manager, Folder());
  EXPECT_THAT(manager.Boxes.Shown, ElementsAre(Exists("b")));
  ClickNew(manager, Folder());
  EXPECT_EQ(manager.Boxes.Shown.size(), 2U);
  EXPECT_EQ(Selected(), "a");
  EXPECT_EQ(GridText(), TextWith("AA QQ"));
  EXPECT_EQ(Text("b"), TextWith("KK", "AKs"));
  EXPECT_EQ(Files().size(), 3U);
}

TEST_F(RangeManager, NewScratchRangeReplacesTheOldOne) {
  SaveRangeText(Folder(), "Temp Range1", TextWith("22"));
  manager.Questions.Answers = {"Temp Range1"};
  ClickNew(manager, Folder());
  EXPECT_EQ(Text("Temp Range1"), TextWith(""));
  EXPECT_THAT(manager.Boxes.Shown, IsEmpty());
}

TEST_F(RangeManager, SaveWritesTheGridTellsAndRefreshes) {
  ClickCell("QQ");
  ClickSave(manager, Folder());
  EXPECT_EQ(Text("a"), TextWith("AA QQ"));
  EXPECT_THAT(manager.Boxes.Shown, ElementsAre(Saved("a")));
  EXPECT_THAT(main.Notes, ElementsAre("message", "refresh"));
  EXPECT_EQ(Selected(), "a");
  EXPECT_EQ(GridText(), TextWith("AA QQ"));
}

TEST_F(RangeManager, SaveWithNothingSelectedWritesTheRangeWithoutAName) {
  LoseAllRanges();
  ClickSave(manager, Folder());
  EXPECT_THAT(Files(), ElementsAre(".txt"));
  EXPECT_EQ(Text(""), TextWith("AA")) << "the grid went on showing the range that was selected last";
  EXPECT_THAT(manager.Boxes.Shown, ElementsAre(Saved("")));
}

TEST_F(RangeManager, SaveAsWritesANewRangeAndLeavesTheOldOne) {
  ClickCell("QQ");
  manager.Questions.Answers = {"d"};
  ClickSaveAs(manager, Folder());
  EXPECT_THAT(manager.Questions.Asked,
              ElementsAre(InputQuestion{"What do you want to call the new range?", "Pick a Name", "a"}));
  EXPECT_EQ(Text("a"), TextWith("AA"));
  EXPECT_EQ(Text("d"), TextWith("AA QQ"));
  EXPECT_EQ(Selected(), "d");
  EXPECT_EQ(manager.RangeName, "d");
  EXPECT_EQ(GridText(), TextWith("AA QQ"));
  EXPECT_THAT(manager.Boxes.Shown, ElementsAre(Saved("d")));
  EXPECT_THAT(main.Notes, ElementsAre("refresh", "message"));
}

TEST_F(RangeManager, SaveAsStopsAtACancelWithoutAWordAndAtARefusalWithOne) {
  ClickCell("QQ");
  ClickSaveAs(manager, Folder());
  EXPECT_THAT(manager.Boxes.Shown, IsEmpty());
  manager.Questions.Answers = {"a"};
  ClickSaveAs(manager, Folder());
  EXPECT_THAT(manager.Boxes.Shown, ElementsAre(Exists("a"))) << "keeping the name on offer is no new name";
  EXPECT_EQ(Text("a"), TextWith("AA"));
  EXPECT_EQ(GridText(), TextWith("AA QQ"));
  EXPECT_EQ(Files().size(), 3U);
}

TEST_F(RangeManager, RenameSavesTheGridUnderTheNewNameAndTakesTheOldFileAway) {
  SelectRange("b");
  ClickCell("QQ");
  manager.Questions.Answers = {"d"};
  ClickRename(manager, Folder());
  EXPECT_THAT(manager.Questions.Asked,
              ElementsAre(InputQuestion{"What do you want to rename the range to?", "Rename Range", "b"}));
  EXPECT_FALSE(FileExists("b"));
  EXPECT_EQ(Text("d"), TextWith("KK QQ", "AKs")) << "unsaved changes go along";
  EXPECT_EQ(Selected(), "d");
  EXPECT_THAT(manager.Boxes.Shown,
              ElementsAre(Message{"Quillon", "The range was successfull renamed: \r\n\r\nOld: \tb\r\nNew: \td",
                                  MessageIcon::kInformation, MessageButtons::kOk}));
  EXPECT_THAT(main.Notes, ElementsAre("refresh", "message"));
}

TEST_F(RangeManager, RenameRefusesACancelAndTheNameOnOffer) {
  ClickRename(manager, Folder());
  EXPECT_THAT(manager.Boxes.Shown, ElementsAre(NoName()));
  manager.Questions.Answers = {"a"};
  ClickRename(manager, Folder());
  EXPECT_THAT(manager.Boxes.Shown, ElementsAre(NoName(), Exists("a")));
  EXPECT_EQ(Text("a"), TextWith("AA"));
  EXPECT_EQ(Files().size(), 3U);
}

TEST_F(RangeManager, RenameFromTheScratchNameIsLikeAnyOther) {
  SaveRangeText(Folder(), "Temp Range1", TextWith("22"));
  main.RefreshLists();
  SelectRange("Temp Range1");
  manager.Questions.Answers = {"x"};
  ClickRename(manager, Folder());
  EXPECT_FALSE(FileExists("Temp Range1"));
  EXPECT_EQ(Text("x"), TextWith("22"));
  EXPECT_EQ(Selected(), "x");
}

TEST_F(RangeManager, RenameToTheScratchNameReplacesTheScratchRange) {
  SaveRangeText(Folder(), "Temp Range1", TextWith("22"));
  manager.Questions.Answers = {"Temp Range1"};
  ClickRename(manager, Folder());
  EXPECT_FALSE(FileExists("a"));
  EXPECT_EQ(Text("Temp Range1"), TextWith("AA"));
  EXPECT_EQ(Selected(), "Temp Range1");
}

TEST_F(RangeManager, ScratchRangeRenamedToItselfStays) {
  SaveRangeText(Folder(), "Temp Range1", TextWith("22"));
  main.RefreshLists();
  SelectRange("Temp Range1");
  ClickCell("33");
  manager.Questions.Answers = {"Temp Range1"};
  ClickRename(manager, Folder());
  EXPECT_EQ(Text("Temp Range1"), TextWith("33 22"));
  EXPECT_EQ(Selected(), "Temp Range1");
  EXPECT_EQ(Files().size(), 4U);
}

TEST_F(RangeManager, RenameOfAMissingFileIsFatalBeforeAnythingIsWritten) {
  DeleteRange(Folder(), "a");
  manager.Questions.Answers = {"d"};
  EXPECT_EQ(FaultOf([&] { ClickRename(manager, Folder()); }), RunTimeFault::kFileNotFound);
  EXPECT_FALSE(FileExists("d"));
  EXPECT_THAT(manager.Boxes.Shown, IsEmpty());
}

TEST_F(RangeManager, RenameWithNothingSelectedIsFatal) {
  LoseAllRanges();
  manager.Questions.Answers = {"d"};
  EXPECT_EQ(FaultOf([&] { ClickRename(manager, Folder()); }), RunTimeFault::kFileNotFound);
  EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(RangeManager, RenameThatCannotWriteKeepsTheOldRange) {
  class NoWriting final : public PassingCalls {
   public:
    ssize_t Write(int /*file*/, std::string_view /*bytes*/) override { return -ENOSPC; }
  };
  NoWriting calls;
  manager.Questions.Answers = {"d"};
  EXPECT_EQ(FaultOf([&] { ClickRename(manager, {Folder().Path, &calls}); }), RunTimeFault::kDiskFull);
  EXPECT_EQ(Text("a"), TextWith("AA"));
  EXPECT_FALSE(FileExists("d"));
}

TEST_F(RangeManager, DeleteAsksAndOnlyYesDeletes) {
  manager.Boxes.Answers = {MessageAnswer::kNo, MessageAnswer::kCancel};
  ClickDelete(manager, Folder());
  ClickDelete(manager, Folder());
  EXPECT_THAT(manager.Boxes.Shown, ElementsAre(AskToDelete("a"), AskToDelete("a")));
  EXPECT_THAT(main.Notes, ElementsAre("message", "message"));
  EXPECT_TRUE(FileExists("a"));

  SelectRange("b");
  manager.Boxes.Answers = {MessageAnswer::kYes};
  ClickDelete(manager, Folder());
  EXPECT_FALSE(FileExists("b"));
  EXPECT_EQ(Selected(), "a") << "the first range is shown then";
  EXPECT_EQ(GridText(), TextWith("AA"));
  EXPECT_EQ(manager.Boxes.Shown.back(), AskToDelete("b"));
  EXPECT_THAT(main.Notes, ElementsAre("message", "message", "message", "refresh"));
}

TEST_F(RangeManager, DeletingTheLastRangeLeavesItOnTheGrid) {
  manager.Boxes.Answers = {MessageAnswer::kYes, MessageAnswer::kYes, MessageAnswer::kYes};
  for (int range = 0; range < 3; ++range)
    ClickDelete(manager, Folder());
  EXPECT_THAT(Files(), IsEmpty());
  EXPECT_EQ(Selected(), "");
  EXPECT_EQ(GridText(), TextWith(AllLabels()));
  EXPECT_EQ(manager.RangeName, "c");
}

TEST_F(RangeManager, DeleteOfAMissingFileIsFatalAndNamed) {
  LoseAllRanges();
  manager.Boxes.Answers = {MessageAnswer::kYes};
  try {
    ClickDelete(manager, Folder());
    FAIL() << "nothing was thrown";
  } catch (const RunTimeError& error) {
    EXPECT_THAT(error.what(), AllOf(HasSubstr("'53': File not found"), HasSubstr("Ranges/.txt")));
  }
  EXPECT_THAT(manager.Boxes.Shown, ElementsAre(AskToDelete("")));
}

TEST_F(RangeManager, DeleteThatFailsIsFatalAndKeepsTheFile) {
  class NoUnlink final : public PassingCalls {
   public:
    int Unlink(const std::string& /*path*/) override { return -EACCES; }
  };
  NoUnlink calls;
  manager.Boxes.Answers = {MessageAnswer::kYes};
  EXPECT_EQ(FaultOf([&] { ClickDelete(manager, {Folder().Path, &calls}); }), RunTimeFault::kPermissionDenied);
  EXPECT_EQ(Text("a"), TextWith("AA"));
}

TEST_F(RangeManager, OkAsksWhereTheRangeWasChanged) {
  struct Case {
    const char* rule;
    MessageAnswer answer;
    std::vector<Message> messages;
    Diary notes;
    std::string text;
  };
  const std::vector<Case> cases = {
      {"Yes saves, tells and closes",
       MessageAnswer::kYes,
       {AskToSave("a"), Saved("a")},
       {"message", "message", "refresh", "close"},
       TextWith("AA QQ")},
      {"No closes", MessageAnswer::kNo, {AskToSave("a")}, {"message", "close"}, TextWith("AA")},
      {"Cancel stays", MessageAnswer::kCancel, {AskToSave("a")}, {"message"}, TextWith("AA")},
  };
  for (const Case& c : cases) {
    SaveRangeText(Folder(), "a", TextWith("AA"));
    SelectRange("a");
    ClickCell("QQ");
    main.Notes.clear();
    manager.Boxes.Shown.clear();
    manager.Boxes.Answers = {c.answer};
    ClickManagerOk(manager, Folder());
    EXPECT_EQ(manager.Boxes.Shown, c.messages) << c.rule;
    EXPECT_EQ(main.Notes, c.notes) << c.rule;
    EXPECT_EQ(Text("a"), c.text) << c.rule;
    EXPECT_EQ(GridText(), TextWith("AA QQ")) << c.rule;
  }
}

TEST_F(RangeManager, OkAsksAboutAWeightThatTheGridCannotShowAndYesRewritesIt) {
  SaveRangeText(Folder(), "a", "AA (0.25), " + TextWith("KK").substr(8));
  SelectRange("a");
  manager.Boxes.Answers = {MessageAnswer::kYes};
  ClickManagerOk(manager, Folder());
  EXPECT_THAT(manager.Boxes.Shown, ElementsAre(AskToSave("a"), Saved("a")));
  EXPECT_EQ(Text("a"), TextWith("KK"));
}

TEST_F(RangeManager, OkWithNothingSelectedAsksAboutTheRangeWithoutAName) {
  LoseAllRanges();
  manager.Boxes.Answers = {MessageAnswer::kNo};
  ClickManagerOk(manager, Folder());
  EXPECT_THAT(manager.Boxes.Shown, ElementsAre(AskToSave("")));
  EXPECT_THAT(main.Notes, ElementsAre("message", "close"));
}

}  // namespace
}  // namespace quillon
