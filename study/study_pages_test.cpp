#include "study/study_pages.h"

#include <cstdint>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "testing/golden_file.h"
#include "testing/split_text.h"

namespace quillon {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

// The cell of a hand, from its tag to its end.
std::string CellOf(const std::string& page, std::string_view hand) {
  const std::string start = "\">" + std::string(hand) + "<small";
  const std::size_t at = page.find(start);
  if (at == std::string::npos) return {};
  const std::size_t tag = page.rfind("<td", at);
  return page.substr(tag, page.find("</td>", at) - tag);
}

std::string ColorOf(const std::string& cell) {
  const std::string start = "background:";
  return cell.substr(cell.find(start) + start.size(), 7);
}

Limits SomeLimits() {
  Limits limits{};
  limits.at(0) = {LimitKind::kAlways, 0};
  limits.at(1) = {LimitKind::kUpTo, 116724.440523361};
  limits.at(2) = {LimitKind::kUpTo, 12.3456};
  limits.at(3) = {LimitKind::kFrom, 7.251};
  return limits;
}

TEST(LimitsPage, TellsEachLimit) {
  const std::string page = LimitsPage({"Largest Shove", {{"His Range", "<script>"}}}, SomeLimits());
  EXPECT_THAT(CellOf(page, "AA"), HasSubstr("Does not lose: <b>always</b>"));
  EXPECT_THAT(CellOf(page, "AKs"), AllOf(HasSubstr(">116724.4</small>"), HasSubstr("<b>up to 116724.440523361</b>")));
  EXPECT_THAT(CellOf(page, "AQs"), HasSubstr(">12.34</small>"));
  EXPECT_THAT(CellOf(page, "AJs"), HasSubstr("<b>from 7.251 on</b>"));
  EXPECT_THAT(CellOf(page, "22"), HasSubstr("<b>never</b>"));
  EXPECT_THAT(page, AllOf(HasSubstr("<dd><b>&lt;script&gt;</b></dd>"), HasSubstr("<h1>Largest Shove</h1>"),
                          HasSubstr("<td data-o=\"116724.440523361\">up to 116724.440523361</td>"),
                          HasSubstr("<td data-o=\"1E+300\">always</td>")));
}

TEST(LimitsPage, PaintsKindsApart) {
  const std::string page = LimitsPage({"", {}}, SomeLimits());
  std::vector<std::string> colors;
  for (const char* hand : {"AA", "AKs", "AQs", "AJs", "22"}) {
    EXPECT_THAT(colors, Not(testing::Contains(ColorOf(CellOf(page, hand))))) << hand;
    colors.push_back(ColorOf(CellOf(page, hand)));
  }
}

TEST(LimitsPage, HasALegendOfWhatIsThere) {
  EXPECT_THAT(LimitsPage({"", {}}, Limits{}), AllOf(HasSubstr("never</li>"), Not(HasSubstr("always</li>"))));
}

TEST(LimitsPicture, HoldsTheShortTexts) {
  const std::string picture = LimitsPicture({"Largest Shove", {}}, SomeLimits());
  for (const char* text : {">always<", ">116724.4<", ">12.34<", ">\u22657.26<", ">never<", ">Largest Shove<"})
    EXPECT_THAT(picture, HasSubstr(text));
}

StackChart SomeChart() {
  StackChart chart;
  chart.Shove.at(0) = {.Largest = "20", .IsLast = true};
  chart.Shove.at(1) = {.Largest = "7.1", .Gaps = {{"2.3", "5.1"}}};
  chart.Call.at(0) = {.Largest = "1.5"};
  return chart;
}

TEST(ChartPage, TellsStacksAndGaps) {
  const std::string page = ChartPage(SomeChart(), std::get<Steps>(Steps::Read("1.1:20:0.1")));
  const std::string shove = page.substr(0, page.find("aria-label=\"Call a shove\""));
  const std::string call = page.substr(shove.size());
  EXPECT_THAT(CellOf(shove, "AA"), HasSubstr("Shove: <b>up to 20+</b>"));
  EXPECT_THAT(CellOf(shove, "AKs"), AllOf(HasSubstr(">7.1*</small>"), HasSubstr("But not at: <b>2.3-5.1</b>")));
  EXPECT_THAT(CellOf(shove, "22"), HasSubstr("Shove: <b>never</b>"));
  EXPECT_THAT(CellOf(call, "AA"), HasSubstr("Call a shove: <b>up to 1.5</b>"));
  EXPECT_THAT(page, AllOf(HasSubstr("<dd><b>1.1 to 20 big blinds</b></dd>"), HasSubstr("<td data-o=\"7.1\">7.1</td>")));
  const auto rows = Split(page.substr(page.find("<tbody>")), "<tr>");
  ASSERT_EQ(rows.size(), 170U);
  for (std::size_t i = 1; i < rows.size(); ++i)
    EXPECT_EQ(Split(rows[i], "data-o=").size() - 1, 5U) << "the hand and four figures: " << rows[i];
}

TEST(ChartPage, ShadesFromTheSmallestStackToTheLargest) {
  StackChart chart;
  chart.Shove.at(0) = {.Largest = "15", .IsLast = true};
  chart.Shove.at(1) = {.Largest = "5"};
  const std::string page = ChartPage(chart, std::get<Steps>(Steps::Read("5:15:10")));
  EXPECT_NE(ColorOf(CellOf(page, "AA")), ColorOf(CellOf(page, "AKs")));
}

TEST(ChartPicture, ShowsBothGridsAsTheGoldenPicture) {
  const std::string picture = ChartPicture(SomeChart(), std::get<Steps>(Steps::Read("1.1:20:0.1")));
  for (const char* text :
       {">20+<", ">7.1*<", ">1.5<", ">Shove, up to so many big blinds (* with gaps)<", ">* But not at: AKs 2.3-5.1<"})
    EXPECT_THAT(picture, HasSubstr(text));
  std::size_t cells = 0;
  for (std::size_t at = 0; (at = picture.find("<rect class=", at)) != std::string::npos; ++at)
    ++cells;
  EXPECT_EQ(cells, 2U * 169);
  ExpectGolden(picture, QUILLON_GOLDEN_FOLDER "/chart.svg");
}

}  // namespace
}  // namespace quillon
