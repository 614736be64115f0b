#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QGuiApplication>
#include <QImage>
#include <QLineEdit>
#include <gmock/gmock.h>
#include <vector>

#include "results/analysis_page.h"
#include "testing/fake_opener.h"
#include "testing/heard_announcements.h"
#include "testing/main_stage.h"
#include "testing/opened_menu.h"
#include "testing/sample_analysis.h"
#include "testing/split_text.h"
#include "tools/analysis_output.h"

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::EndsWith;

const Message kSaved = {.title = "Open Now?",
                        .text = "Web page saved successfully.\r\n\r\nDo you want to open the web page now?",
                        .icon = MessageIcon::kQuestion,
                        .buttons = MessageButtons::kYesNo};

class ResultsMenuInWindow : public MainFormTest {
 protected:
  void OpenMenuOn(std::string_view hand) { OpenMenu(Form, MiddleOf("lblCards", HandIndex(hand))); }
  void Choose(std::string_view hand, std::string_view text) {
    ChooseInMenu(Form, MiddleOf("lblCards", HandIndex(hand)), text);
  }
};

TEST_F(ResultsMenuInWindow, IsTheHandsUnderTheMouseAndElsewhereOnTheGridThatOfNoHand) {
  ShowGridOf(sample::CallState());
  OpenMenuOn("T9s");
  EXPECT_THAT(MenuEntries(Form),
              ElementsAre("Copy picture", "Copy table", "Save as web page...", "", "How far?", "In the report"));
  CloseMenu(Form);
  const QRect cell = Get("shapeCardBack", 14).geometry();
  OpenMenu(Form, Get("frameContent", kGridScreen).mapTo(&Form, cell.bottomRight() + QPoint(1, 1)));
  EXPECT_THAT(MenuEntries(Form), ElementsAre("Copy picture", "Copy table", "Save as web page...", "", "How far? (off)",
                                             "In the report (off)"));
  CloseMenu(Form);
  OpenMenu(Form, MiddleOf("lblGridTitle"));
  EXPECT_THAT(MenuEntries(Form), testing::Not(testing::Contains("Copy table"))) << "it is the window's";
}

TEST_F(ResultsMenuInWindow, OffersNothingBeforeAnAnalysis) {
  ShowGridOf({});
  OpenMenuOn("AA");
  EXPECT_THAT(MenuEntries(Form), ElementsAre("Copy picture (off)", "Copy table (off)", "Save as web page... (off)", "",
                                             "How far? (off)", "In the report (off)"));
}

TEST_F(ResultsMenuInWindow, CopiesThePictureThatIsSavedWithoutThePanel) {
  Form.move(0, 0);
  RunCall("150", "50", "Tight");
  const QImage bare = Get("frameContent", kGridScreen).grab(QRect(16, 12, 409, 521)).toImage();
  MoveOver("lblCards", HandIndex("AA"));
  ASSERT_TRUE(Shows("frameHover"));
  const HeardAnnouncements heard;
  Choose("AA", "Copy picture");
  EXPECT_EQ(QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32),
            bare.convertToFormat(QImage::Format_RGB32));
  EXPECT_TRUE(Shows("frameHover"));
  EXPECT_THAT(heard.Texts(), ElementsAre("Copied."));
}

TEST_F(ResultsMenuInWindow, CopiesTheTableThatTheCompanionPrintsWithTabs) {
  for (const auto& state : {sample::CallState(), sample::RaiseState(), sample::EquityState()}) {
    ShowGridOf(state);
    Choose("72o", "Copy table");
    EXPECT_EQ(FromQt(QGuiApplication::clipboard()->text()),
              Replaced(InFormat(kAnalysisFormats, "csv", {state, {}}), ",", "\t"));
  }
}

