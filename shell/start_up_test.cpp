#include "shell/start_up.h"

#include <cerrno>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "hand/hand_classes.h"
#include "ranges/range_lists.h"
#include "shell/recorded_navigation.h"
#include "shell/settings_file.h"
#include "shell/version.h"
#include "support/folders.h"
#include "support/run_time_error.h"
#include "testing/file_calls.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

// A main window before its start, on a screen of 1920 by 1080 pixels.
class RecordedStart final : public RecordedNavigationOf<StartWindow> {
 public:
  RecordedStart() { Size = {.Width = 9000, .Height = 6000}; }

  TwipSize Screen = {.Width = 28800, .Height = 16200};
  float Left = 1;
  float Top = 2;
  std::string Title;
  int RangeEntries = 0;
  std::string RangeCount;
  std::vector<std::string> Boxes = std::vector<std::string>(5);
  std::vector<std::string> OutputTypes;
  std::vector<std::string> Hands;
  TwipRect AboutContent;
  TwipSize HoverPanel;
  std::function<void(const std::string& line)> OnCall = [](const std::string&) {};

  [[nodiscard]] TwipSize WindowSize() const override { return Size; }
  [[nodiscard]] TwipSize ScreenSize() const override { return Screen; }
  [[nodiscard]] float WindowLeft() const override { return Left; }
  [[nodiscard]] float WindowTop() const override { return Top; }
  void MoveWindow(float left, float top) override {
    Left = left;
    Top = top;
    Tell("move window " + FloatNumberText(left) + ", " + FloatNumberText(top));
  }

  void SetTitle(std::string_view title) override {
    Title = title;
    Tell("title " + Title);
  }
  void ResizeWindow(TwipSize size) override {
    Size = size;
    Tell("resize window " + FloatNumberText(size.Width) + " by " + FloatNumberText(size.Height));
  }
  [[nodiscard]] int RangeEntryCount() const override { return RangeEntries; }
  void SetRangeCountCaption(std::string_view caption) override {
    RangeCount = caption;
    Tell("range count " + RangeCount);
  }
  void SetAboutContentRect(TwipRect rect) override {
    AboutContent = rect;
    Tell("place about content " + RectText(rect));
  }
  void ShowAboutContent() override { Tell("show about content"); }
  [[nodiscard]] std::int16_t BoxCount() const override { return static_cast<std::int16_t>(Boxes.size()); }
  [[nodiscard]] std::string BoxText(std::int16_t index) const override {
    return Boxes.at(static_cast<std::size_t>(index));
  }
  void RestoreBoxText(std::int16_t index, std::string_view text) override {
    Boxes.at(static_cast<std::size_t>(index)) = text;
    Tell("box " + std::to_string(index) + " " + std::string(text));
  }
  void RefreshRangeLists() override {
    RangeEntries = 12;
    Tell("refresh range lists");
  }
  void SetResultsShown(bool shown) override { Tell(shown ? "show results" : "hide results"); }
  [[nodiscard]] TwipSize HoverBorderSize() const override { return {.Width = 3780, .Height = 3315}; }
  void SetHoverPanelSize(TwipSize size) override {
    HoverPanel = size;
    Tell("size hover panel");
  }
  void AddOutputType(std::string_view text) override {
    OutputTypes.emplace_back(text);
    Tell("output type " + OutputTypes.back());
  }
  void AddHandEntry(std::string_view text) override {
    Hands.emplace_back(text);
    if (Hands.size() == 1) Tell("hand entries");
  }
  void ShowWindow() override { Tell("show window"); }
  void HideWindow() override { Tell("hide window"); }
  void CheckForUpgrade() override { Tell("check for upgrade"); }
  void LoadEquityTable() override { Tell("load equity table"); }
  void EndProcess() override { Tell("end process"); }

 private:
  void Tell(const std::string& line) {
    Note(line);
    OnCall(line);
  }
};

