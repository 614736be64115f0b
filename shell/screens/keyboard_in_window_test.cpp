#include <QAccessible>
#include <QCheckBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QUrl>
#include <functional>
#include <set>
#include <vector>

#include "analysis/input_checks.h"
#include "shell/screens/main_layout.h"
#include "testing/bring_to_front.h"
#include "testing/fake_opener.h"
#include "testing/heard_announcements.h"
#include "testing/main_stage.h"

namespace quillon {
namespace {

bool CanBeWorkedWith(const QWidget& control) {
  const auto* ours = qobject_cast<const Control*>(&control);
  if (ours != nullptr) return ours->CanBeClicked();
  return qobject_cast<const Shape*>(&control) == nullptr;
}

class KeyboardInWindow : public MainFormTest {
 protected:
  /// Opens a screen by its link or picture.
  void OpenScreen(std::string_view name) {
    if (name == "About") {
      Click("picLogo");
    } else if (name == "Progress") {
      Open(kEquityNav);
      Choose(3, "");
      ExpectMessageBox({.title = "Select Range",
                        .text = "Please select a range for your opponent.",
                        .icon = MessageIcon::kExclamation});
      Click("cmdPreflopEV", 2);
      VerifyExpectedBoxes();
      ComeToFront();
      Click("lblNoResults");
    } else {
      for (std::int16_t i = 0; i < 5; ++i) {
        if (Caption("lblNav", i) == name) Open(i);
      }
    }
    ASSERT_EQ(Screen(), name);
  }

  /// The names of all visible controls that a user can operate.
  std::set<std::string> Workable() {
    std::set<std::string> names;
    for (const ControlTable& table : main_layout::kTables) {
      for (const ControlRow& row : table.Rows) {
        const QWidget& control = Form.Controls().At(row);
        if (control.isVisible() && CanBeWorkedWith(control)) names.insert(FromQt(control.objectName()));
      }
    }
    return names;
  }

  /// The names of the controls that Tab visits in one round.
  std::vector<std::string> TabRound() {
    std::vector<std::string> names;
    Get("picLogo").setFocus(Qt::TabFocusReason);
    do {
      names.push_back(FromQt(Form.focusWidget()->objectName()));
      Press(Qt::Key_Tab);
    } while (Form.focusWidget() != &Get("picLogo") && names.size() < 100);
    return names;
  }

