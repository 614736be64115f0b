#include "shell/navigation.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/analysis_driver.h"
#include "shell/recorded_navigation.h"
#include "support/run_time_error.h"

namespace quillon {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kWhiteText = "#ffffff";
constexpr const char* kPaleYellowText = "#ffffc0";
constexpr const char* kHovered = "#cdfaed underlined";
constexpr const char* kSelected = "#000000 underlined";
constexpr const char* kResultsSelected = "#404040 underlined";

bool HasLine(const RecordedNavigation& window, const std::string& line) {
  return std::find(window.Panel.Log.begin(), window.Panel.Log.end(), line) != window.Panel.Log.end();
}

TEST(ShowFrame, ShowsTheScreenOfThatNameAlone) {
  RecordedNavigation window;
  for (std::int16_t index = 0; index < window.FrameCount(); ++index) {
    const std::string name = window.FrameCaption(index);
    EXPECT_EQ(ShowFrame(name, window), index) << name;
    EXPECT_THAT(window.Panel.Shown(), ElementsAre(name));
  }
}

TEST(ShowFrame, TakesItsStepsInOrder) {
  RecordedNavigation window;
  window.Panel.Screens.resize(3);
  ShowFrame("ALL IN Grid", window);
  EXPECT_THAT(window.Panel.Log, ElementsAre("hide frame 0", "show frame 1", "hide frame 2", "default pointer",
                                            "place frame 1 (3300, 0, 12000, 8645)", "paint frame 1 #ffffff",
                                            "unborder frame 1", "raise frame 1"));
}

TEST(ShowFrame, FillsTheWindowBesideThePanel) {
  struct Case {
    const char* rule;
    float windowWidth;
    TwipRect rect;
  };
  const std::vector<Case> cases = {
      {"up to the right edge", 15300, {.Left = 3300, .Top = 0, .Width = 12000, .Height = 8645}},
      {"of a window of another width too", 9300, {.Left = 3300, .Top = 0, .Width = 6000, .Height = 8645}},
  };
  for (const Case& c : cases) {
    RecordedNavigation window;
    window.Size.Width = c.windowWidth;
    EXPECT_EQ(window.FrameRect(ShowFrame("Progress", window)), c.rect) << c.rule;
  }
}

TEST(ShowFrame, NameThatNoScreenHasIsFatalAndChangesNothing) {
  for (const char* name : {"", "about", "About ", "Preflop", "Abou"}) {
    RecordedNavigation window;
    try {
      ShowFrame(name, window);
      FAIL() << name;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Fault(), RunTimeFault::kInvalidProcedureCall) << name;
    }
    EXPECT_THAT(window.Panel.Log, IsEmpty()) << name;
  }
}

TEST(ClickNav, OpensTheScreenOfTheLinksCaption) {
  RecordedNavigation window;
  NavigationState state;
  for (std::int16_t link = 0; link < window.NavCount(); ++link) {
    ClickNav(link, state, window);
    EXPECT_THAT(window.Panel.Shown(), ElementsAre(window.NavCaption(link)));
    EXPECT_EQ(state.SelectedNav, link);
  }
}

TEST(ClickNav, RefreshesTheRangeListsFirstWhateverTheLink) {
  for (std::int16_t link = 0; link < 5; ++link) {
    RecordedNavigation window;
    NavigationState state;
    ClickNav(link, state, window);
    EXPECT_EQ(window.Panel.Log.front(), "refresh range lists") << "link " << link;
  }
}

TEST(ClickNav, MovesTheBarBehindTheLinkAndIntoTheScreen) {
  const std::vector<float> tops = {2080, 2620, 3160, 4120, 4600};
  for (std::int16_t link = 0; link < 5; ++link) {
    RecordedNavigation window;
    NavigationState state;
    ClickNav(link, state, window);
    const float top = tops[static_cast<std::size_t>(link)];
    EXPECT_EQ(window.Panel.Bar, (TwipRect{.Left = -10, .Top = top, .Width = 3330, .Height = 475})) << "link " << link;
    EXPECT_TRUE(window.Panel.BarVisible) << "link " << link;
  }
}

TEST(ClickNav, MarksTheLinkAlone) {
  RecordedNavigation window;
  NavigationState state;
  ClickNav(1, state, window);
  EXPECT_THAT(window.Panel.Looks(), ElementsAre(kWhiteText, kSelected, kWhiteText, kPaleYellowText, kPaleYellowText));
  ClickNav(3, state, window);
  EXPECT_THAT(window.Panel.Looks(), ElementsAre(kWhiteText, kWhiteText, kWhiteText, kResultsSelected, kPaleYellowText));
}

