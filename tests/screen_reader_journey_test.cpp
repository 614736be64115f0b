// A player who hears the window instead of seeing it: all three analyses, both dialogs and the report, through the
// accessibility bus like a screen reader.

#include "tests/screen_reader_journey.h"

#include <QCoreApplication>
#include <algorithm>
#include <gmock/gmock.h>
#include <memory>
#include <stdexcept>

#include "ranges/dialogs/manager_layout.h"
#include "ranges/dialogs/new_range_layout.h"
#include "ranges/range_lists.h"
#include "shell/situations.h"
#include "support/files.h"
#include "testing/range_dialog_messages.h"
#include "testing/range_texts.h"

namespace quillon {
namespace {

TEST_F(ScreenReaderJourney, AllThreeAnalysesAreEnteredAndHeard) {
  static_cast<void>(The("frame", kMainTitle));

  Press("link", "Preflop Call");
  Fill("How much is the current pot?", kCall.Pot);
  Fill("How much do you have to call?", kCall.Call);
  Choose("What is his current range?", kCall.Range);
  Analyze(kCallRun, kCall);
  EXPECT_THAT(Figures("AA"), testing::AllOf(testing::StartsWith("Equity: "), testing::HasSubstr(", EV: +"),
                                            testing::EndsWith(", You should go ALL IN")));

  Press("link", "Preflop Raise");
  Fill("How much is the current pot?", kRaise.Pot);
  Fill("How much do you have to call?", kRaise.Call);
  Fill("How much will your opponent have to call if you go ALL IN?", kRaise.Shove);
  Choose("What is his current range?", kRaise.Range);
  Choose("What range will he call with?", kRaise.CallingRange);
  for (const char* link : {"Edit this Range... Current Range", "Edit this Range... Calling Range",
                           "Create a New Range... Current Range", "Create a New Range... Calling Range"}) {
    static_cast<void>(The("link", link));
  }
  Analyze(kRaiseRun, kRaise);
  EXPECT_EQ(Figures("KTs"),
            "Equity when Called: 40.06%, EV: +48.357664, ROI: 96.7%, Opponent Fold %: 49.03%, You should go ALL IN");

  Press("link", "Details");
  const Part report = The("text", "Analysis details");
  EXPECT_THAT(Reader().Text(report), testing::HasSubstr("KTs"));

  Press("link", "Equity Only");
  Choose("Select a Range:", kEquity.Range);
  Analyze(kEquityRun, kEquity);
  EXPECT_THAT(Figures("AA"), testing::AllOf(testing::StartsWith("Equity: "), testing::EndsWith(", :)")));
}

TEST_F(ScreenReaderJourney, RangesArePaintedInBothDialogsAndTheirSavingIsHeard) {
  Press("link", "Range Manager");
  static_cast<void>(The("frame", kManagerTitle));
  const Part kings = The("check box", "KK");
  const bool wasChecked = Reader().IsChecked(kings);
  Reader().Press(kings);
  Session().WaitUntil("the cell has changed", [&] { return Reader().IsChecked(kings) != wasChecked; });
  Press("check box", "Make next selection \"Maybe\" (half as likely)");
  const Part deuces = The("check box", "72o");
  Reader().Press(deuces);
  Session().WaitUntil("the cell is half checked", [&] { return Reader().IsHalfChecked(deuces); });
  EXPECT_FALSE(Reader().IsChecked(deuces));

  Press("push button", "Save range");
  const Window saved = Session().WaitForWindow("Quillon");
  const std::string name = RangeFolderEntries(Session().Program()).front();
  EXPECT_EQ(NextAnnouncement(), Saved(name.substr(0, name.size() - 4)).text);
  Answer(saved, {"Return"});
  EXPECT_THAT(ReadAllBytes(Session().Program().Path / "Ranges" / name), testing::HasSubstr("72o (0.5)"));
  Press("push button", "OK");
  Session().WaitUntil("the Range Manager has gone", [&] { return !Session().FindWindow(kManagerTitle); });

  Press("link", "Equity Only");
  Press("link", "Create a New Range...");
  static_cast<void>(The("frame", kNewRangeTitle));
  Press("check box", "AA");
  Fill("Range Name:", "Aces");
  Press("push button", "OK");
  const Window told = Session().WaitForWindow("Quillon");
  EXPECT_EQ(NextAnnouncement(), Saved("Aces").text);
  Answer(told, {"Return"});
  Session().WaitUntil("the range is chosen",
                      [&] { return Reader().Description(The("combo box", "Select a Range:")) == "Aces"; });
}

TEST_F(ScreenReaderJourney, FastPaintingIsHeard) {
  SaveRangeText(Session().Program(), "Aaa", RangeWith({{"AA", 1}, {"KK", 0.25}}));
  Press("link", "Preflop Call");  // refills the lists
  Press("link", "Range Manager");
  const Window manager = Session().WaitForWindow(kManagerTitle);
  Reader().GiveFocus(The("list", "Select a Range:"));
  Session().Press({"Home"});
  EXPECT_EQ(NextAnnouncement(),
            "The range \"Aaa\" has weights that the grid cannot show, and saving drops them:\nKK:0.25");
  const Part kings = The("check box", "KK");
  EXPECT_EQ(Reader().Description(kings), "");

  Session().PutOnClipboard("KK+");
  Session().Press({"ctrl+v"});
  EXPECT_EQ(NextAnnouncement(), "0.9% selected");
  EXPECT_TRUE(Reader().IsChecked(kings));

  const Part aces = The("check box", "AA");  // where Tab reaches the grid
  Reader().GiveFocus(aces);
  Session().WaitUntil("the cell has the focus", [&] { return Reader().HasFocus(aces); });
  // Each entry is announced as the keys reach it.
  Session().Press({"shift+F10"});
  for (const std::string_view entry : {"Copy", "Paste", "Everything", "Clear", "Invert"}) {
    Session().WaitUntil("the entry is reached", [&] {
      const Part reached = Reader().Focused();
      return reached.Role == "menu item" && reached.Name == entry;
    });
    Session().Press({entry == "Invert" ? "Return" : "Down"});
  }
  EXPECT_EQ(NextAnnouncement(), "99.1% selected");
  EXPECT_FALSE(Reader().IsChecked(kings));
  Session().Press({"ctrl+z"});
  EXPECT_EQ(NextAnnouncement(), "0.9% selected");
  EXPECT_TRUE(Reader().IsChecked(kings));

  Session().PutOnClipboard("KXs");
  Session().Press({"ctrl+v"});
  static_cast<void>(Session().WaitForWindow("This Is Not a Range"));
  static_cast<void>(The("label", "KXs\n^ \"X\" is not a rank"));
  Session().Press({"Return"});
  static_cast<void>(Session().WaitForWindow(kManagerTitle));
  EXPECT_TRUE(Reader().IsChecked(kings));
}

// On screens without a multi-line text, which contains parts of Qt's own.
TEST_F(ScreenReaderJourney, SituationsAreSavedAndOpened) {
  Press("link", "Preflop Call");
  Fill("How much is the current pot?", kCall.Pot);
  Fill("How much do you have to call?", kCall.Call);
  Choose("What is his current range?", kCall.Range);
  Session().Press({"ctrl+s"});
  static_cast<void>(The("dialog", "Save Situation"));
  Fill("What do you want to call this situation?", "Short stack");
  Press("push button", "OK");
  const Window told = Session().WaitForWindow("Quillon");
  EXPECT_EQ(NextAnnouncement(), SituationSavedMessage("Short stack").text);
  Answer(told, {"Return"});

  Fill("How much is the current pot?", "7");
  static_cast<void>(Session().WaitForWindow(kMainTitle));
  Session().Press({"ctrl+o"});
  static_cast<void>(The("dialog", "Open Situation"));
  const Part list = The("list", "Which situation do you want to open?");
  Session().WaitUntil("the list has the focus",
                      [&] { return Reader().HasFocus(list) || Reader().HasFocus(The("list item", "Short stack")); });
  for (const char* button : {"Open", "Cancel", "Delete"})
    static_cast<void>(The("push button", button));
  Press("push button", "Open");
  EXPECT_EQ(NextAnnouncement(), SituationOpenedText("Short stack"));
  EXPECT_EQ(Reader().Text(The("text", "How much is the current pot?")), kCall.Pot);
}

TEST_F(ScreenReaderJourney, DecorationIsNotHeard) {
  for (const char* screen : {"Preflop Call", "Preflop Raise", "Equity Only"}) {
    Press("link", screen);
    static_cast<void>(The("panel", screen));
    for (const char* role : {"filler", "image", "icon"})
      EXPECT_FALSE(Reader().Find(role, "")) << role << " on " << screen;
  }
}

TEST_F(ScreenReaderJourney, WhatIsHiddenNeitherSpeaksNorIsPressed) {
  const std::optional<Part> grid = Reader().FindAnywhere("link", "ALL IN Grid");
  ASSERT_TRUE(grid);
  Reader().Press(*grid);
  // All lists of ranges are refilled at each change of screen, and none of them is visible on this one.
  for (const char* screen : {"Preflop Call", "Preflop Raise", "Equity Only"}) {
    Press("push button", "About Quillon");
    static_cast<void>(The("panel", "About"));
    static_cast<void>(Reader().TakeSpeakers());
    Press("link", screen);
    static_cast<void>(The("panel", screen));
    for (const QString& speaker : Reader().TakeSpeakers())
      EXPECT_TRUE(Reader().Shows(speaker)) << screen << ": " << speaker.toStdString();
  }
  EXPECT_FALSE(Reader().Find("panel", "ALL IN Grid"));
}

}  // namespace
}  // namespace quillon

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);  // the bus needs its event loop
  return RUN_ALL_TESTS();
}
