#include "study/figure.h"

#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "study/figure_svg.h"
#include "support/number_text.h"
#include "testing/golden_file.h"

namespace quillon {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr double kMost = std::numeric_limits<double>::max();

// Two hands over a shove of 1 to 5, in a pot of 2.
Figure TwoHands() {
  return {.Title = "Preflop Raise",
          .Across = {.Title = "Shove", .Low = 0, .High = 5, .Unit = "chip", .Pot = 2},
          .Up = {.Title = "Value", .Low = -4, .High = 4, .Unit = "chip", .Pot = 2},
          .Places = {"1", "2", "3.5", "5"},
          .Lines = {{.Name = "K9o", .Values = {3, 1, -2, -3.00006}, .Note = "up to 2.5", .Limit = 2.5},
                    {.Name = "AA", .Values = {1, 1, 2, 3.5}, .Note = "always"}},
          .Marks = {{.At = 2, .Text = "now"}}};
}

template <typename Part>
std::vector<Part> PartsOf(const FigureLayout& layout) {
  std::vector<Part> parts;
  for (const FigurePart& part : layout.Parts()) {
    if (const auto* const one = std::get_if<Part>(&part)) parts.push_back(*one);
  }
  return parts;
}

// The text that reads `text`, or null.
const FigureText* TextOf(const std::vector<FigureText>& texts, const std::string& text) {
  const auto found = std::ranges::find(texts, text, &FigureText::Text);
  return found == texts.end() ? nullptr : &*found;
}

TEST(RoundTicks, AreRoundAndWithin) {
  struct Case {
    double low;
    double high;
    int wanted;
    std::vector<double> ticks;
  };
  for (const Case& c : std::vector<Case>{
           {0, 20, 5, {0, 5, 10, 15, 20}},
           {-0.3, 1.1, 7, {-0.2, 0, 0.2, 0.4, 0.6, 0.8, 1}},
           {7, 7, 5, {7}},
           {0, 27.5, 5, {0, 10, 20}},
           {0.1, 0.5, 4, {0.1, 0.2, 0.3, 0.4, 0.5}},
           {1234, 5678, 5, {2000, 3000, 4000, 5000}},
           {1e15, 1e15 + 1, 8, {}},
       }) {
    const auto ticks = RoundTicks(c.low, c.high, c.wanted);
    EXPECT_EQ(ticks, c.ticks.empty() ? ticks : c.ticks) << c.low;
    EXPECT_LE(ticks.size(), static_cast<std::size_t>(c.wanted) + 1) << c.low;
  }
}

// Powers of ten differ between C libraries in the last digit up there.
TEST(RoundTicks, ReachAsFarAsNumbersDo) {
  EXPECT_THAT(RoundTicks(-kMost, kMost, 4), testing::Pointwise(testing::DoubleEq(), {-1e308, 0.0, 1e308}));
}

TEST(Figure, TellsAPointInWords) {
  Figure figure = TwoHands();
  struct Case {
    const char* rule;
    FigurePoint point;
    const char* words;
  };
  for (const Case& c : std::vector<Case>{
           {"one is one", {1, 0}, "AA at 1 chip, 0.5 pots: 1 chip, 0.5 pots"},
           {"a marked place says so", {0, 1}, "K9o at 2 chips, 1 pot, now: 1 chip, 0.5 pots"},
           {"four decimals", {0, 3}, "K9o at 5 chips, 2.5 pots: -3.0001 chips, -1.5 pots"},
       })
    EXPECT_EQ(PointWords(figure, c.point), c.words) << c.rule;
  figure.Across.Unit = "%";
  figure.Across.Pot = 0;
  figure.Up.Pot = 1;
  EXPECT_EQ(PointWords(figure, {0, 2}), "K9o at 3.5%: -2 chips, -2 pots");
}

TEST(Figure, TellsItselfInWords) {
  EXPECT_EQ(FigureWords(TwoHands()), "Preflop Raise. now 2 chips, 1 pot. K9o, up to 2.5. AA, always");
}

TEST(FigureLayout, FindsThePointNearestToASpot) {
  Figure figure = TwoHands();
  figure.Across.Low = 0.9;
  figure.Lines.push_back({.Name = "72o", .Values = {-1, -3, -3.5, -3.9}});
  const FigureLayout layout(figure, {800, 500});
  for (std::size_t line = 0; line < figure.Lines.size(); ++line) {
    for (std::size_t place = 0; place < figure.Places.size(); ++place) {
      const FigurePoint point{line, place};
      const FigureSpot spot = layout.SpotOf(point);
      const bool shared = line == 1 && place == 1;  // two lines meet there, and the earlier is read
      EXPECT_EQ(layout.Nearest(spot), (FigurePoint{shared ? 0 : line, place})) << line << " " << place;
      EXPECT_EQ(layout.Nearest({spot.X + 20, spot.Y + 5}).Place, place) << line << " " << place;
    }
  }
  struct Case {
    const char* rule;
    FigureSpot spot;
    FigurePoint point;
  };
  for (const Case& c : std::vector<Case>{
           {"left of the plot", {-100, layout.PlotStart().Y}, {0, 0}},
           {"right of it", {1e9, layout.PlotEnd().Y}, {2, 3}},
           {"above it", {layout.PlotEnd().X, -1e9}, {1, 3}},
       })
    EXPECT_EQ(layout.Nearest(c.spot), c.point) << c.rule;
}

// A scale without a span, and one that overflows.
TEST(FigureLayout, FindsAPointOnAnyScale) {
  Figure figure = TwoHands();
  figure.Places = {"7"};
  figure.Across = {.Title = "", .Low = 7, .High = 7};
  for (FigureLine& line : figure.Lines)
    line.Values = {kMost / 2};
  figure.Up = {.Title = "", .Low = -kMost, .High = kMost};
  const FigureLayout layout(figure, {400, 300});
  EXPECT_EQ(layout.Nearest({10, 10}), (FigurePoint{0, 0}));
  EXPECT_DOUBLE_EQ(layout.SpotOf({0, 0}).Y, 0.75 * layout.PlotStart().Y + 0.25 * layout.PlotEnd().Y);
}

TEST(FigureLayout, CountsInPotsAboveAndToTheRight) {
  const Figure figure = TwoHands();
  const FigureLayout layout(figure, {800, 500});
  const auto texts = PartsOf<FigureText>(layout);
  const FigureText* pots = TextOf(texts, "in pots");
  ASSERT_NE(pots, nullptr);
  EXPECT_GT(pots->At.X, layout.PlotEnd().X);
  EXPECT_LT(pots->At.Y, layout.PlotStart().Y);
  // 2.5 pots are 5 chips, where the plot ends.
  EXPECT_TRUE(std::ranges::any_of(texts, [&layout](const FigureText& text) {
    const bool atEnd = std::abs(text.At.X - layout.PlotEnd().X) < 0.01;
    return text.Text == "2.5" && atEnd && text.At.Y < layout.PlotStart().Y;
  }));

  Figure plain = figure;
  plain.Across.Pot = plain.Up.Pot = 0;
  EXPECT_EQ(TextOf(PartsOf<FigureText>(FigureLayout(plain, {800, 500})), "in pots"), nullptr);
}

TEST(FigureLayout, MarksTheAmountAndTheLimitsThatItShows) {
  Figure figure = TwoHands();
  const FigureLayout layout(figure, {800, 500});
  const auto rings = PartsOf<FigureRing>(layout);
  ASSERT_EQ(rings.size(), 1U);
  const double middle = (layout.PlotStart().X + layout.PlotEnd().X) / 2;
  EXPECT_NEAR(rings[0].At.X, middle, 0.01) << "2.5 of 5";
  EXPECT_NEAR(rings[0].At.Y, (layout.PlotStart().Y + layout.PlotEnd().Y) / 2, 0.01) << "on the zero line";
  EXPECT_EQ(rings[0].Pen.Color, FigureLayout::PenOf(0).Color);
  EXPECT_NE(TextOf(PartsOf<FigureText>(layout), "now 2"), nullptr);

  figure.Lines[0].Limit = 5.1;
  figure.Marks[0].At = 5.1;
  EXPECT_TRUE(PartsOf<FigureRing>(layout).empty());
  EXPECT_EQ(TextOf(PartsOf<FigureText>(layout), "now 5.1"), nullptr);
}

TEST(FigureLayout, KeepsAMarksTextWithinThePlot) {
  Figure figure = TwoHands();
  const FigureLayout layout(figure, {800, 500});
  for (const double at : {0.0, 5.0}) {
    figure.Marks[0].At = at;
    const auto texts = PartsOf<FigureText>(layout);
    const FigureText* text = TextOf(texts, at == 0 ? "now 0" : "now 5");
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->Anchor, at == 0 ? FigureAnchor::kStart : FigureAnchor::kEnd);
  }
}

