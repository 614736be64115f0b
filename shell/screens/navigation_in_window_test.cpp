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
  /// The text colours of all links, with a "_" after that of an underlined one.
  std::string LinkLooks() {
    std::string looks;
    for (std::int16_t i = 0; i < 5; ++i) {
      const Label& link = LabelAt("lblNav", i);
      looks += (i == 0 ? "" : " ") + ColorName(link.TextColor()).substr(1) + (link.HasUnderline() ? "_" : "");
    }
    return looks;
  }

  /// A place on the panel's background with nothing else on it.
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
    for (int click = 0; click < 2; ++click) {  // a click on the selected link leaves the same picture
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

TEST_F(NavigationInWindow, TheSelectedLinkIsReadOnTheBar) {
  Open(kCallNav);
  const QImage shown = Form.grab().toImage();
  const QRect bar = Get("shapeBack").geometry();
  EXPECT_EQ(ColorName(shown.pixelColor(200, bar.center().y())), "#c5e3bf");
  EXPECT_NE(ColorName(shown.pixelColor(221, bar.center().y())), "#c5e3bf") << "the screen lies over the bar's end";
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

TEST_F(NavigationInWindow, AListKeepsItsRangeWhileThatExists) {
  Open(kCallNav);
  Choose(0, "Tight");
  Open(kRaiseNav);
  Choose(1, "Pairs");
  std::filesystem::remove(Program.RangeFile("Pairs.txt"));
  Open(kEquityNav);
  EXPECT_EQ(FromQt(Get<QComboBox>("cmboRanges", 0).currentText()), "Tight");
  EXPECT_EQ(FromQt(Get<QComboBox>("cmboRanges", 1).currentText()), "");
  EXPECT_TRUE(LabelAt("lblEditRange", 1).isHidden());
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

TEST_F(NavigationInWindow, HoveringTheSelectedResultsLinkTurnsItBlack) {
  RunEquity("Tight");
  EXPECT_EQ(LinkLooks(), "ffffff ffffff ffffff 404040_ ffffc0");
  MoveOver("lblNav", kGridNav);
  EXPECT_EQ(LinkLooks(), "ffffff ffffff ffffff 000000_ ffffc0");
}

TEST_F(NavigationInWindow, ResultsLinksAreWhiteAfterThePanel) {
  RunEquity("Tight");
  Open(kCallNav);
  MoveOver("lblNav", kGridNav);
  EXPECT_EQ(LinkLooks(), "000000_ ffffff ffffff cdfaed_ ffffc0");
  MoveOverPanel();
  EXPECT_EQ(LinkLooks(), "000000_ ffffff ffffff ffffff ffffff");
  Open(kRaiseNav);
  EXPECT_EQ(LinkLooks(), "ffffff 000000_ ffffff ffffc0 ffffc0") << "until they are painted again";
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
  EXPECT_EQ(LinkLooks(), "000000 ffffff ffffff ffffc0 ffffc0") << "it is the selected one still, without a line";
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

TEST_F(NavigationInWindow, EditOpensTheManagerWithTheChosenRange) {
  const std::array<std::int16_t, 4> screens = {kCallNav, kRaiseNav, kRaiseNav, kEquityNav};
  for (std::int16_t i = 0; i < kChooserCount; ++i) {
    SCOPED_TRACE(i);
    Open(screens.at(static_cast<std::size_t>(i)));
    EXPECT_FALSE(Shows("lblOr", i));
    EXPECT_FALSE(Shows("lblEditRange", i)) << "there is nothing to edit";
    Choose(i, "Tight");
    EXPECT_TRUE(Shows("lblOr", i));
    Click("lblEditRange", i);
    EXPECT_TRUE(Dialogs.LoadedManager()->isVisible());
    EXPECT_EQ(Dialogs.LoadedManager()->RangeList().CurrentText(), "Tight");
    Choose(i, "");
    EXPECT_FALSE(Shows("lblOr", i));
    EXPECT_FALSE(Shows("lblEditRange", i));
    Dialogs.LoadedManager()->RangeList().SelectEntry("Everything");
    ComeToFront();
  }
}

TEST_F(NavigationInWindow, CreateOpensTheDialogForItsChooser) {
  const std::array<std::int16_t, 4> screens = {kCallNav, kRaiseNav, kRaiseNav, kEquityNav};
  EXPECT_EQ(Caption("lblLastEdit"), "0");
  for (std::int16_t i = 0; i < kChooserCount; ++i) {
    Open(screens.at(static_cast<std::size_t>(i)));
    Click("lblNewRange", i);
    EXPECT_EQ(Caption("lblLastEdit"), std::to_string(i));
    EXPECT_TRUE(Dialogs.LoadedNewRange()->isVisible());
    EXPECT_FALSE(Dialogs.LoadedNewRange()->isModal());
  }
}

TEST_F(NavigationInWindow, ANewRangeGoesToTheChooserClickedLast) {
  Open(kCallNav);
  Click("lblNewRange", 0);
  Open(kRaiseNav);
  Click("lblNewRange", 2);  // the dialog is open already, and goes on with what it has
  NewRangeForm& dialog = *Dialogs.LoadedNewRange();
  ClickCell(dialog.Controls(), "AA");
  dialog.Controls().Get<TextBox>("txtRangeName").setText(QStringLiteral("Aces"));
  ExpectMessageBox({.title = "Quillon", .text = "The range \"Aces\" was saved successfully!"});
  ClickOn(dialog.Controls(), "cmdOK");

  EXPECT_EQ(FromQt(Get<QComboBox>("cmboRanges", 0).currentText()), "");
  EXPECT_EQ(FromQt(Get<QComboBox>("cmboRanges", 2).currentText()), "Aces");
  EXPECT_TRUE(Shows("lblEditRange", 2));
  EXPECT_EQ(Program.Read("Aces.txt"), TextWith("AA") + "\r\n");
}

TEST_F(NavigationInWindow, ALinkDropsWhatTheManagerHasNotSaved) {
  Click("lblRangeManager");
  ManagerForm& manager = *Dialogs.LoadedManager();
  manager.RangeList().SelectEntry("Tight");
  const auto cell = static_cast<std::size_t>(HandIndex("72o"));
  ClickCell(manager.Controls(), "72o");
  EXPECT_EQ(manager.Grid().Colors().at(cell), kFullColor);

  Open(kCallNav);

  EXPECT_EQ(manager.RangeList().CurrentText(), "Tight");
  EXPECT_EQ(manager.Grid().Colors().at(cell), kUnselectedOffsuitColor);
}

TEST_F(NavigationInWindow, TheHandCursorShowsOverLinksAlone) {
  constexpr std::array<std::string_view, 11> kLinkNames = {
      "cmdPreflopEV", "imgSave",     "imgSaveAsRange",  "lblEditRange", "lblLink", "lblNav",
      "lblNewRange",  "lblStopCalc", "lblRangeManager", "lblWhatsThis", "picLogo"};
  for (const ControlTable& table : main_layout::kTables) {
    for (const ControlRow& row : table.Rows) {
      const bool link = std::ranges::find(kLinkNames, row.Name) != kLinkNames.end();
      const bool hand = Form.Controls().At(row).cursor().shape() == Qt::PointingHandCursor;
      EXPECT_EQ(hand, link) << ObjectName(row.Name, row.Index);
    }
  }
}

TEST_F(NavigationInWindow, TheTutorialsLinkLeadsNowhereYet) {
  const FakeOpener opener;
  RunEquity("Tight");
  Click("lblLink", 0);
  EXPECT_EQ(Screen(), "ALL IN Grid");
  EXPECT_EQ(opener.Opened(), "");
}

TEST_F(NavigationInWindow, LinksLeaveTheFocusWhereItIs) {
  Open(kCallNav);
  Click("txtNumber", 0);
  for (const ControlName name : std::to_array<ControlName>({"lblRangeManager", "lblNoResults"})) {
    Click(name);
    EXPECT_EQ(Form.focusWidget(), &Get("txtNumber", 0)) << name.Name();
    ComeToFront();
  }
  Click("lblNewRange", 0);
  EXPECT_EQ(Form.focusWidget(), &Get("txtNumber", 0));
}

TEST_F(NavigationInWindow, LeavingAScreenEvaluatesTheBoxThatIsTypedIn) {
  Open(kCallNav);
  Type(0, "=1+2");
  Open(kRaiseNav);
  EXPECT_EQ(BoxText(0), "3");
  EXPECT_EQ(Form.focusWidget(), &Form) << "no neighbour takes over";
}

// A mouse that goes everywhere, with and without results, must do no harm, whatever it passes over.
TEST_F(NavigationInWindow, SweepingTheMouseOverEverythingRaisesNoError) {
  const auto sweep = [this] {
    for (int y = 2; y < Form.height(); y += 23) {
      for (int x = 2; x < Form.width(); x += 31)
        MoveTo({x, y});
    }
  };
  sweep();
  for (const std::int16_t link : {kCallNav, kRaiseNav, kEquityNav}) {
    Open(link);
    sweep();
  }
  RunCall("100", "50", "Tight");
  sweep();
  Open(kDetailsNav);
  sweep();
}

}  // namespace
}  // namespace quillon