TEST(ClickNav, TakesItsStepsInOrder) {
  RecordedNavigation window;
  window.Panel.Screens = {{.Caption = "Preflop Call"}};
  window.Panel.Links.resize(2);
  NavigationState state;
  ClickNav(0, state, window);
  EXPECT_THAT(
      window.Panel.Log,
      ElementsAre("refresh range lists", "show frame 0", "default pointer", "place frame 0 (3300, 0, 12000, 8645)",
                  "paint frame 0 #ffffff", "unborder frame 0", "raise frame 0", "place bar (-10, 2080, 3330, 475)",
                  "show bar", "link 0 #000000", "link 0 underlined", "link 1 #ffffff", "link 1 plain"));
}

TEST(ClickNav, DetailsOpensWithTheFirstOutputType) {
  RecordedNavigation window;
  NavigationState state;
  ClickNav(4, state, window);
  ASSERT_GE(window.Panel.Log.size(), 2U);
  EXPECT_EQ(window.Panel.Log.at(window.Panel.Log.size() - 2), "select output type 0");
  EXPECT_EQ(window.Panel.Log.back(), "build report");
}

TEST(ClickNav, OtherLinksBuildNoReport) {
  for (std::int16_t link = 0; link < 4; ++link) {
    RecordedNavigation window;
    NavigationState state;
    ClickNav(link, state, window);
    EXPECT_FALSE(HasLine(window, "build report")) << "link " << link;
    EXPECT_FALSE(HasLine(window, "select output type 0")) << "link " << link;
  }
}

TEST(ClickNav, OnTheSelectedLinkRepeatsAllStepsAndLeavesTheSamePicture) {
  for (std::int16_t link = 0; link < 5; ++link) {
    RecordedNavigation window;
    NavigationState state;
    ClickNav(link, state, window);
    const PanelAndScreens once = window.Panel;
    window.Panel.Log.clear();
    ClickNav(link, state, window);
    EXPECT_EQ(window.Panel.Log, once.Log) << "link " << link;
    EXPECT_EQ(window.Panel.Looks(), once.Looks()) << "link " << link;
    EXPECT_EQ(window.Panel.Bar, once.Bar) << "link " << link;
    EXPECT_EQ(window.Panel.Shown(), once.Shown()) << "link " << link;
    EXPECT_EQ(state.SelectedNav, link);
  }
}

TEST(ResetLinkForecolors, GivesEveryLinkItsOwnColor) {
  struct Case {
    const char* rule;
    std::int16_t selected;
    std::vector<std::string> looks;
  };
  const std::vector<Case> cases = {
      {"none selected", -1, {kWhiteText, kWhiteText, kWhiteText, kPaleYellowText, kPaleYellowText}},
      {"the first input screen", 0, {kSelected, kWhiteText, kWhiteText, kPaleYellowText, kPaleYellowText}},
      {"the last input screen", 2, {kWhiteText, kWhiteText, kSelected, kPaleYellowText, kPaleYellowText}},
      {"the grid", 3, {kWhiteText, kWhiteText, kWhiteText, kResultsSelected, kPaleYellowText}},
      {"the details", 4, {kWhiteText, kWhiteText, kWhiteText, kPaleYellowText, kResultsSelected}},
  };
  for (const Case& c : cases) {
    RecordedNavigation window;
    for (PanelAndScreens::Link& link : window.Panel.Links)
      link.Underlined = true;
    ResetLinkForecolors(c.selected, window);
    EXPECT_EQ(window.Panel.Looks(), c.looks) << c.rule;
  }
}

TEST(HoverNav, ShowsTheHandCursorEachTime) {
  for (std::int16_t link = 0; link < 5; ++link) {
    RecordedNavigation window;
    HoverNav(link, {.SelectedNav = 1}, window);
    HoverNav(link, {.SelectedNav = 1}, window);
    EXPECT_EQ(std::count(window.Panel.Log.begin(), window.Panel.Log.end(), "hand cursor"), 2) << "link " << link;
  }
}

TEST(HoverNav, UnderlinesALinkOnce) {
  RecordedNavigation window;
  const NavigationState state;
  HoverNav(0, state, window);
  EXPECT_EQ(window.Panel.Look(0), kHovered);
  window.Panel.Log.clear();
  HoverNav(0, state, window);
  EXPECT_THAT(window.Panel.Log, ElementsAre("hand cursor"));
}

TEST(HoverNav, LeavesALinkThatIsUnderlinedAsItIs) {
  RecordedNavigation window;
  NavigationState state;
  ClickNav(2, state, window);
  HoverNav(2, {.SelectedNav = 0}, window);
  EXPECT_EQ(window.Panel.Look(2), kSelected);
}