TEST(FigureLayout, PutsAMarksTextWhereNoLineIs) {
  struct Case {
    const char* rule;
    double mark;
    const char* third;  // of the places
    std::vector<double> values;  // of the second line
    bool atTheTop;
  };
  for (const Case& c : std::vector<Case>{
           {"nothing in the way", 3.2, "3.5", {1, 1, 2, 3.5}, true},
           {"a line just below the letters", 3.2, "3.5", {1, 1, 3.55, 3.55}, false},
           {"the start of a line", 0.8, "3.5", {3.7, 1, 2, 3.5}, false},
           {"a line left of a mark at the right end", 5, "4.7", {1, 1, 3.7, 3.5}, false},
       }) {
    Figure figure = TwoHands();
    figure.Marks[0].At = c.mark;
    figure.Places[2] = c.third;
    figure.Lines[1].Values = c.values;
    const FigureLayout layout(figure, {800, 500});
    const auto texts = PartsOf<FigureText>(layout);
    const FigureText* text = TextOf(texts, "now " + NumberText(c.mark));
    ASSERT_NE(text, nullptr) << c.rule;
    EXPECT_EQ(text->At.Y < layout.PlotStart().Y + 20, c.atTheTop) << c.rule;
    EXPECT_LT(text->At.Y, layout.PlotEnd().Y) << c.rule;
  }
}

