#include "study/sweep_figure.h"

#include <cmath>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "study/figure_svg.h"
#include "support/number_text.h"
#include "testing/golden_file.h"
#include "testing/split_text.h"

namespace quillon {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

constexpr double kMost = std::numeric_limits<double>::max();

std::string Attribute(const std::string& tag, const std::string& name) {
  const std::size_t start = tag.find(" " + name + "=\"") + name.size() + 3;
  return tag.substr(start, tag.find('"', start) - start);
}

using Points = std::vector<std::pair<double, double>>;

// The points of each line, in pixels.
std::vector<Points> Lines(const std::string& picture) {
  std::vector<Points> lines;
  auto tags = Split(picture, "<polyline");
  tags.erase(tags.begin());
  for (const std::string& tag : tags) {
    Points& points = lines.emplace_back();
    for (const std::string& point : Split(Attribute(tag, "points"), " ")) {
      const auto parts = Split(point, ",");
      points.emplace_back(LeadingNumber(parts.at(0)), LeadingNumber(parts.at(1)));
    }
  }
  return lines;
}

// The tag of the axis of the values.
std::string Axis(const std::string& picture) {
  return Split(Split(picture, "stroke=\"#7b8794\"").at(0), "<line").back();
}

double ZeroLine(const std::string& picture) {
  return LeadingNumber(Attribute(Split(Split(picture, "class=\"zero\"").at(0), "<line").back(), "y1"));
}

std::string Picture(const SweepLabels& labels, const std::vector<SweepRow>& rows) {
  return FigureSvg(SweepFigure(labels, rows));
}

TEST(SweepFigure, DrawsEachHandWhereItsValuesAreAsTheGoldenPicture) {
  const std::vector<SweepRow> rows = {{"5", 1326, {2, -1}}, {"10", 900, {1, -2}}, {"15", 100, {0, 3}}};
  const std::string picture = Picture({"Preflop Raise", "Shove", {"AA", "72o"}}, rows);
  const auto lines = Lines(picture);
  ASSERT_THAT(lines, SizeIs(2));
  const double zero = ZeroLine(picture);
  EXPECT_EQ(lines[0][2].second, zero);
  // Two up is as far as two down, and the steps are equally wide.
  EXPECT_NEAR(zero - lines[0][0].second, lines[1][1].second - zero, 0.11);
  EXPECT_NEAR(zero - lines[1][2].second, 3 * (zero - lines[0][1].second), 0.3);
  EXPECT_NEAR(lines[0][1].first - lines[0][0].first, lines[0][2].first - lines[0][1].first, 0.11);
  // The highest and lowest points are equally far from the ends of the axis.
  const std::string axis = Axis(picture);
  const double above = lines[1][2].second - LeadingNumber(Attribute(axis, "y1"));
  const double below = LeadingNumber(Attribute(axis, "y2")) - lines[1][1].second;
  EXPECT_GT(above, 5);
  EXPECT_NEAR(above, below, 0.11);
  EXPECT_THAT(picture, AllOf(HasSubstr(">AA</text>"), HasSubstr(">72o</text>"), HasSubstr(">Preflop Raise</text>"),
                             HasSubstr(">Shove</text>"), HasSubstr(">Expected value, in the unit of the amounts<")));
  ExpectGolden(picture, QUILLON_GOLDEN_FOLDER "/sweep.svg");
}

TEST(SweepFigure, NamesLinesRightOfThemAndApart) {
  std::vector<std::string> hands;
  std::vector<double> values;
  for (int i = 0; i < 40; ++i) {
    hands.push_back("H" + std::to_string(i));
    values.push_back(i % 3);
  }
  const std::string picture = Picture({"", "", hands}, std::vector<SweepRow>{{"1", 0, values}, {"2", 0, values}});
  double right = 0;
  for (const Points& line : Lines(picture))
    right = std::max(right, line.back().first);
  double last = 0;
  auto tags = Split(picture, "<text ");
  std::size_t names = 0;
  for (const std::string& tag : tags) {
    if (tag.find(">H") == std::string::npos) continue;
    ++names;
    EXPECT_GT(LeadingNumber(Attribute(" " + tag, "x")), right);
    const double y = LeadingNumber(Attribute(" " + tag, "y"));
    EXPECT_GE(y - last, 14) << tag;
    last = y;
    EXPECT_LE(y, LeadingNumber(Attribute(picture, "height")));
  }
  EXPECT_EQ(names, hands.size());
}

TEST(SweepFigure, WithoutAHandShowsTheShareThatIsProfitable) {
  const std::string picture =
      Picture({"Preflop Call", "Call", {}}, std::vector<SweepRow>{{"1", 1326, {}}, {"2", 663, {}}, {"3", 0, {}}});
  const auto lines = Lines(picture);
  ASSERT_THAT(lines, SizeIs(1));
  const double zero = ZeroLine(picture);
  EXPECT_NEAR(zero - lines[0][0].second, 2 * (zero - lines[0][1].second), 0.2);
  EXPECT_EQ(lines[0][2].second, zero);
  EXPECT_EQ(LeadingNumber(Attribute(Axis(picture), "y1")), lines[0][0].second);
  EXPECT_EQ(LeadingNumber(Attribute(Axis(picture), "y2")), zero);
  EXPECT_THAT(picture, HasSubstr(">100</text>"));
}

// Numbers of any size stay within the picture.
TEST(SweepFigure, HoldsNumbersOfAnySize) {
  using Rows = std::vector<SweepRow>;
  for (const Rows& rows : std::vector<Rows>{
           Rows{SweepRow{"5", 0, {0.0}}},
           Rows{SweepRow{"5", 0, {1.0}}, SweepRow{"6", 0, {1.0}}},
           Rows{SweepRow{"0.000000000000001", 0, {5e-324}}, SweepRow{"0.000000000000002", 0, {-5e-324}}},
           Rows{SweepRow{"999999999999998", 0, {kMost}}, SweepRow{"999999999999999", 0, {-kMost}}},
           Rows{SweepRow{"0", 0, {1e15}}, SweepRow{"100000", 0, {1e15 + 1}}},
       }) {
    const std::string picture = Picture({"", "", {"AA"}}, rows);
    EXPECT_THAT(picture, AllOf(StartsWith("<svg "), Not(HasSubstr("nan")), Not(HasSubstr("inf"))));
    const double width = LeadingNumber(Attribute(picture, "width"));
    const double height = LeadingNumber(Attribute(picture, "height"));
    const Points line = Lines(picture).at(0);
    for (const auto& [x, y] : line) {
      EXPECT_TRUE(x > 0 && x < width) << rows[0].At;
      EXPECT_TRUE(y > 0 && y < height) << rows[0].At;
    }
  }
}

TEST(SweepFigure, HasAScaleWhereNothingIsWonOrLost) {
  EXPECT_THAT(Picture({"", "", {"AA"}}, std::vector<SweepRow>{{"5", 0, {0.0}}}),
              AllOf(HasSubstr(">-1</text>"), HasSubstr(">1</text>")));
}

TEST(SweepFigure, LeavesRoomBetweenNumbersOfAnyLength) {
  constexpr double kDigitWidth = 7;
  for (const auto& [from, to] : std::vector<std::pair<std::string, std::string>>{
           {"0", "10"}, {"123456", "234567"}, {"100000000000000", "900000000000000"}}) {
    const std::string picture = Picture({"", "", {"AA"}}, std::vector<SweepRow>{{from, 0, {1}}, {to, 0, {2}}});
    double end = 0;
    std::size_t numbers = 0;
    for (const std::string& tag : Split(picture, "<text x=")) {
      const std::size_t start = tag.find("text-anchor=\"middle\">") + 21;
      const std::string number = tag.substr(0, tag.find("</text>"));
      if (start < 21 || number.size() == start) continue;
      const double half = kDigitWidth * static_cast<double>(number.size() - start) / 2;
      const double middle = LeadingNumber(tag.substr(1));
      EXPECT_GT(middle - half, end) << from;
      end = middle + half;
      ++numbers;
    }
    EXPECT_GE(numbers, 2U) << from;
  }
}

TEST(SweepFigure, OfManyStepsIsNotLarge) {
  std::vector<SweepRow> rows;
  for (int i = 0; i < 100000; ++i)
    rows.push_back({std::to_string(i), 0, {std::sin(i / 1000.0)}});
  const std::string picture = Picture({"", "", {"AA"}}, rows);
  EXPECT_LT(picture.size(), 200000U);
  EXPECT_GT(Lines(picture).at(0).size(), 5000U);
}

TEST(SweepFigure, EscapesItsTexts) {
  const std::string picture = Picture({"<a>", "<b>", {"<c>"}}, std::vector<SweepRow>{{"1", 0, {1}}});
  for (const char* text : {"&lt;a&gt;", "&lt;b&gt;", "&lt;c&gt;"})
    EXPECT_THAT(picture, HasSubstr(text));
  EXPECT_THAT(picture, Not(HasSubstr("<a>")));
}

}  // namespace
}  // namespace quillon
