#include "study/window/figure_view.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "testing/bring_to_front.h"
#include "testing/heard_announcements.h"
#include "toolkit/placement.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

// Three hands over a shove of 1 to 4; at the second place two have the same value.
Figure Hands() {
  return {.Title = "Preflop Raise",
          .Across = {.Title = "Shove", .Low = 0, .High = 4, .Unit = "chip"},
          .Up = {.Title = "Value", .Low = -4, .High = 4, .Unit = "chip"},
          .Places = {"1", "2", "3", "4"},
          .Lines = {{.Name = "K9o", .Values = {3, 1, -2, -3}, .Note = "up to 2.3", .Limit = 2.3},
                    {.Name = "22", .Values = {2, 1, 0.5, -1}},
                    {.Name = "AA", .Values = {2.5, 2, 2, 2.5}}},
          .Marks = {{.At = 2.9, .Text = "now"}}};
}

class FigureViewTest : public testing::Test {
 public:
  FigureViewTest() {
    View.resize(700, 400);
    BringToFront(View);
  }

  void TearDown() override { ShowAtScale(1); }

  void Press(Qt::Key key) { QTest::keyClick(&View, key); }
  void MoveTo(const QPointF& spot) { QTest::mouseMove(View.windowHandle(), spot.toPoint()); }
  [[nodiscard]] std::string Words() const { return FromQt(View.Words()); }
  [[nodiscard]] QImage Look() { return View.grab().toImage().convertToFormat(QImage::Format_RGB32); }

  FigureView View;
};

TEST_F(FigureViewTest, SaysHowToReadItUntilAPointIsReached) {
  EXPECT_EQ(Words(), "") << "nothing is shown yet";
  View.clearFocus();
  View.Show(Hands());
  EXPECT_EQ(View.Point(), std::nullopt);
  EXPECT_EQ(Words(), "Point at a line, or go along it with the arrow keys.");
}

TEST_F(FigureViewTest, HasNoPointWithoutAFigure) {
  MoveTo({100, 100});
  View.clearFocus();
  View.setFocus(Qt::TabFocusReason);
  const HeardAnnouncements heard;
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Escape})
    Press(key);
  EXPECT_EQ(View.Point(), std::nullopt);
  EXPECT_TRUE(heard.Texts().empty());
  QImage empty = View.Picture();
  empty.fill(Qt::white);
  EXPECT_EQ(View.Picture(), empty);
}

TEST_F(FigureViewTest, BeginsAtTheFirstPlaceWithoutAMark) {
  Figure figure = Hands();
  figure.Marks.clear();
  View.Show(figure);
  EXPECT_EQ(View.Point(), (FigurePoint{0, 0}));
}

TEST_F(FigureViewTest, FindsThePointNearestToTheMouse) {
  View.Show(Hands());
  for (const double scale : {0.75, 1.0, 1.5, 3.0}) {
    ShowAtScale(scale);
    View.resize(QSize(700, 400) * scale);
    for (std::size_t line : {0U, 2U}) {
      for (std::size_t place = 0; place < 4; ++place) {
        MoveTo(View.SpotOf({line, place}) + QPointF(5, 2) * scale);
        EXPECT_EQ(View.Point(), (FigurePoint{line, place})) << scale << " " << line << " " << place;
      }
    }
  }
}

TEST_F(FigureViewTest, KeepsThePointOfTheKeyboardWhenTheMouseLeaves) {
  View.Show(Hands());
  for (const bool focused : {true, false}) {
    if (!focused) View.clearFocus();
    MoveTo(View.SpotOf({0, focused ? 0U : 1U}));
    ASSERT_TRUE(View.Point());
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&View, &leave);
    EXPECT_EQ(View.Point().has_value(), focused);
  }
}

TEST_F(FigureViewTest, IsReadOffByKeys) {
  View.Show(Hands());
  View.clearFocus();
  View.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Words(), "K9o at 3 chips: -2 chips") << "the place nearest to the mark";
  struct Case {
    Qt::Key key;
    const char* words;
  };
  for (const Case& c : std::vector<Case>{
           {Qt::Key_Right, "K9o at 4 chips: -3 chips"},
           {Qt::Key_Right, "K9o at 4 chips: -3 chips"},
           {Qt::Key_Up, "22 at 4 chips: -1 chips"},
           {Qt::Key_Up, "AA at 4 chips: 2.5 chips"},
           {Qt::Key_Up, "AA at 4 chips: 2.5 chips"},
           {Qt::Key_Down, "22 at 4 chips: -1 chips"},
           {Qt::Key_Home, "22 at 1 chip: 2 chips"},
           {Qt::Key_Left, "22 at 1 chip: 2 chips"},
           {Qt::Key_PageDown, "22 at 4 chips: -1 chips"},
           {Qt::Key_PageUp, "22 at 1 chip: 2 chips"},
           {Qt::Key_Right, "22 at 2 chips: 1 chip"},
           {Qt::Key_Up, "K9o at 2 chips: 1 chip"},  // of equal values the earlier is above
           {Qt::Key_Up, "AA at 2 chips: 2 chips"},
           {Qt::Key_End, "AA at 4 chips: 2.5 chips"},
       }) {
    const HeardAnnouncements heard;
    Press(c.key);
    EXPECT_EQ(Words(), c.words) << c.key;
    EXPECT_EQ(heard.Texts(), std::vector<std::string>{c.words}) << c.key;
  }
  Press(Qt::Key_Escape);
  EXPECT_EQ(View.Point(), std::nullopt);
}