// A program's folder with nothing in it.
class EmptyProgram : public TemporaryProgram {
 public:
  EmptyProgram() { std::filesystem::remove_all(RangeFolderPath(Folder())); }
};

// The lines of the log that are not about a screen's or a link's looks.
std::vector<std::string> MainSteps(const RecordedStart& window) {
  std::vector<std::string> steps;
  for (const std::string& line : window.Panel.Log) {
    const bool looks = line.starts_with("link ") || line.starts_with("hide frame") || line.starts_with("paint") ||
                       line.starts_with("unborder") || line == "default pointer";
    if (!looks) steps.push_back(line);
  }
  return steps;
}

TEST(StartUp, TakesItsStepsInOrder) {
  const EmptyProgram program;
  WriteIniValue("Values", "1", "50", program.Folder());
  RecordedStart window;
  NavigationState state;
  StartUp(state, window, program.Folder());
  EXPECT_THAT(
      MainSteps(window),
      ElementsAre("show frame 5", "place frame 5 (3300, 0, 5700, 8645)", "raise frame 5", "title Quillon 0.9",
                  "range count 0", "place about content (0, 300, 5700, 8645)", "show about content", "box 1 50",
                  "refresh range lists", "hide results", "resize window 15300 by 9045", "move window 6750, 3577.5",
                  "size hover panel", "output type Plain Text", "output type 2+2", "select output type 0",
                  "hide imgBackground", "show frame 5", "place frame 5 (3300, 0, 12000, 8645)", "raise frame 5",
                  "hand entries", "show window", "check for upgrade", "load equity table"));
}

TEST(StartUp, FirstStartInAnEmptyFolder) {
  const EmptyProgram program;
  RecordedStart window;
  NavigationState state{.SelectedNav = 3};
  StartUp(state, window, program.Folder());

  EXPECT_TRUE(FolderExists(program.Folder().Path / "Ranges"));
  EXPECT_TRUE(FolderExists(program.Folder().Path / "Saved Grids"));
  EXPECT_FALSE(std::filesystem::exists(SettingsFilePath(program.Folder()))) << "only a write makes it";
  EXPECT_EQ(window.Left, 6750) << "centred";
  EXPECT_EQ(window.Top, 3577.5F) << "centred";
  EXPECT_EQ(window.Boxes, std::vector<std::string>(5)) << "empty";
  EXPECT_THAT(window.Panel.Shown(), ElementsAre("About"));
  EXPECT_EQ(window.Title, "Quillon 0.9");
  EXPECT_EQ(window.RangeCount, "0") << "the lists are filled only after it is set";
  EXPECT_EQ(state.SelectedNav, -1);
  EXPECT_FALSE(window.Panel.BarVisible);
  EXPECT_EQ(window.HoverPanel, (TwipSize{.Width = 3780, .Height = 3315}));
}

TEST(StartUp, NoLinkIsSelected) {
  const EmptyProgram program;
  RecordedStart window;
  NavigationState state;
  StartUp(state, window, program.Folder());
  EXPECT_THAT(window.Panel.Looks(), ElementsAre("#ffffff", "#ffffff", "#ffffff", "#ffffc0", "#ffffc0"));
}

TEST(StartUp, TheHandListIsNoneAndAllClasses) {
  const EmptyProgram program;
  RecordedStart window;
  NavigationState state;
  StartUp(state, window, program.Folder());
  ASSERT_EQ(window.Hands.size(), 170U);
  EXPECT_EQ(window.Hands.front(), "None");
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    EXPECT_EQ(window.Hands[static_cast<std::size_t>(index) + 1], HandLabel(index));
  EXPECT_EQ(window.Hands.at(1), "AA");
  EXPECT_EQ(window.Hands.back(), "22");
}

TEST(StartUp, KeepsWhatIsInTheFolders) {
  const TemporaryProgram program;
  program.Write("Button.txt", "AA (1), \r\n");
  RecordedStart window;
  NavigationState state;
  StartUp(state, window, program.Folder());
  EXPECT_EQ(program.Read("Button.txt"), "AA (1), \r\n");
}