TEST(FigureLayout, LeavesNotesOutWhereThereIsNoRoomForThem) {
  const Figure figure = TwoHands();
  for (const double height : {150.0, 400.0}) {
    const FigureLayout layout(figure, {700, height});
    const auto texts = PartsOf<FigureText>(layout);
    EXPECT_EQ(TextOf(texts, "always") != nullptr, height == 400) << height;
    for (const char* name : {"K9o", "AA"}) {
      const FigureText* text = TextOf(texts, name);
      ASSERT_NE(text, nullptr) << name;
      EXPECT_TRUE(text->At.Y > layout.PlotStart().Y && text->At.Y < layout.PlotEnd().Y + 5) << name;
    }
  }
}

TEST(FigureLayout, HasAsManyNumbersAsThereIsRoomFor) {
  const Figure figure = TwoHands();
  for (const auto& [height, most] : {std::pair{700.0, 9U}, {200.0, 4U}}) {
    const FigureLayout layout(figure, {800, height});
    std::vector<double> places;
    for (const FigureText& text : PartsOf<FigureText>(layout)) {
      if (text.Anchor == FigureAnchor::kEnd) places.push_back(text.At.Y);
    }
    EXPECT_GE(places.size(), 1U) << height;
    EXPECT_LE(places.size(), most) << height;
    for (std::size_t i = 1; i < places.size(); ++i)
      EXPECT_GT(std::abs(places[i] - places[i - 1]), 15) << height;
  }
}

TEST(FigureLayout, CutsASubtitleBetweenLetters) {
  Figure figure = TwoHands();
  const auto subtitle = [&figure](double width) {
    return PartsOf<FigureText>(FigureLayout(figure, {width, 400})).at(1).Text;
  };
  figure.Subtitle = "He calls with \"Tight\"";
  EXPECT_EQ(subtitle(600), figure.Subtitle);
  EXPECT_EQ(subtitle(320), "He calls with \"T\u2026");
  figure.Subtitle = "He calls with \"\u00c4\u00c4\u00c4\u00c4\u00c4\"";
  EXPECT_EQ(subtitle(320), "He calls with \"\u2026");
}