  void Focus(ControlName name, std::int16_t index = kNoIndex) {
    Get(name, index).setFocus(Qt::TabFocusReason);
    ASSERT_EQ(Form.focusWidget(), &Get(name, index));
  }
};

constexpr std::array<std::string_view, 7> kScreens = {"Preflop Call", "Preflop Raise", "Equity Only", "ALL IN Grid",
                                                      "Details",      "Progress",      "About"};

TEST_F(KeyboardInWindow, TabReachesEverythingThatCanBeClickedOrTypedInto) {
  RunEquity("Tight");
  for (const std::string_view screen : kScreens) {
    SCOPED_TRACE(screen);
    OpenScreen(screen);
    if (screen == "Preflop Raise" || screen == "Preflop Call") {
      Choose(screen == "Preflop Call" ? 0 : 1, "Tight");  // so that its link to edit shows
    }
    const std::vector<std::string> round = TabRound();
    std::set<std::string> reached(round.begin(), round.end());
    EXPECT_EQ(reached.size(), round.size()) << "each is reached once";
    EXPECT_EQ(reached.erase("lblCards(0)"), screen == "ALL IN Grid" ? 1U : 0U) << "the grid counts as one";
    EXPECT_EQ(reached, Workable());
  }
}

// After the side panel. The hidden links "Edit this Range..." are left out.
struct TabCase {
  std::string_view Screen;
  std::vector<std::string> Way;
};

TEST_F(KeyboardInWindow, TabGoesWhereTheEyeGoes) {
  const std::vector<std::string> panel = {"picLogo",   "lblNav(0)", "lblNav(1)",      "lblNav(2)",
                                          "lblNav(3)", "lblNav(4)", "lblRangeManager"};
  const std::vector<TabCase> cases = {
      {"Preflop Call",
       {"txtNumber(0)", "txtNumber(1)", "cmboRanges(0)", "cmdPreflopEV(0)", "lblWhatsThis(5)", "lblWhatsThis(6)",
        "lblWhatsThis(7)", "lblNewRange(0)"}},
      {"Preflop Raise",
       {"txtNumber(2)", "txtNumber(3)", "txtNumber(4)", "cmboRanges(1)", "cmboRanges(2)", "cmdPreflopEV(1)",
        "lblWhatsThis(0)", "lblWhatsThis(1)", "lblWhatsThis(2)", "lblWhatsThis(3)", "lblWhatsThis(4)", "lblNewRange(1)",
        "lblNewRange(2)"}},
      {"Equity Only", {"cmboRanges(3)", "cmdPreflopEV(2)", "lblNewRange(3)", "lblEditRange(3)"}},
      {"ALL IN Grid", {"lblCards(0)", "txtHandInfo", "lblLink(0)", "imgSave", "imgSaveAsRange"}},
      {"Details", {"rtfSummary", "cmboOutputType"}},
      {"About", {"chkUpgrade", "txtFeedback", "cmdSendFeedback"}},
  };
  RunEquity("Tight");
  for (const TabCase& row : cases) {
    OpenScreen(row.Screen);
    std::vector<std::string> way = panel;
    way.insert(way.end(), row.Way.begin(), row.Way.end());
    EXPECT_EQ(TabRound(), way) << row.Screen;
  }
}

TEST_F(KeyboardInWindow, ControlAndEnterAnalyzeWithTheSumThatIsBeingTyped) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    EnterCall("100", "50", "Tight");
    Type(0, key == Qt::Key_Return ? "=100+50" : "=100+75");
    Press(key, Qt::ControlModifier);
    EXPECT_EQ(Screen(), "ALL IN Grid");
    EXPECT_EQ(Form.State().Amounts.PotSize, key == Qt::Key_Return ? 150 : 175);
  }
  Press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(Screen(), "ALL IN Grid") << "there is nothing to analyse here";
}

// Also from a screen that does not show the link "< Back" itself.
TEST_F(KeyboardInWindow, EscapeStopsARunAsBackDoes) {
  for (const char* screen : {"Progress", "Preflop Call", "About"}) {
    OpenScreen("Equity Only");
    Choose(3, "Tight");
    DuringRun("50%", [&] {
      if (screen == std::string_view("Preflop Call")) Open(kCallNav);
      if (screen == std::string_view("About")) Click("picLogo");
      EXPECT_EQ(Screen(), screen);
      Press(Qt::Key_Escape);
    });
    Press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Screen(), "Equity Only") << screen;
    EXPECT_FALSE(Form.State().Running) << screen;
    EXPECT_EQ(Form.focusWidget(), &Get("cmboRanges", 3)) << screen;
  }
}

TEST_F(KeyboardInWindow, EscapeStopsARunStillAfterAnotherWasRefused) {
  EnterEquity("Tight");
  DuringRun("50%", [this] {
    OpenScreen("Preflop Call");
    const auto complaint = CheckInputs(AnalysisMode::kPreflopCall, {}, Program.Folder());
    ASSERT_TRUE(complaint);
    ExpectMessageBox({.title = std::string(complaint->Title),
                      .text = std::string(complaint->Text),
                      .icon = MessageIcon::kExclamation});
    Click("cmdPreflopEV", 0);
    VerifyExpectedBoxes();
    BringToFront(Form);
    Press(Qt::Key_Escape);
  });
  Click("cmdPreflopEV", 2);
  EXPECT_FALSE(Shows("lblNav", kGridNav)) << "it has not run to its end";
}

TEST_F(KeyboardInWindow, KeysOpenTheRangeManagerAndCloseWindows) {
  Press(Qt::Key_R, Qt::ControlModifier);
  ASSERT_TRUE(QTest::qWaitForWindowActive(Dialogs.LoadedManager()));
  QTest::keyClick(Dialogs.LoadedManager()->windowHandle(), Qt::Key_W, Qt::ControlModifier);
  EXPECT_EQ(Dialogs.LoadedManager(), nullptr);
  EXPECT_EQ(Ends, 0);
  ComeToFront();
  Press(Qt::Key_R, Qt::ControlModifier);
  ASSERT_TRUE(QTest::qWaitForWindowActive(Dialogs.LoadedManager()));
  QTest::keyClick(Dialogs.LoadedManager()->windowHandle(), Qt::Key_Q, Qt::ControlModifier);
  EXPECT_EQ(Ends, 1) << "from any window";
}