TEST(HoverNav, TurnsTheSelectedLinkBlack) {
  RecordedNavigation window;
  NavigationState state;
  ClickNav(3, state, window);
  EXPECT_EQ(window.Panel.Look(3), kResultsSelected);
  HoverNav(3, state, window);
  EXPECT_EQ(window.Panel.Look(3), kSelected);
}

TEST(ResetLinkColors, PaintsTheResultsLinksWhite) {
  RecordedNavigation window;
  const NavigationState state;
  ResetLinkForecolors(-1, window);
  ASSERT_EQ(window.Panel.Look(3), kPaleYellowText);
  HoverNav(3, state, window);
  EXPECT_EQ(window.Panel.Look(3), kHovered);
  ResetLinkColors(state, window);
  EXPECT_THAT(window.Panel.Looks(), ElementsAre(kWhiteText, kWhiteText, kWhiteText, kWhiteText, kWhiteText));
}

TEST(ResetLinkColors, LeavesTheSelectedLinkAndThoseThatDoNotShow) {
  RecordedNavigation window;
  NavigationState state;
  ClickNav(1, state, window);
  window.Panel.Links[4].Visible = false;
  ResetLinkColors(state, window);
  EXPECT_THAT(window.Panel.Looks(), ElementsAre(kWhiteText, kSelected, kWhiteText, kWhiteText, kPaleYellowText));
}

TEST(ResetLinkColors, IsTheOnlyEndOfAHover) {
  RecordedNavigation window;
  const NavigationState state;
  ResetLinkForecolors(-1, window);
  HoverNav(0, state, window);
  HoverNav(1, state, window);
  EXPECT_EQ(window.Panel.Look(0), kHovered) << "the mouse went straight on to another link";
  ShowFrame("Progress", window);
  EXPECT_EQ(window.Panel.Look(0), kHovered) << "and on to a screen";
  ResetLinkColors(state, window);
  EXPECT_EQ(window.Panel.Look(0), kWhiteText);
  EXPECT_EQ(window.Panel.Look(1), kWhiteText);
}

TEST(ClickLogo, OpensTheAboutScreenWithNoLinkSelected) {
  RecordedNavigation window;
  NavigationState state;
  ClickNav(0, state, window);
  HoverNav(1, state, window);
  const TwipRect bar = window.Panel.Bar;
  ClickLogo(state, window);
  EXPECT_THAT(window.Panel.Shown(), ElementsAre("About"));
  EXPECT_THAT(window.Panel.Looks(), ElementsAre(kWhiteText, kWhiteText, kWhiteText, kPaleYellowText, kPaleYellowText));
  EXPECT_EQ(state.SelectedNav, 0) << "the last link is still remembered";
  EXPECT_EQ(window.Panel.Bar, bar) << "and the bar stays behind it";
  EXPECT_TRUE(window.Panel.BarVisible);
}

TEST(ClickLogo, TakesItsStepsInOrder) {
  RecordedNavigation window;
  window.Panel.Screens = {{.Caption = "About"}};
  window.Panel.Links.resize(1);
  ClickLogo({}, window);
  EXPECT_THAT(window.Panel.Log,
              ElementsAre("hide imgBackground", "link 0 plain", "link 0 #ffffff", "link 0 #ffffff", "link 0 plain",
                          "show frame 0", "default pointer", "place frame 0 (3300, 0, 12000, 8645)",
                          "paint frame 0 #ffffff", "unborder frame 0", "raise frame 0"));
}

TEST(ClickLogo, TheLastLinkHoversBlackWithoutUnderlineAfterIt) {
  RecordedNavigation window;
  NavigationState state;
  ClickNav(0, state, window);
  ClickLogo(state, window);
  HoverNav(0, state, window);
  EXPECT_EQ(window.Panel.Look(0), "#000000");
  ResetLinkColors(state, window);
  EXPECT_EQ(window.Panel.Look(0), "#000000") << "and stays so, as the selected link does";
}

TEST(HoverNoResults, ShowsTheHandCursorDuringARunAlone) {
  for (const std::string_view caption : {kNoResultsCaption, std::string_view("please wait..."), std::string_view()}) {
    RecordedNavigation window;
    HoverNoResults(caption, window);
    EXPECT_THAT(window.Panel.Log, IsEmpty()) << caption;
  }
  RecordedNavigation window;
  HoverNoResults("Please wait...", window);
  EXPECT_THAT(window.Panel.Log, ElementsAre("hand cursor"));
}

}  // namespace
}  // namespace quillon
