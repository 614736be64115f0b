#include "study/window/curve_pages.h"

#include <QAccessible>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QImage>
#include <QPushButton>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

#include "study/figure_svg.h"
#include "testing/bring_to_front.h"
#include "testing/expected_boxes.h"
#include "testing/heard_announcements.h"
#include "testing/sample_analysis.h"
#include "testing/study_hands.h"
#include "testing/study_stage.h"
#include "testing/temporary_program.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

StudySituation Shove() {
  return {.Asked = {.Mode = AnalysisMode::kPreflopRaise,
                    .Amounts = {1.5, 0.5, 9},
                    .RangeName = "Any",
                    .CallingRangeName = "Calls"},
          .Range = RangeOf("any"),
          .CallingRange = RangeOf("top 30%"),
          .Hands = Hands()};
}

StudySituation Call() {
  return {.Asked = {.Mode = AnalysisMode::kPreflopCall, .Amounts = {110, 90, 0}, .RangeName = "Button"},
          .Range = RangeOf("top 30%"),
          .Hands = Hands()};
}

template <typename Page>
class PageTest : public testing::Test {
 public:
  void Open(const StudySituation& situation) {
    page.resize(900, 620);
    BringToFront(page);
    page.Show(situation);
  }

  // The boxes in order: hands, from, to, steps.
  [[nodiscard]] TextBox& Box(qsizetype index) { return *page.template findChildren<TextBox*>().at(index); }
  [[nodiscard]] std::string Boxes() {
    std::string texts;
    for (const TextBox* box : page.template findChildren<TextBox*>())
      texts += (texts.empty() ? "" : "|") + FromQt(box->text());
    return texts;
  }
  void Type(qsizetype index, const char* text) {
    Box(index).setFocus();
    Box(index).selectAll();
    QTest::keyClicks(&Box(index), QString::fromLatin1(text));
    QTest::keyClick(&Box(index), Qt::Key_Return);
  }
  [[nodiscard]] std::string Told() {
    for (const QLabel* label : page.template findChildren<QLabel*>()) {
      if (label->wordWrap()) return FromQt(label->text().trimmed());
    }
    return {};
  }
  [[nodiscard]] FigureView& View(std::size_t index = 0) { return *page.Views().at(index); }
  [[nodiscard]] std::size_t PlacesShown() { return View().Shown().Places.size(); }
  [[nodiscard]] std::string Said(std::size_t index = 0) { return FromQt(View(index).accessibleName()); }

  void SaveAs(Qt::KeyboardModifiers keys, const std::string& offered, const std::string& name) {
    ExpectDialog([&](QDialog& dialog) {
      auto* line = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      EXPECT_EQ(FromQt(line->text()), offered);
      line->setText(ToQt(name));
      dialog.accept();
    });
    QTest::keyClick(&page, Qt::Key_S, keys);
    VerifyExpectedBoxes();
    BringToFront(page);
  }
  [[nodiscard]] std::string FileOf(const std::string& name) const {
    std::ostringstream bytes;
    bytes << std::ifstream(program.Folder().Path / "Saved Grids" / name, std::ios::binary).rdbuf();
    return bytes.str();
  }

  TemporaryProgram program;
  Page page{program.Folder()};
};

// A slow machine continues after the first moment.
void WaitFor(const WidthPage& page) {
  FinishWork(page.Work());
}

using HowFarPageTest = PageTest<HowFarPage>;
using WidthPageTest = PageTest<WidthPage>;

TEST_F(HowFarPageTest, BeginsWithTheHandThatHardlyPays) {
  Open(Shove());
  EXPECT_EQ(Boxes(), FromQt(ToQt(HandLabel(MarginalHand(Shove())))) + "|0.1|18|0.1");
  EXPECT_EQ(Told(), "");
}

TEST_F(HowFarPageTest, ShowsTheHandAskedFor) {
  Open(Shove());
  page.ShowHand(HandIndex("K9o"));
  EXPECT_EQ(Boxes(), "K9o|0.2|29|0.2");
  EXPECT_EQ(Said(),
            "Preflop Raise: pot 1.5, 0.5 to call. He plays \"Any\" and calls with \"Calls\". now 9 chips, 6 pots. "
            "K9o, up to 23.07");
  EXPECT_TRUE(View().hasFocus());
  EXPECT_EQ(FromQt(View().Words()), "K9o at 9 chips, 6 pots, now: 0.7085 chips, 0.4723 pots");
}