TEST(StartUp, RestoresBoxTextsAsTheyStood) {
  const EmptyProgram program;
  WriteIniValue("Values", "0", "abc", program.Folder());
  WriteIniValue("Values", "1", "", program.Folder());
  WriteIniValue("Values", "2", "=735+220-178", program.Folder());
  WriteIniValue("Values", "4", " 5 ", program.Folder());
  WriteIniValue("Values", "5", "no such box", program.Folder());
  RecordedStart window;
  NavigationState state;
  StartUp(state, window, program.Folder());
  EXPECT_THAT(window.Boxes, ElementsAre("abc", "", "=735+220-178", "", " 5 "));
  EXPECT_THAT(window.Panel.Log, Not(Contains("box 1 "))) << "an empty text is not set, so no change is handled";
  EXPECT_THAT(window.Panel.Log, Not(Contains("box 3 ")));
}

TEST(StartUp, RestoresThePlace) {
  struct Case {
    const char* rule;
    std::optional<std::string> leftText;
    std::optional<std::string> topText;
    float left;
    float top;
  };
  const std::vector<Case> cases = {
      {"where it stood", "1500", "750", 1500, 750},
      {"left alone is centred", "1500", std::nullopt, 6750, 3577.5F},
      {"top alone is centred", std::nullopt, "750", 6750, 3577.5F},
      {"a negative left is 0", "-5", "100", 0, 100},
      {"what is no number is 0", "x", "100", 0, 100},
  };
  for (const Case& c : cases) {
    const EmptyProgram program;
    if (c.leftText) WriteIniValue("Main", "Left", *c.leftText, program.Folder());
    if (c.topText) WriteIniValue("Main", "Top", *c.topText, program.Folder());
    RecordedStart window;
    NavigationState state;
    StartUp(state, window, program.Folder());
    EXPECT_EQ(window.Left, c.left) << c.rule;
    EXPECT_EQ(window.Top, c.top) << c.rule;
  }
}

TEST(StartUp, TheWindowIsAsWideAsPanelAndFirstScreenAreDesigned) {
  const EmptyProgram program;
  RecordedStart window;
  window.Panel.Screens[0].Rect.Width = 10000;
  window.Panel.Screens[5].Rect.Width = 77;
  NavigationState state;
  StartUp(state, window, program.Folder());
  EXPECT_EQ(window.Size, (TwipSize{.Width = 13300, .Height = 9045}));
}

TEST(StartUp, AFolderThatCannotBeMadeIsFatalBeforeAnythingShows) {
  for (const char* blocked : {"Ranges", "Saved Grids"}) {
    const EmptyProgram program;
    std::ofstream(program.Folder().Path / blocked) << "a file";
    RecordedStart window;
    NavigationState state;
    try {
      StartUp(state, window, program.Folder());
      FAIL() << blocked;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Fault(), RunTimeFault::kPathFileAccess) << blocked;
      EXPECT_THAT(error.what(), testing::HasSubstr(blocked));
    }
    EXPECT_THAT(window.Panel.Log, IsEmpty()) << blocked;
  }
}

TEST(StartUp, RangesAreMadeBeforeSavedGridsAndBothBeforeTheRest) {
  class Watching final : public PassingCalls {
   public:
    int MakeFolder(const std::string& path) override {
      made.push_back(std::filesystem::path(path).filename().string());
      return PassingCalls::MakeFolder(path);
    }
    std::vector<std::string> made;
  };
  const EmptyProgram program;
  Watching calls;
  RecordedStart window;
  NavigationState state;
  window.OnCall = [&](const std::string&) { EXPECT_EQ(calls.made.size(), 2U); };
  StartUp(state, window, {program.Folder().Path, &calls});
  EXPECT_THAT(calls.made, ElementsAre("Ranges", "Saved Grids"));
}