TEST_F(KeyboardInWindow, ControlAndWEndsFromTheMainWindow) {
  Press(Qt::Key_W, Qt::ControlModifier);
  EXPECT_EQ(Ends, 1);
}

TEST_F(KeyboardInWindow, ABoxTellsWhereTheUserGuideCannotBeOpened) {
  const FakeOpener opener(FakeOpener::kNoneFound);
  const std::string file = (Program.Folder().Path / "Guide" / "user-guide.html").string();
  ExpectMessageBox({.title = "Quillon",
                    .text = "The user guide could not be opened. It is the file:\r\n\r\n" + file,
                    .icon = MessageIcon::kExclamation});
  Press(Qt::Key_F1);
  EXPECT_EQ(opener.Opened(), QUrl::fromLocalFile(ToQt(file)).toEncoded().toStdString() + "\n");
  VerifyExpectedBoxes();
}

struct FirstBoxCase {
  Qt::Key Key;
  std::string_view Screen;
  MainControls::Key<> Control;
  std::int16_t Index;
};

TEST_F(KeyboardInWindow, ControlAndADigitOpenAScreenWhoseLinkShowsAtItsFirstBox) {
  constexpr auto kCases = std::to_array<FirstBoxCase>({
      {Qt::Key_1, "Preflop Call", "txtNumber", 0},
      {Qt::Key_2, "Preflop Raise", "txtNumber", 2},
      {Qt::Key_3, "Equity Only", "cmboRanges", 3},
      {Qt::Key_4, "ALL IN Grid", "lblCards", 0},
      {Qt::Key_5, "Details", "rtfSummary", kNoIndex},
  });
  for (const Qt::Key key : {Qt::Key_4, Qt::Key_5}) {
    Press(key, Qt::ControlModifier);
    EXPECT_EQ(Screen(), "About") << "there are no results yet";
  }
  RunEquity("Tight");
  for (const FirstBoxCase& row : kCases) {
    Press(row.Key, Qt::ControlModifier);
    EXPECT_EQ(Screen(), row.Screen);
    EXPECT_EQ(Form.focusWidget(), &Get(row.Control, row.Index)) << row.Control.Name();
  }
  Focus("lblNav", kRaiseNav);
  Press(Qt::Key_Space);
  EXPECT_EQ(Form.focusWidget(), &Get("txtNumber", 2)) << "including a pressed link";
  Open(kCallNav);
  EXPECT_EQ(Form.focusWidget(), &Form) << "the mouse moves no focus";
}

// The key that starts or stops the run decides, whatever is pressed meanwhile. The mouse moves no focus.
TEST_F(KeyboardInWindow, ARunThatIsStartedOrStoppedByAKeyEndsWithTheFocusOnWhatItLeadsTo) {
  const auto byKey = [this] { Press(Qt::Key_Return, Qt::ControlModifier); };
  const auto byMouse = [this] { Click("cmdPreflopEV", 2); };
  struct Row {
    const char* Rule;
    std::function<void()> Start;
    std::function<void()> Meanwhile;
    const char* Screen;
    const QWidget& Focus;
  };
  const QWidget& grid = Get("lblCards", 0);
  const QWidget& list = Get("cmboRanges", 3);
  const std::vector<Row> rows = {
      {"by key", byKey, {}, "ALL IN Grid", grid},
      {"by key on the button", [this] { Press(Qt::Key_Space); }, {}, "ALL IN Grid", grid},
      {"by mouse", byMouse, {}, "ALL IN Grid", Form},
      {"by mouse, a key meanwhile", byMouse, [this] { Press(Qt::Key_F5); }, "ALL IN Grid", Form},
      {"by key, the mouse meanwhile", byKey, [this] { Click("Label", 10); }, "ALL IN Grid", grid},
      {"stopped by key", byMouse, [this] { Press(Qt::Key_Escape); }, "Equity Only", list},
      {"stopped by mouse", byKey, [this] { Click("lblStopCalc"); }, "Equity Only", Form},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.Rule);
    EnterEquity("Tight");
    Focus("cmdPreflopEV", 2);
    if (row.Meanwhile) DuringRun("50%", row.Meanwhile);
    row.Start();
    EXPECT_EQ(Screen(), row.Screen);
    EXPECT_EQ(Form.focusWidget(), &row.Focus);
    EXPECT_EQ(Form.findChild<FocusMark*>()->isVisible(), &row.Focus != &Form);
    EXPECT_FALSE(Shows("frameHover")) << "the result is visible";
  }
}

