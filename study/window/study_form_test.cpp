#include "study/window/study_form.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QTabBar>
#include <gmock/gmock.h>

#include "study/limit_cells.h"
#include "study/window/limits_page.h"
#include "study/window/study_work.h"
#include "testing/heard_announcements.h"
#include "testing/sample_analysis.h"
#include "testing/study_stage.h"

namespace quillon {
namespace {

using testing::HasSubstr;

class StudyWindow : public StudyStage {
 protected:
  [[nodiscard]] QPushButton& Follow() const { return Button("Follow the new analysis"); }
  [[nodiscard]] LimitsPage& Limits() const { return *Form.findChild<LimitsPage*>(); }
};

TEST_F(StudyWindow, SaysWhatToDoBeforeAnyAnalysis) {
  Open();
  EXPECT_THAT(Texts(), HasSubstr("No situation yet"));
  EXPECT_THAT(Texts(), HasSubstr("No analysis has finished yet."));
  EXPECT_FALSE(Limits().isVisible());
  EXPECT_FALSE(Follow().isVisible());
}

TEST_F(StudyWindow, TakesTheFirstAnalysisAndOffersTheNext) {
  Open();
  EXPECT_TRUE(Form.Tabs().tabBar()->hasFocus());
  const HeardAnnouncements heard;
  Form.Offer(sample::CallState());
  EXPECT_TRUE(Limits().isAncestorOf(Form.focusWidget())) << "there was nothing to focus";
  EXPECT_THAT(Texts(), HasSubstr("Preflop Call: pot 150, 50 to call; he plays \"Tight\""));
  EXPECT_TRUE(Limits().isVisible());

  Form.Offer(sample::CallState());
  EXPECT_FALSE(Follow().isVisible()) << "it asks the same";

  Form.Offer(sample::RaiseState());
  EXPECT_TRUE(Follow().isVisible());
  EXPECT_THAT(Texts(), HasSubstr("Preflop Call:"));
  EXPECT_THAT(heard.Texts().back(), HasSubstr("Follow the new analysis: Preflop Raise: pot 150"));

  Follow().setFocus(Qt::TabFocusReason);
  Press(Qt::Key_Space);
  EXPECT_THAT(Texts(), HasSubstr("Preflop Raise: pot 150, 50 to call, he must call 62.5;"));
  EXPECT_FALSE(Follow().isVisible());
  EXPECT_TRUE(Limits().isAncestorOf(Form.focusWidget())) << "the focused button is gone";

  Form.Offer(sample::CallState());
  Press(Qt::Key_F5);
  EXPECT_THAT(Texts(), HasSubstr("Preflop Call:"));

  Form.Offer(sample::RaiseState());
  Form.Offer(sample::CallState());
  EXPECT_FALSE(Follow().isVisible()) << "the one shown is the last again";
}

TEST_F(StudyWindow, FollowsNothingWhereNothingIsOffered) {
  Open();
  Form.Follow(sample::CallState());
  const HeardAnnouncements heard;
  Press(Qt::Key_F5);
  EXPECT_TRUE(heard.Texts().empty());
}

TEST_F(StudyWindow, GoesRoundItsPagesByKey) {
  Open();
  std::string pages;
  for (const Qt::KeyboardModifiers held : {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ShiftModifier)}) {
    for (int i = 0; i < Form.Tabs().count(); ++i) {
      Press(held == Qt::NoModifier ? Qt::Key_Tab : Qt::Key_Backtab, held | Qt::ControlModifier);
      pages += std::to_string(Form.Tabs().currentIndex());
    }
  }
  EXPECT_EQ(pages, "12303210");
}

TEST_F(StudyWindow, SaysWhereEquitiesAloneHaveNothing) {
  Open();
  Form.Follow(sample::RaiseState());
  Limits().ShowHand(HandIndex("KK"));
  Form.Follow(sample::EquityState());
  EXPECT_THAT(Texts(), HasSubstr("asks for no amounts"));
  EXPECT_FALSE(Limits().isVisible());
  EXPECT_TRUE(Form.Tabs().tabBar()->hasFocus());
}

TEST_F(StudyWindow, TellsTheLimitsOfTheHandThatIsReached) {
  Open();
  Form.Follow(sample::RaiseState());
  const StudySituation situation = StudySituationOf(sample::RaiseState(), Hands());
  const auto limits = LimitsOf(AnalysisMode::kPreflopRaise, situation.Numbers(), {150, 50, 0});
  const ClassCells cells = LimitCellsAt(limits, 62.5);
  for (std::int16_t i = 0; i < kHandClassCount; ++i) {
    Limits().ShowHand(i);
    const auto at = static_cast<std::size_t>(i);
    EXPECT_EQ(FromQt(Form.focusWidget()->accessibleName()), HandLabel(i));
    EXPECT_EQ(FromQt(Form.focusWidget()->accessibleDescription()), cells.at(at).Words);
    EXPECT_THAT(Texts(), HasSubstr("\n" + std::string(HandLabel(i)) + "\nDoes not lose: " + LimitWords(limits.at(at)) +
                                   "\nNow, at 62.5: " + (LosesAt(limits.at(at), 62.5) ? "loses" : "does not lose")));
  }
  EXPECT_THAT(Texts(), HasSubstr("Shove up to"));
  EXPECT_THAT(Texts(), HasSubstr("Now 62.5: " + std::to_string(CombosGoodAt(limits, 62.5)) + " of 1326 hands"));

  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(FromQt(QGuiApplication::clipboard()->text()), LimitTable(limits, '\t'));

  Form.Follow(sample::CallState());
  EXPECT_THAT(Texts(), HasSubstr("Call up to"));
  EXPECT_THAT(Texts(), HasSubstr("Now 50: "));
}

TEST_F(StudyWindow, RemembersItsPlaceAndSize) {
  Open();
  Form.move(31, 47);
  Form.resize(1001, 703);
  Press(Qt::Key_W, Qt::ControlModifier);
  EXPECT_FALSE(Form.isVisible());
  EXPECT_EQ(ReadIniValue("Study", "Width", Program.Folder()), "15015");
  EXPECT_EQ(ReadIniValue("Study", "Height", Program.Folder()), "10545");
  EXPECT_EQ(ReadIniValue("Study", "Left", Program.Folder()), "465");

  const StudyForm again(Around);
  EXPECT_EQ(again.size(), QSize(1001, 703));
  EXPECT_EQ(again.pos(), QPoint(31, 47));
  ShowAtScale(1.5);
  EXPECT_EQ(again.size(), QSize(1502, 1055));
}

TEST_F(StudyWindow, RemembersNoPlaceWhileItIsMaximized) {
  Form.showMaximized();
  Press(Qt::Key_W, Qt::ControlModifier);
  EXPECT_FALSE(Form.isVisible());
  EXPECT_EQ(ReadIniValue("Study", "Width", Program.Folder()), "");
}

// Its minimum size fits the pages, whatever the ranges are called.
TEST_F(StudyWindow, CutsNothingOffAtItsLeastSize) {
  Open();
  Analysis analysis = sample::RaiseState();
  analysis.RangeName = std::string(250, 'x');
  analysis.CallingRangeName = std::string(250, 'y');
  Form.Follow(analysis);
  Form.Offer(sample::CallState());
  for (const double scale : {0.75, 1.0, 1.5, 2.0, 3.0}) {
    ShowAtScale(scale);
    Form.resize(Form.minimumSize());
    for (const StudyTopic topic :
         {StudyTopic::kLimits, StudyTopic::kHowFar, StudyTopic::kWidth, StudyTopic::kBalanced}) {
      Form.ShowPage(topic);
      if (const auto* work = Form.Page(topic)->findChild<StudyWork*>()) FinishWork(*work);
      for (int rounds = 0; rounds < 3; ++rounds)  // fonts learn their size first, then layouts the fonts
        QCoreApplication::processEvents();
      EXPECT_EQ(Form.size(), Form.minimumSize()) << scale << ": the page needs more";
      for (const QWidget* part : Form.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(part);
        const bool isText = label != nullptr || qobject_cast<const QAbstractButton*>(part) != nullptr;
        if (!isText || !part->isVisible()) continue;
        const QString text = label != nullptr ? label->text() : part->property("text").toString();
        EXPECT_TRUE(Form.rect().contains(QRect(part->mapTo(&Form, QPoint()), part->size())))
            << scale << " " << FromQt(text);
        if (part->hasHeightForWidth()) {
          EXPECT_GE(part->height(), part->heightForWidth(part->width())) << scale << " " << FromQt(text);
        } else {
          EXPECT_EQ(part->size().expandedTo(part->sizeHint()), part->size()) << scale << " " << FromQt(text);
        }
      }
    }
  }
}

TEST_F(StudyWindow, CutsLongNamesInItsLineAndSaysThemWhole) {
  Open();
  Analysis analysis = sample::CallState();
  analysis.RangeName = std::string(250, 'x');
  Form.Follow(analysis);
  EXPECT_THAT(Texts(), HasSubstr("he plays \"" + std::string(40, 'x') + "\u2026\""));
  EXPECT_EQ(FromQt(Form.findChild<QLabel*>()->accessibleName()), SituationWords(analysis));
}

}  // namespace
}  // namespace quillon