TEST_F(HowFarPageTest, ReadsWhatIsTyped) {
  Open(Call());
  struct Case {
    qsizetype box;
    const char* text;
    const char* boxes;
    const char* told;
    std::size_t lines;
  };
  for (const Case& c : std::vector<Case>{
           {0, "88 A7o", "88 A7o|1|109|1", "", 2},
           {0, "88 A7x", "88 A7x|1|109|1", "Hands: \"x\" does not belong here", 2},
           {0, "TT+", "TT+|1|109|1", "", 5},
           {2, "50", "TT+|1|50|1", "", 5},
           {0, "AA", "AA|1|50|1", "", 1},  // the player's own steps stay
           {2, "110", "AA|1|110|1", "From, to and steps: a call is smaller than the pot, which is 110", 1},
           {2, "20", "AA|1|20|1", "", 1},
           {3, "0", "AA|1|20|0", "From, to and steps: the step must be above 0", 1},
       }) {
    const HeardAnnouncements heard;
    Type(c.box, c.text);
    EXPECT_EQ(Boxes(), c.boxes) << c.text;
    EXPECT_EQ(Told(), c.told) << c.text;
    ASSERT_EQ(heard.Texts().size(), 1U) << c.text;
    EXPECT_EQ(heard.Texts()[0], Told().empty() ? Said() : Told()) << c.text;
  }
}

TEST_F(HowFarPageTest, LeavesTheFigureAloneWhereNothingWasTyped) {
  Open(Call());
  Box(0).setFocus();
  const HeardAnnouncements heard;
  for (int i = 0; i < 4; ++i)
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_TRUE(heard.Texts().empty());
}

// As a screen reader would write it.
TEST_F(HowFarPageTest, ReadsWhatIsWrittenIntoABox) {
  Open(Call());
  Box(0).setFocus();
  QAccessible::queryAccessibleInterface(&Box(0))->setText(QAccessible::Value, QStringLiteral("AA"));
  QTest::keyClick(&Box(0), Qt::Key_Tab);
  EXPECT_EQ(Said().substr(Said().size() - 10), "AA, always");
}

TEST_F(HowFarPageTest, KeepsTheHandsOfAnotherSituationAndForgetsTheSteps) {
  Open(Call());
  Type(0, "88 A7o");
  Type(2, "50");
  page.Show(Shove());
  EXPECT_EQ(Boxes(), "88 A7o|0.5|95.5|0.5");
  Type(0, "nonsense");
  page.Show(Call());
  EXPECT_EQ(Boxes().substr(0, Boxes().find('|')), std::string(HandLabel(MarginalHand(Call()))));
}

TEST_F(HowFarPageTest, SavesThePictureAndTheCompanionsTable) {
  Open(Shove());
  page.ShowHand(HandIndex("K9o"));
  SaveAs(Qt::ControlModifier, "K9o shove.svg", "my picture.svg");
  const auto steps = std::get<Steps>(Steps::Read("0.2:29:0.2"));
  const HandCurves curves = AmountCurves(Shove(), {HandIndex("K9o")}, steps);
  EXPECT_EQ(FileOf("my picture.svg"), FigureSvg(AmountFigure(Shove(), curves)));
  EXPECT_EQ(Told(), "Saved as my picture.svg.");
  SaveAs(Qt::ControlModifier | Qt::ShiftModifier, "K9o shove.csv", "table.csv");
  EXPECT_EQ(FileOf("table.csv"), curves.Csv());
}

TEST_F(HowFarPageTest, ACancelSavesNothing) {
  Open(Shove());
  ExpectDialog([](QDialog& dialog) { dialog.reject(); });
  QTest::keyClick(&page, Qt::Key_S, Qt::ControlModifier);
  VerifyExpectedBoxes();
  EXPECT_EQ(Told(), "");
  EXPECT_TRUE(std::filesystem::is_empty(program.Folder().Path / "Saved Grids"));
}

TEST_F(HowFarPageTest, CopiesAndSavesNothingBeforeThereIsAFigure) {
  for (QPushButton* button : page.findChildren<QPushButton*>())
    button->click();
  EXPECT_EQ(Told(), "");
}

// Pressing Enter twice must not overwrite the picture of another situation.
TEST_F(HowFarPageTest, OffersANameThatIsFree) {
  Open(Shove());
  page.ShowHand(HandIndex("K9o"));
  SaveAs(Qt::ControlModifier, "K9o shove.svg", "K9o shove.svg");
  SaveAs(Qt::ControlModifier, "K9o shove 2.svg", "K9o shove 2.svg");
  SaveAs(Qt::ControlModifier, "K9o shove 3.svg", "other.svg");
}

TEST_F(HowFarPageTest, CopiesThePictureThatItShows) {
  Open(Shove());
  QTest::keyClick(&View(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32), View().Picture());
  EXPECT_EQ(Told(), "The picture is copied.");
}