TEST_F(KeyboardInWindow, TheHoverPanelLiesInFrontOfTheMark) {
  RunEquity("Tight");
  Focus("lblCards", 14);
  ASSERT_TRUE(Shows("frameHover"));
  QWidget& panel = Get("frameHover");
  const QRect place(panel.mapTo(&Form, QPoint(0, 0)), panel.size());
  ASSERT_TRUE(place.intersects(Form.findChild<FocusMark*>()->geometry()));
  EXPECT_EQ(Form.grab(place).toImage(), panel.grab().toImage());
}

TEST_F(KeyboardInWindow, AfterADialogTheFocusIsWhereItWas) {
  OpenScreen("Preflop Call");
  Choose(0, "Tight");
  for (const ControlName link : {ControlName("lblEditRange"), ControlName("lblNewRange")}) {
    Focus(link, 0);
    Press(Qt::Key_Return);
    QPointer<QWidget> dialog = Dialogs.LoadedNewRange();
    if (dialog == nullptr) dialog = Dialogs.LoadedManager();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
    QTest::keyClick(dialog->windowHandle(), Qt::Key_Escape);
    EXPECT_TRUE(dialog == nullptr || !dialog->isVisible());
    ComeToFront();
    EXPECT_EQ(Form.focusWidget(), &Get(link, 0));
  }
}

TEST_F(KeyboardInWindow, NobodyHasTheFocusUntilSomebodyIsGivenIt) {
  EXPECT_EQ(Form.focusWidget(), &Form);
  Open(kCallNav);
  Type(0, "5");
  Open(kEquityNav);
  Dialogs.ShowManager();
  ASSERT_TRUE(QTest::qWaitForWindowActive(Dialogs.LoadedManager()));
  ComeToFront();
  EXPECT_EQ(Form.focusWidget(), &Form);
  Press(Qt::Key_Return);
  EXPECT_EQ(Screen(), "Equity Only") << "nobody is pressed";
}

TEST_F(KeyboardInWindow, WhateverHasTheKeyboardIsMarkedAsAWhole) {
  const QWidget& mark = *Form.findChild<FocusMark*>();
  RunEquity("Tight");
  for (const std::string_view screen : kScreens) {
    OpenScreen(screen);
    for (const std::string& name : TabRound()) {
      QWidget& control = *Form.Controls().Find(name);
      control.setFocus(Qt::TabFocusReason);
      if (name.starts_with("txtNumber")) {
        EXPECT_EQ(Form.Controls().ShapeAt("ShapeBorder", static_cast<std::int16_t>(name.at(10) - '0')).LineWidth(), 3);
        continue;
      }
      const QWidget& place = name == "lblCards(0)" ? Get("shapeCardBack", 0) : control;
      const QRect whole(place.mapTo(&Form, QPoint(0, 0)), place.size());
      EXPECT_TRUE(mark.isVisible()) << name;
      const int out = name == "txtHandInfo" ? 0 : 3;  // leaves a margin for the mark in its text
      EXPECT_EQ(mark.geometry(), whole.adjusted(-out, -out, out, out).intersected(Form.rect())) << name;
    }
  }
}

struct RoleCase {
  MainControls::Key<> Name;
  std::int16_t Index;
  QAccessible::Role Role;
  std::string_view Says;
};

class SpokenWindow : public KeyboardInWindow {
 protected:
  static std::string NameOf(QWidget& control) {
    return FromQt(QAccessible::queryAccessibleInterface(&control)->text(QAccessible::Name));
  }
};