TEST(FigureLayout, LiesUnderAnother) {
  std::vector<Figure> figures = {TwoHands(), TwoHands()};
  figures[0].Lines[0].Note = "up to 116724.4, which is far";
  figures[1].Up.High = 4e6;
  figures[1].Title.clear();
  AlignFigures(figures);
  const FigureLayout above(figures[0], FigureLayout::NaturalSize(figures[0]));
  const FigureLayout below(figures[1], FigureLayout::NaturalSize(figures[1]));
  EXPECT_EQ(above.PlotStart().X, below.PlotStart().X);
  EXPECT_EQ(above.PlotEnd().X, below.PlotEnd().X);
  EXPECT_EQ(above.Size().Width, below.Size().Width);
  EXPECT_LT(below.PlotStart().Y, above.PlotStart().Y) << "nothing needs room above it";

  const std::string both = FigureSvg(figures);
  EXPECT_THAT(both, HasSubstr("<g transform=\"translate(0 " + NumberText(above.Size().Height) + ")\">"));
  EXPECT_THAT(both, HasSubstr("height=\"" + NumberText(above.Size().Height + below.Size().Height) + "\""));
}

// More lines than there are colours and dashes, each with more points than have dots.
Figure ManyLines() {
  Figure figure{.Title = "Many",
                .Across = {.Title = "Call", .Low = 0, .High = 11},
                .Up = {.Title = "Value", .Low = 0, .High = 6},
                .Places = {},
                .Lines = {},
                .Marks = {{.At = 4, .Text = "below all lines"}}};
  for (int place = 0; place < 26; ++place)
    figure.Places.push_back(NumberText(place * 0.44));
  for (int line = 0; line < 34; ++line) {
    FigureLine& added = figure.Lines.emplace_back(FigureLine{.Name = "Line " + std::to_string(line)});
    for (int place = 0; place < 26; ++place)
      added.Values.push_back((line + place) % 7);
  }
  return figure;
}

TEST(FigureLayout, DrawsThePointsThatLieApartAndTheLast) {
  Figure figure = TwoHands();
  figure.Places = {"1", "1.00001", "1.00002"};
  figure.Lines = {{.Name = "", .Values = {0, 1, 2}}};
  const FigureLayout layout(figure, {800, 500});
  EXPECT_EQ(PartsOf<FigureCurve>(layout).at(0).Spots, (std::vector{layout.SpotOf({0, 0}), layout.SpotOf({0, 2})}));
}

TEST(FigureLayout, HasDotsUpToTwentyFivePoints) {
  for (const int count : {25, 26}) {
    Figure figure = ManyLines();
    figure.Places.resize(static_cast<std::size_t>(count));
    EXPECT_EQ(PartsOf<FigureCurve>(FigureLayout(figure, {800, 500})).at(0).Dotted, count == 25);
  }
}

TEST(FigureSvg, IsTheGoldenPicture) {
  std::vector<Figure> figures = {TwoHands(), TwoHands()};
  figures[0].Subtitle = "He calls with \"Tight\"";
  figures[1].Across.Pot = 0;
  AlignFigures(figures);
  figures.push_back({.Title = "",
                     .Across = {.Title = "", .Low = 1000000, .High = 1000010, .Pot = 1},
                     .Up = {.Title = "Share", .Low = 0, .High = 0.5, .Pot = 1},
                     .Places = {"1000000", "1000010"},
                     .Lines = {{.Name = "A name of many letters", .Values = {0.1, 0.5}}}});
  figures.push_back({.Title = "Long numbers",
                     .Across = {.Title = "Shove", .Low = 1000000, .High = 1000008},
                     .Up = {.Title = "Value", .Low = 0, .High = 9},
                     .Places = {"1000000", "1000008"},
                     .Lines = {{.Name = "AA", .Values = {9, 0}},
                               {.Name = "KK", .Values = {0, 1}, .Note = "from 1000004", .Limit = 1000004}},
                     .Marks = {{.At = 1000000.5, .Text = "now"}, {.At = 1000008, .Text = "end"}}});
  figures.push_back(ManyLines());
  ExpectGolden(FigureSvg(figures), QUILLON_GOLDEN_FOLDER "/figures.svg");
}

TEST(FigureSvg, HasMarksAndPots) {
  const std::string picture = FigureSvg(TwoHands());
  for (const char* part :
       {"class=\"zero\"", "class=\"mark\"", "class=\"limit\"", ">in pots<", ">now 2<", ">up to 2.5<"})
    EXPECT_THAT(picture, HasSubstr(part));
  Figure plain = TwoHands();
  plain.Marks.clear();
  plain.Lines[0].Limit.reset();
  EXPECT_THAT(FigureSvg(plain), AllOf(Not(HasSubstr("class=\"mark\"")), Not(HasSubstr("class=\"limit\""))));
}

}  // namespace
}  // namespace quillon