TEST_F(FigureViewTest, TheFirstKeyLeadsToThePointItBeginsWith) {
  View.Show(Hands());
  Press(Qt::Key_Escape);
  Press(Qt::Key_Left);
  EXPECT_EQ(View.Point(), (FigurePoint{0, 2}));
}

TEST_F(FigureViewTest, KeysThatAreNoneOfItsOwnGoOn) {
  View.Show(Hands());
  const auto before = View.Point();
  const HeardAnnouncements heard;
  for (const Qt::Key key : {Qt::Key_A, Qt::Key_Return, Qt::Key_Space, Qt::Key_Tab})
    Press(key);
  EXPECT_EQ(View.Point(), before);
  EXPECT_TRUE(heard.Texts().empty());
}

TEST_F(FigureViewTest, KeepsThePointOfAnotherFigureWhereItHasBoth) {
  struct Case {
    const char* rule;
    std::string line;
    std::string place;
    const char* words;
  };
  for (const Case& c : std::vector<Case>{
           {"both are there", "22", "2", "22 at 2 chips: 1 chip"},
           {"no such line", "33", "2", "K9o at 3 chips: -2 chips"},
           {"no such place", "22", "2.5", "K9o at 3 chips: -2 chips"},
       }) {
    Figure before = Hands();
    before.Lines[0].Name = c.line;
    before.Places[1] = c.place;
    View.Show(before);
    for (const std::size_t place : {0U, 1U})
      MoveTo(View.SpotOf({0, place}));
    ASSERT_EQ(View.Point(), (FigurePoint{0, 1}));
    View.Show(Hands());
    EXPECT_EQ(Words(), c.words) << c.rule;
  }
}

TEST_F(FigureViewTest, SpeaksToAScreenReader) {
  View.Show(Hands());
  MoveTo(View.SpotOf({2, 0}));
  QAccessibleInterface& spoken = *QAccessible::queryAccessibleInterface(&View);
  EXPECT_EQ(spoken.role(), QAccessible::Chart);
  EXPECT_EQ(FromQt(spoken.text(QAccessible::Name)), "Preflop Raise. now 2.9 chips. K9o, up to 2.3. 22. AA");
  EXPECT_EQ(FromQt(spoken.text(QAccessible::Description)), "AA at 1 chip: 2.5 chips");
  EXPECT_EQ(FromQt(spoken.text(QAccessible::Value)), "AA at 1 chip: 2.5 chips");
  View.Clear();
  EXPECT_EQ(FromQt(spoken.text(QAccessible::Name)), "");
}

TEST_F(FigureViewTest, IsCopiedWithoutCrossHairAndWords) {
  View.Show(Hands());
  MoveTo(View.SpotOf({0, 1}));
  const QImage looked = Look();
  const QImage picture = View.Picture();
  EXPECT_EQ(picture.width(), looked.width());
  EXPECT_LT(picture.height(), looked.height());
  EXPECT_NE(looked.copy(picture.rect()), picture) << "there is a cross hair";
  Press(Qt::Key_Escape);
  EXPECT_EQ(Look().copy(picture.rect()), picture);
  EXPECT_EQ(View.Picture(), picture);
}

// Each line and its dots are drawn in its colour, at every size.
TEST_F(FigureViewTest, DrawsEveryLineAtEveryScale) {
  View.Show(Hands());
  for (const double scale : {0.75, 1.0, 2.0, 3.0}) {
    ShowAtScale(scale);
    View.resize((QSizeF(700, 400) * scale).toSize());
    Press(Qt::Key_Escape);
    const QImage look = Look();
    for (std::size_t line = 0; line < 3; ++line) {
      const QPoint spot = View.SpotOf({line, 3}).toPoint();
      EXPECT_EQ(look.pixelColor(spot), QColor(ToQt(FigureLayout::PenOf(line).Color))) << scale << " " << line;
    }
    EXPECT_EQ(look.pixelColor(2, 2), QColor(Qt::white));
  }
}

TEST_F(FigureViewTest, WantsRoomByTheScale) {
  const QSize least = View.minimumSizeHint();
  ShowAtScale(2);
  EXPECT_EQ(View.minimumSizeHint(), 2 * least);
}

}  // namespace
}  // namespace quillon
