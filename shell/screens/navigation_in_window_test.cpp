#include <QDesktopServices>
#include <QUrl>
#include <algorithm>
#include <array>
#include <vector>

#include "shell/screens/main_layout.h"
#include "testing/fake_opener.h"
#include "testing/main_stage.h"

namespace quillon {
namespace {

class NavigationInWindow : public MainFormTest {
 protected:
  /// The text colours of all links, each followed by "_" if underlined.
  std::string LinkLooks() {
    std::string looks;
    for (std::int16_t i = 0; i < 5; ++i) {
      const Label& link = LabelAt("lblNav", i);
      looks += (i == 0 ? "" : " ") + ColorName(link.TextColor()).substr(1) + (link.HasUnderline() ? "_" : "");
    }
    return looks;
  }

  /// An empty place on the panel's background.
  void MoveOverPanel() { MoveTo({110, 400}); }
};

struct LinkCase {
  std::int16_t Link;
  std::int16_t Frame;
  std::string_view Caption;
  float Top;  // of the link
  std::string_view Looks;  // of all links
};

const auto kLinks = std::to_array<LinkCase>({
    {0, 0, "Preflop Call", 2160, "000000_ ffffff ffffff ffffc0 ffffc0"},
    {1, 4, "Preflop Raise", 2700, "ffffff 000000_ ffffff ffffc0 ffffc0"},
    {2, 6, "Equity Only", 3240, "ffffff ffffff 000000_ ffffc0 ffffc0"},
    {3, 1, "ALL IN Grid", 4200, "ffffff ffffff ffffff 404040_ ffffc0"},
    {4, 2, "Details", 4680, "ffffff ffffff ffffff ffffc0 404040_"},
});

TEST_F(NavigationInWindow, EachLinkBringsUpItsScreenAlone) {
  RunEquity("Tight");
  for (const LinkCase& link : kLinks) {
    SCOPED_TRACE(link.Caption);
    for (int click = 0; click < 2; ++click) {  // clicking the selected link again changes nothing
      Open(link.Link);
      EXPECT_EQ(Screen(), link.Caption);
      EXPECT_EQ(Get("frameContent", link.Frame).geometry(), PixelPlace({3300, 0, 12000, 8645}));
      EXPECT_EQ(LinkLooks(), link.Looks);
      EXPECT_TRUE(Shows("shapeBack"));
      EXPECT_EQ(Get("shapeBack").geometry(), PixelPlace({-10, link.Top - 80, 3330, 475}));
      EXPECT_EQ(ColorName(Get<Shape>("shapeBack").Fill()), "#c5e3bf");
    }
  }
}

TEST_F(NavigationInWindow, AnyLinkFillsTheRangeListsAnew) {
  for (const std::int16_t link : {kCallNav, kRaiseNav, kEquityNav}) {
    const std::string name = "New " + std::to_string(link);
    Program.Write(name + ".txt", TextWith("AA"));
    Open(link);
    for (std::int16_t i = 0; i < kChooserCount; ++i)
      EXPECT_GE(Get<QComboBox>("cmboRanges", i).findText(ToQt(name)), 0) << name << " in " << i;
  }
}

TEST_F(NavigationInWindow, AScreenChangeEndsAWaitingPointer) {
  Form.setCursor(Qt::WaitCursor);
  Open(kCallNav);
  EXPECT_EQ(Form.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(NavigationInWindow, HoveringColoursALinkUntilTheMouseIsOverThePanel) {
  Open(kCallNav);
  MoveOver("lblNav", kRaiseNav);
  EXPECT_EQ(LinkLooks(), "000000_ cdfaed_ ffffff ffffc0 ffffc0");

  MoveTo({600, 300});
  EXPECT_EQ(LinkLooks(), "000000_ cdfaed_ ffffff ffffc0 ffffc0") << "a screen resets nothing";

  MoveOver("lblNav", kCallNav);
  EXPECT_EQ(LinkLooks(), "000000_ cdfaed_ ffffff ffffc0 ffffc0");

  MoveOverPanel();
  EXPECT_EQ(LinkLooks(), "000000_ ffffff ffffff ffffc0 ffffc0") << "hidden links keep their colour";
}

TEST_F(NavigationInWindow, ResultsLinksAreWhiteAfterThePanel) {
  RunEquity("Tight");
  Open(kCallNav);
  MoveOver("lblNav", kGridNav);
  EXPECT_EQ(LinkLooks(), "000000_ ffffff ffffff cdfaed_ ffffc0");
  MoveOverPanel();
  EXPECT_EQ(LinkLooks(), "000000_ ffffff ffffff ffffff ffffff");
  Open(kRaiseNav);
  EXPECT_EQ(LinkLooks(), "ffffff 000000_ ffffff ffffc0 ffffc0") << "until they are repainted";
}

TEST_F(NavigationInWindow, TheLogoBringsUpAboutAndLeavesTheBar) {
  Open(kCallNav);
  const QRect bar = Get("shapeBack").geometry();

  Click("picLogo");

  EXPECT_EQ(Screen(), "About");
  EXPECT_EQ(LinkLooks(), "ffffff ffffff ffffff ffffc0 ffffc0");
  EXPECT_TRUE(Shows("shapeBack"));
  EXPECT_EQ(Get("shapeBack").geometry(), bar);
  EXPECT_TRUE(Get("imgBackground").isHidden());

  MoveOver("lblNav", kCallNav);
  EXPECT_EQ(LinkLooks(), "000000 ffffff ffffff ffffc0 ffffc0") << "it is still selected, without a line";
}

TEST_F(NavigationInWindow, TheRangeManagersFrameIsDottedWhileItIsPressed) {
  const auto& border = Get<Shape>("shapeRangeManager");
  const QPoint point = MiddleOf("lblRangeManager");

  QTest::mousePress(Form.windowHandle(), Qt::LeftButton, {}, point);
  EXPECT_EQ(border.Style(), LineStyle::kDotted);
  EXPECT_EQ(Dialogs.LoadedManager()->isVisible(), false);

  QTest::mouseRelease(Form.windowHandle(), Qt::LeftButton, {}, point);
  EXPECT_EQ(border.Style(), LineStyle::kSolid);
  EXPECT_TRUE(Dialogs.LoadedManager()->isVisible());
  EXPECT_FALSE(Dialogs.LoadedManager()->isModal());
}

TEST_F(NavigationInWindow, EachListsLinksLeadToTheDialogs) {
  const std::array<std::int16_t, 4> screens = {kCallNav, kRaiseNav, kRaiseNav, kEquityNav};
  for (std::int16_t i = 0; i < kChooserCount; ++i) {
    SCOPED_TRACE(i);
    Open(screens.at(static_cast<std::size_t>(i)));
    EXPECT_FALSE(Shows("lblOr", i));
    EXPECT_FALSE(Shows("lblEditRange", i)) << "there is nothing to edit";
    Choose(i, "Tight");
    EXPECT_TRUE(Shows("lblOr", i));
    Click("lblEditRange", i);
    EXPECT_EQ(Dialogs.LoadedManager()->RangeList().CurrentText(), "Tight");
    Dialogs.LoadedManager()->RangeList().SelectEntry("Everything");
    ComeToFront();
    Click("lblNewRange", i);
    EXPECT_EQ(Caption("lblLastEdit"), std::to_string(i));
    EXPECT_TRUE(Dialogs.LoadedNewRange()->isVisible());
    EXPECT_FALSE(Dialogs.LoadedNewRange()->isModal());
    ComeToFront();
  }
}

TEST_F(NavigationInWindow, LeavingAScreenEvaluatesTheBoxThatIsTypedIn) {
  Open(kCallNav);
  Type(0, "=1+2");
  Open(kRaiseNav);
  EXPECT_EQ(BoxText(0), "3");
  EXPECT_EQ(Form.focusWidget(), &Form) << "no neighbour takes over";
}

}  // namespace
}  // namespace quillon