TEST_F(WidthPageTest, ShowsTheShareAndTheHands) {
  Open(Shove());
  page.ShowHand(HandIndex("K9o"));
  EXPECT_EQ(Boxes(), "K9o|1|100|1");
  WaitFor(page);
  EXPECT_GT(View(1).height(), 3 * View(0).height() / 2) << "room for the names of many hands";
  for (const auto& [view, words] : {std::pair{std::size_t{0}, "Profitable at 30%: 85.52%"},
                                    {std::size_t{1}, "K9o at 30%: 0.7085 chips, 0.4723 pots"}}) {
    View(view).setFocus(Qt::TabFocusReason);
    // The initial focus depends on how far the lines had grown.
    QTest::keyClick(&View(view), Qt::Key_Home);
    for (int width = 1; width < 30; ++width)
      QTest::keyClick(&View(view), Qt::Key_Right);
    EXPECT_EQ(FromQt(View(view).Words()), words) << view;
  }
}

TEST_F(WidthPageTest, GoesOnWhereItTakesLongerAndCanBeStopped) {
  Open(Shove());
  Type(1, "0.1");
  Type(3, "0.05");
  ASSERT_TRUE(page.Work().isVisible());
  const HeardAnnouncements heard;
  QTest::keyClick(&page, Qt::Key_Escape);
  EXPECT_EQ(heard.Texts(), std::vector<std::string>{"Stopped"});
  const std::size_t stopped = PlacesShown();
  EXPECT_GT(stopped, 0U) << "partial lines are shown";
  QTest::qWait(50);
  EXPECT_EQ(PlacesShown(), stopped);

  page.Work().findChild<QPushButton*>()->click();
  WaitFor(page);
  EXPECT_EQ(PlacesShown(), 1999U);
  EXPECT_EQ(heard.Texts().back(), Said(1)) << "only once it is complete";
}

TEST_F(WidthPageTest, TabReachesStopBeforeTheFigures) {
  Open(Shove());
  Type(3, "0.05");
  ASSERT_TRUE(page.Work().isVisible());
  auto* const stop = page.Work().findChild<QPushButton*>();
  stop->setFocus(Qt::TabFocusReason);
  for (FigureView* view : page.Views()) {
    QTest::keyClick(&page, Qt::Key_Tab);
    EXPECT_EQ(page.focusWidget(), view);
  }
}

TEST_F(WidthPageTest, DropsWorkForAnotherSituation) {
  Open(Shove());
  Type(3, "0.05");
  ASSERT_TRUE(page.Work().HasWork());
  page.Show(Call());
  WaitFor(page);
  EXPECT_EQ(PlacesShown(), 100U);
  EXPECT_EQ(Said().substr(0, 34), "Preflop Call: pot 110, 90 to call.");
}

TEST_F(WidthPageTest, SavesBothFiguresAsOnePicture) {
  Open(Call());
  page.ShowHand(HandIndex("88"));
  WaitFor(page);
  SaveAs(Qt::ControlModifier, "88 width.svg", "both.svg");
  EXPECT_NE(FileOf("both.svg").find(">Profitable</text>"), std::string::npos);
  EXPECT_NE(FileOf("both.svg").find(">88</text>"), std::string::npos);
  QTest::keyClick(&View(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->image().height(), View(0).Picture().height() + View(1).Picture().height());
}

class CurvesInWindow : public StudyStage {
 protected:
  [[nodiscard]] static std::vector<std::string> LinesOf(const CurvePage& page) {
    std::vector<std::string> names;
    for (const FigureLine& line : page.Views().back()->Shown().Lines)
      names.push_back(line.Name);
    return names;
  }
};

TEST_F(CurvesInWindow, ShareTheHands) {
  Open();
  const auto& width = *Form.findChild<WidthPage*>();
  const auto& howFar = *Form.findChild<HowFarPage*>();
  Form.Follow(sample::RaiseState());
  Form.ShowPage(StudyTopic::kHowFar, HandIndex("K9o"));
  Form.ShowPage(StudyTopic::kWidth);
  WaitFor(width);
  EXPECT_EQ(LinesOf(width), std::vector<std::string>{"K9o"});

  auto* hands = width.findChild<TextBox*>();
  hands->setFocus();
  QTest::keyClicks(hands, QStringLiteral(" AA"));
  QTest::keyClick(hands, Qt::Key_Return);
  WaitFor(width);
  EXPECT_EQ(LinesOf(howFar), std::vector<std::string>{"K9o"}) << "hidden curves are not drawn";
  Form.ShowPage(StudyTopic::kHowFar);
  EXPECT_EQ(LinesOf(howFar), (std::vector<std::string>{"AA", "K9o"}));
}

TEST_F(CurvesInWindow, SayWhereEquitiesAloneHaveNothing) {
  Open();
  Form.Follow(sample::EquityState());
  for (const StudyTopic topic : {StudyTopic::kHowFar, StudyTopic::kWidth}) {
    Form.ShowPage(topic, HandIndex("AA"));
    EXPECT_NE(Texts().find("asks for no amounts"), std::string::npos);
  }
}

}  // namespace
}  // namespace quillon