TEST_F(SpokenWindow, EverythingHasANameAndARole) {
  RunEquity("Tight");
  for (const std::string_view screen : kScreens) {
    OpenScreen(screen);
    for (const std::string& name : Workable()) {
      QWidget& control = *Form.Controls().Find(name);
      QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&control);
      ASSERT_NE(spoken, nullptr) << name;
      EXPECT_FALSE(spoken->text(QAccessible::Name).trimmed().isEmpty()) << name;
      EXPECT_NE(spoken->role(), QAccessible::NoRole) << name;
      EXPECT_NE(spoken->role(), QAccessible::Client) << name;
    }
  }
}

TEST_F(SpokenWindow, NamesAndRolesTellWhatAControlIs) {
  constexpr auto kRoles = std::to_array<RoleCase>({
      {"picLogo", kNoIndex, QAccessible::Button, "About Quillon"},
      {"lblNav", 1, QAccessible::Link, "Preflop Raise"},
      {"cmdPreflopEV", 0, QAccessible::Button, "Analyze"},
      {"txtNumber", 0, QAccessible::EditableText, "How much is the current pot?"},
      {"cmboRanges", 2, QAccessible::ComboBox, "What range will he call with?"},
      {"lblWhatsThis", 4, QAccessible::Link, "What's this? Calling Range"},
      {"lblHisOdds", kNoIndex, QAccessible::StaticText, "X:1"},
      {"lblEditRange", 2, QAccessible::Link, "Edit this Range... Calling Range"},
      {"lblNewRange", 2, QAccessible::Link, "Create a New Range... Calling Range"},
      {"lblCards", 14, QAccessible::StaticText, "KK"},
      {"rtfSummary", kNoIndex, QAccessible::EditableText, "Analysis details"},
      {"chkUpgrade", kNoIndex, QAccessible::CheckBox, "Automatically check for upgrades"},
      {"txtFeedback", kNoIndex, QAccessible::EditableText, "Feedback"},
  });
  Choose(2, "Tight");
  for (const RoleCase& row : kRoles) {
    QWidget& control = Get(row.Name, row.Index);
    EXPECT_EQ(NameOf(control), row.Says) << ObjectName(row.Name.Name(), row.Index);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&control)->role(), row.Role)
        << ObjectName(row.Name.Name(), row.Index);
  }
}

TEST_F(SpokenWindow, ACellSaysWhatTheHoverPanelSays) {
  using LabelName = MainControls::Key<Label>;
  constexpr std::array kLines = {std::pair(LabelName("lblHovDesc_Eq"), LabelName("lblHov_Eq")),
                                 std::pair(LabelName("lblHovDesc_EV"), LabelName("lblHov_EV")),
                                 std::pair(LabelName("lblHovDesc_ROI"), LabelName("lblHov_ROI")),
                                 std::pair(LabelName("lblHovDesc_FoldPerc"), LabelName("lblHov_FoldPerc"))};
  for (const std::int16_t screen : {kCallNav, kRaiseNav, kEquityNav}) {
    if (screen == kCallNav) RunCall("150", "50", "Everything");
    if (screen == kRaiseNav) RunRaise("150", "50", "400", "Everything", "Tight");
    if (screen == kEquityNav) RunEquity("Everything");
    for (const char* hand : {"KTs", "72o"}) {
      MoveOver("lblCards", HandIndex(hand));
      std::string shown;
      for (const auto& [title, figure] : kLines) {
        if (LabelAt(figure).isVisible()) shown += Caption(title) + " " + Caption(figure) + ", ";
      }
      shown += Caption("lblHov_Advice");
      QAccessibleInterface* cell = QAccessible::queryAccessibleInterface(&Get("lblCards", HandIndex(hand)));
      EXPECT_EQ(FromQt(cell->text(QAccessible::Name)), hand);
      EXPECT_EQ(FromQt(cell->text(QAccessible::Description)), shown);
    }
  }
}

TEST_F(SpokenWindow, TheEndOfARunIsAnnouncedWithTheExplanation) {
  const HeardAnnouncements heard;
  RunEquity("Tight");
  EXPECT_EQ(heard.Texts(), std::vector{Caption("lblResults")});
  OpenScreen("Preflop Call");
  Open(kGridNav);
  EXPECT_EQ(heard.Texts().size(), 1U) << "only the end of a run";
}

}  // namespace
}  // namespace quillon