TEST(StartUp, WhatAKilledProgramLeftOfASaveIsGoneBeforeTheListsShowIt) {
  const TemporaryProgram program;
  const std::filesystem::path left = program.Folder().Path / ".quillon-1-0.tmp";
  std::ofstream(left) << "half";
  program.Write(".quillon-1-1.tmp", "half");
  program.Write("Tight.txt", "AA (1), ");
  const auto longAgo = std::filesystem::file_time_type::clock::now() - std::chrono::hours(2);
  std::filesystem::last_write_time(left, longAgo);
  std::filesystem::last_write_time(program.RangeFile(".quillon-1-1.tmp"), longAgo);

  RecordedStart window;
  NavigationState state;
  window.OnCall = [&](const std::string&) {
    EXPECT_THAT(RangeFolderEntries(program.Folder()), ElementsAre("Tight.txt"));
  };
  StartUp(state, window, program.Folder());
  EXPECT_FALSE(std::filesystem::exists(left));
}

TEST(CloseMainWindow, TakesItsStepsInOrder) {
  const TemporaryProgram program;
  RecordedStart window;
  window.OnCall = [&](const std::string& line) {
    const bool written = std::filesystem::exists(SettingsFilePath(program.Folder()));
    EXPECT_EQ(written, line == "end process") << line;
  };
  CloseMainWindow(window, program.Folder());
  EXPECT_THAT(window.Panel.Log, ElementsAre("hide window", "end process"));
}

TEST(CloseMainWindow, StoresPlaceAndAllBoxTexts) {
  const TemporaryProgram program;
  RecordedStart window;
  window.Left = 1500;
  window.Top = 752.5F;
  window.Boxes = {"150", "", "=735+220-178", "abc", ""};
  CloseMainWindow(window, program.Folder());
  EXPECT_EQ(ReadAllBytes(SettingsFilePath(program.Folder())),
            "[Main]\r\nLeft=1500\r\nTop=752.5\r\n[Values]\r\n0=150\r\n1=\r\n2==735+220-178\r\n3=abc\r\n4=\r\n");
}

TEST(CloseMainWindow, AnEmptyBoxEmptiesItsValue) {
  const TemporaryProgram program;
  WriteIniValue("Values", "3", "old", program.Folder());
  RecordedStart window;
  CloseMainWindow(window, program.Folder());
  EXPECT_EQ(ReadIniValue("Values", "3", program.Folder()), "");
}

TEST(CloseMainWindow, EndsTheProcessThoughNothingCanBeWritten) {
  RecordedStart window;
  CloseMainWindow(window, {"/no/such/folder"});
  EXPECT_EQ(window.Panel.Log.back(), "end process");
}

TEST(CloseMainWindow, WaitsASecondAtMostForAnotherProcess) {
  class LockedElsewhere final : public PassingCalls {
   public:
    int TryLock(int /*file*/) override { return -EWOULDBLOCK; }
  };
  const TemporaryProgram program;
  LockedElsewhere calls;
  RecordedStart window;
  window.Boxes = {"1", "2", "3", "4", "5"};
  const auto begin = std::chrono::steady_clock::now();
  CloseMainWindow(window, {program.Folder().Path, &calls});
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(1900));
  EXPECT_EQ(ReadIniValue("Values", "4", program.Folder()), "5");
}

TEST(CloseMainWindow, IsWhatTheNextStartFinds) {
  const TemporaryProgram program;
  RecordedStart last;
  last.Left = 2250;
  last.Top = 1125;
  last.Boxes = {"$35", " 5", "\"7\"", "=1+", "5 €"};
  CloseMainWindow(last, program.Folder());

  RecordedStart next;
  NavigationState state;
  StartUp(state, next, program.Folder());
  EXPECT_EQ(next.Left, 2250);
  EXPECT_EQ(next.Top, 1125);
  EXPECT_EQ(next.Boxes, last.Boxes);
}

TEST(Version, IsZeroPointNine) {
  EXPECT_EQ(VersionText(), "0.9");
}

}  // namespace
}  // namespace quillon