TEST_F(ResultsMenuInWindow, SavesTheCompanionsPageUnderTheNameTyped) {
  const FakeOpener opener;
  ShowGridOf(sample::RaiseState());
  ExpectDialog([this](QDialog& dialog) {
    const auto& box = dynamic_cast<QFileDialog&>(dialog);
    EXPECT_EQ(FromQt(box.windowTitle()), "Save as Web Page");
    EXPECT_EQ(FromQt(box.directory().absolutePath()), SavedGrids().string());
    EXPECT_EQ(box.nameFilters().join(QLatin1Char(';')), QStringLiteral("Web page (*.html)"));
    dialog.reject();
  });
  Choose("AA", "Save as web page...");
  VerifyExpectedBoxes();
  EXPECT_TRUE(std::filesystem::is_empty(SavedGrids()));

  ComeToFront();
  ExpectFileName("My \"shove\".html");
  ExpectMessageBox(kSaved, MessageAnswer::kNo);
  Choose("AA", "Save as web page...");
  VerifyExpectedBoxes();
  EXPECT_EQ(BytesOf(SavedGrids() / "My \"shove\".html"),
            InFormat(kAnalysisFormats, "html", {sample::RaiseState(), {}}));
  EXPECT_EQ(opener.Opened(), "");

  ComeToFront();
  ExpectDialog([](QDialog& dialog) {
    EXPECT_EQ(NameLineOf(dialog).text(), QStringLiteral("My \"shove\".html"));
    dialog.accept();
  });
  ExpectMessageBox(kSaved, MessageAnswer::kYes);
  Choose("AA", "Save as web page...");
  VerifyExpectedBoxes();
  EXPECT_THAT(opener.Opened(), EndsWith("/Saved%20Grids/My%20%22shove%22.html\n"));
}

TEST_F(ResultsMenuInWindow, TellsWhereThePageIsIfNothingOpensIt) {
  const FakeOpener opener(FakeOpener::kNoneFound);
  ShowGridOf(sample::RaiseState());
  ExpectFileName("page.html");
  ExpectMessageBox(kSaved, MessageAnswer::kYes);
  ExpectMessageBox(
      {.title = "Quillon",
       .text = "The web page could not be opened. It is the file:\r\n\r\n" + (SavedGrids() / "page.html").string(),
       .icon = MessageIcon::kExclamation});
  Choose("AA", "Save as web page...");
  static_cast<void>(opener.Opened());
  VerifyExpectedBoxes();
}

TEST_F(ResultsMenuInWindow, HowFarOpensThatPageAtTheHandWhereThereIsAnAmount) {
  RunEquity("Tight");
  OpenMenuOn("T9s");
  EXPECT_THAT(MenuEntries(Form), testing::Contains("How far? (off)"));
  CloseMenu(Form);
  RunCall("150", "50", "Tight");
  Choose("T9s", "How far?");
  ASSERT_NE(Form.Study().Loaded(), nullptr);
  EXPECT_TRUE(Form.Study().Loaded()->isVisible());
  const QTabWidget& pages = Form.Study().Loaded()->Tabs();
  EXPECT_EQ(pages.tabText(pages.currentIndex()), QStringLiteral("How far?"));
  EXPECT_EQ(pages.currentWidget()->findChild<QLineEdit*>()->text(), QStringLiteral("T9s"));
}

TEST_F(ResultsMenuInWindow, AHandInTheReportIsDetailsForumAndThatHand) {
  const std::vector<std::string> hands = {"K9o"};
  ShowGridOf(sample::RaiseState());
  Choose("K9o", "In the report");
  const auto expectReport = [&] {
    EXPECT_EQ(Screen(), "Details");
    EXPECT_EQ(FromQt(Get<QComboBox>("cmboOutputType").currentText()), "2+2");
    EXPECT_EQ(FromQt(Get<QComboBox>("cmbo169").currentText()), "K9o");
    EXPECT_TRUE(Shows("cmbo169"));
    EXPECT_EQ(FromQt(Get<RichTextBox>("rtfSummary").toPlainText()),
              InFormat(kAnalysisFormats, "2+2", {sample::RaiseState(), hands}));
  };
  expectReport();

  // By keyboard, and with the same hand already in the list.
  Open(kGridNav);
  Get("lblCards", HandIndex("K9o")).setFocus(Qt::TabFocusReason);
  Press(Qt::Key_F10, Qt::ShiftModifier);
  ASSERT_NE(OpenedMenu(Form), nullptr);
  for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Return})
    QTest::keyClick(OpenedMenu(Form), key);
  expectReport();
  EXPECT_TRUE(Form.focusWidget() != nullptr && Form.focusWidget()->isVisible());
}

}  // namespace
}  // namespace quillon
