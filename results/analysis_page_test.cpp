#include "results/analysis_page.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "hand/hand_classes.h"
#include "results/grid_picture.h"
#include "results/hover_panel.h"
#include "results/results_grid.h"
#include "results/web_page.h"
#include "testing/golden_file.h"
#include "testing/sample_analysis.h"
#include "testing/split_text.h"

namespace quillon {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

// The visible text of a piece of a page.
std::string SeenText(const std::string& markup) {
  std::string text;
  bool tag = false;
  for (const char c : markup) {
    tag = tag || c == '<';
    if (!tag) text += c;
    tag = tag && c != '>';
  }
  return text;
}

// A length in a tag, in pixels.
int Length(const std::string& tag, const std::string& name) {
  return std::stoi(Split(" " + tag, " " + name + "=\"").at(1));
}

// The cells of the grid with their contents.
std::vector<std::string> GridCells(const std::string& page) {
  const std::size_t start = page.find("<table class=\"grid\"");
  std::vector<std::string> cells = Split(page.substr(start, page.find("</table>", start) - start), "<td ");
  cells.erase(cells.begin());
  return cells;
}

// The rows of the table with their headings.
std::vector<std::string> TableRows(const std::string& page) {
  std::vector<std::string> rows = Split(page.substr(page.find("<tbody>")), "<tr>");
  rows.erase(rows.begin());
  return rows;
}

struct Case {
  const char* name;
  Analysis (*analysis)();
  bool legend;
};

class EachPage : public testing::TestWithParam<Case> {};

INSTANTIATE_TEST_SUITE_P(AnalysisPage, EachPage,
                         testing::Values(Case{"Call", sample::CallState, true}, Case{"Raise", sample::RaiseState, true},
                                         Case{"Equity", sample::EquityState, false}),
                         [](const auto& entry) { return std::string(entry.param.name); });

TEST_P(EachPage, TellsInEachCellWhatTheHoverPanelTells) {
  const Analysis analysis = GetParam().analysis();
  const auto cells = GridCells(AnalysisPage(analysis));
  const CellColors colors = GridColors(analysis);
  ASSERT_THAT(cells, SizeIs(169));
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const std::string& cell = cells.at(static_cast<std::size_t>(index));
    const Rgb color = colors.at(static_cast<std::size_t>(index));
    const HoverTexts texts = MakeHoverTexts(index, analysis).value_or(HoverTexts{});
    std::string expected =
        std::string(texts.Hand) + std::string(texts.Hand) + " " + std::string(texts.EquityTitle) + " " + texts.Equity;
    if (texts.Value) expected += " EV: " + *texts.Value + " ROI: " + *texts.Return;
    if (texts.FoldShare) expected += " Opponent Fold %: " + *texts.FoldShare;
    expected += " " + std::string(texts.Advice);
    EXPECT_THAT(SeenText(cell.substr(cell.find('>') + 1)), StartsWith(expected));
    EXPECT_EQ(cell.starts_with("tabindex=\"0\""), index == 0) << "Tab reaches one cell of the grid";
    EXPECT_THAT(cell, HasSubstr("background:" + ColorText(color) + ";color:" + ColorText(ReadableOn(color))));
  }
}

TEST_P(EachPage, HasThirteenRowsOfThirteenCellsInItsGrid) {
  const auto cells = GridCells(AnalysisPage(GetParam().analysis()));
  for (std::size_t i = 0; i + 1 < cells.size(); ++i)
    EXPECT_EQ(cells.at(i).ends_with("</td>\n</tr>\n<tr>"), i % 13 == 12) << i;
}

TEST_P(EachPage, ShowsSituationExplanationAndARowForEachHand) {
  const Analysis analysis = GetParam().analysis();
  const std::string page = AnalysisPage(analysis);
  EXPECT_THAT(page, HasSubstr("<dt>His Range</dt><dd><b>" + analysis.RangeName + "</b><br>"));
  const GridTexts texts = MakeGridTexts(analysis);
  EXPECT_THAT(page, AllOf(HasSubstr("<h1>" + texts.Title + "</h1>"), Not(HasSubstr("<h2>" + texts.Title))));
  const auto rows = TableRows(page);
  ASSERT_THAT(rows, SizeIs(169));
  const std::size_t columns = Split(page.substr(0, page.find("<tbody>")), "<th ").size() - 1;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_THAT(rows.at(i), StartsWith("<th scope=\"row\" data-o=\"" + std::to_string(i) + "\">"));
    EXPECT_EQ(Split(rows.at(i), "data-o=").size(), columns + 1) << i;
  }
  for (const std::string& line : Split(texts.Results, "\r\n\r\n"))
    EXPECT_EQ(Split(page, "<p>" + Split(line, "'")[0]).size(), 2U) << line;
  EXPECT_EQ(Split(page, "class=\"key\"").size() == 2, GetParam().legend);
}

// Everything is in the page; it may fetch nothing.
TEST_P(EachPage, NeedsNothingFromElsewhere) {
  const std::string page = AnalysisPage(GetParam().analysis());
  for (const char* fetches : {"http:", "https:", "//", "src=", "@import", "url(", "<iframe", "<object"})
    EXPECT_THAT(page, Not(HasSubstr(fetches)));
  EXPECT_THAT(page, HasSubstr("content=\"default-src 'none'"));
  EXPECT_EQ(Split(page, "href=").size(), 2U) << "the empty icon";
}

TEST(AnalysisPage, OfARaiseHasTheFiguresOfEachHand) {
  Analysis raise = sample::RaiseState();
  raise.Amounts = {1.005, 0.126, 62.497};
  raise.DroppedHands = "QQ: 6";
  const std::string page = AnalysisPage(raise);
  EXPECT_THAT(SeenText(TableRows(page).at(0)), StartsWith("AA6+150.0000N/A100%"));
  EXPECT_THAT(SeenText(TableRows(page).at(168)), StartsWith("226-12.500030%0%"));
  EXPECT_THAT(page, AllOf(HasSubstr("<dt>Pot Size</dt><dd><b>1</b></dd>"),
                          HasSubstr("<dt>Call Amount</dt><dd><b>0.13</b></dd>"),
                          HasSubstr("<dt>Shove Amount</dt><dd><b>62.5</b></dd>"),
                          HasSubstr("<dt>His Calling Range</dt><dd><b>Tight</b><br>AA</dd>"),
                          HasSubstr("<dt>Dropped, as not in his range</dt><dd><b>QQ: 6</b></dd>")));
  EXPECT_THAT(AnalysisPage(sample::RaiseState()), Not(HasSubstr("Dropped")));
  EXPECT_THAT(AnalysisPage(sample::EquityState()), AllOf(Not(HasSubstr("Pot Size")), Not(HasSubstr(">EV<"))));
}

TEST(AnalysisPage, ShowsARangeNameAsTextWhateverItHolds) {
  Analysis analysis = sample::RaiseState();
  analysis.RangeName = "<script>alert(1)</script>";
  analysis.CallingRangeName = "\"'&\xFF\x01";
  const std::string usual = AnalysisPage(sample::RaiseState());
  const std::string page = AnalysisPage(analysis);
  EXPECT_EQ(Split(page, "<script>").size(), Split(usual, "<script>").size());
  EXPECT_EQ(Split(page, "<").size(), Split(usual, "<").size()) << "not one tag more";
  EXPECT_THAT(page, HasSubstr("<dd><b>&lt;script&gt;alert(1)&lt;/script&gt;</b><br>"));
  EXPECT_THAT(page, HasSubstr("<dd><b>&quot;&#39;&amp;\xEF\xBF\xBD\xEF\xBF\xBD</b><br>AA</dd>"));
}

TEST(AnalysisPage, TellsARangeThatHasNoOtherNameOnce) {
  for (const char* name : {"", "AA"}) {
    Analysis analysis = sample::RaiseState();
    analysis.CallingRangeName = name;
    EXPECT_THAT(AnalysisPage(analysis), HasSubstr("<dt>His Calling Range</dt><dd><b>AA</b></dd>")) << name;
  }
}

TEST(WebPage, EscapesEveryText) {
  const std::string evil = "<i>&";
  WebPage page{.Title = evil,
               .Subtitle = evil,
               .Situation = {{evil, evil, evil}},
               .Explanation = {evil},
               .Legend = {{{}, evil}},
               .Grids = {{.Name = evil, .Cells = {}}, {.Name = evil, .Cells = {}}},
               .Columns = {evil}};
  page.Grids[0].Cells[0] = {.Color = {}, .Text = evil, .PanelColor = {}, .Panel = {{evil, evil}}, .Verdict = evil};
  page.Rows[0] = {{evil, 1}};
  const std::string markup = PageMarkup(page);
  EXPECT_THAT(markup, Not(HasSubstr(evil)));
  // Title, heading and subtitle; situation; explanation; legend; names of grids as headings and labels; a cell's text
  // and panel; a column and a figure.
  EXPECT_EQ(Split(markup, "&lt;i&gt;&amp;").size() - 1, 3U + 3 + 1 + 1 + 4 + 4 + 2);
}

TEST_P(EachPage, HasAPictureOfItsGrid) {
  const Analysis analysis = GetParam().analysis();
  const std::string picture = AnalysisPicture(analysis);
  EXPECT_THAT(picture, StartsWith("<svg xmlns=\"http://www.w3.org/2000/svg\""));
  EXPECT_THAT(picture, HasSubstr("<title>" + MakeGridTexts(analysis).Title + "</title>"));
  const auto cells = Split(picture, "<rect ");
  ASSERT_THAT(cells, SizeIs(171));  // the parts before, the background, and the cells
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const Rgb color = GridColors(analysis).at(static_cast<std::size_t>(index));
    EXPECT_THAT(cells.at(static_cast<std::size_t>(index) + 2),
                AllOf(HasSubstr("fill=\"" + ColorText(color) + "\"/>"),
                      HasSubstr(" fill=\"" + ColorText(ReadableOn(color)) + "\">" + std::string(HandLabel(index)) +
                                "</text>")));
  }
}

TEST(AnalysisPicture, IsTheGoldenPicture) {
  ExpectGolden(AnalysisPicture(sample::RaiseState()), QUILLON_GOLDEN_FOLDER "/raise_grid.svg");
}

TEST(GridPicture, HasTheSameMarginOnEverySide) {
  for (const std::size_t count : std::vector<std::size_t>{1, 2, 3}) {
    const std::vector<PictureGrid> grids(count);
    auto rects = Split(GridPicture("", grids), "<rect ");
    const int width = Length(rects.at(1), "width");
    const int height = Length(rects.at(1), "height");
    rects.erase(rects.begin(), rects.begin() + 2);
    const int margin = Length(rects.front(), "x");
    EXPECT_EQ(Length(rects.front(), "y"), margin);
    EXPECT_EQ(width - Length(rects.back(), "x") - Length(rects.back(), "width"), margin);
    EXPECT_EQ(height - Length(rects.back(), "y") - Length(rects.back(), "height"), margin);
  }
}

TEST(GridPicture, WrapsANoteBelowItsGrid) {
  const std::string fits = "aa " + std::string(127, 'b');
  const PictureGrid grid{.Caption = "", .Cells = {}, .Note = fits + " cc dd"};
  const auto rects = Split(GridPicture("", std::array{grid}), "<rect ");
  const int bottom = Length(rects.back(), "y") + Length(rects.back(), "height");
  const auto line = [&](int below, const std::string& text) {
    return "y=\"" + std::to_string(bottom + below) + R"(" class="s" text-anchor="start">)" + text + "</text>\n";
  };
  EXPECT_THAT(rects.back(), AllOf(HasSubstr(line(16, fits)), HasSubstr(line(32, "cc dd"))));
  EXPECT_EQ(Length(rects.at(1), "height"), bottom + 32 + 12);
}

TEST(GridPicture, EscapesItsTexts) {
  PictureGrid grid{.Caption = "<i>", .Cells = {}};
  grid.Cells[0].Text = "a<b";
  const std::string picture = GridPicture("<script>", std::array{grid});
  EXPECT_THAT(picture, AllOf(HasSubstr("<title>&lt;script&gt;</title>"), HasSubstr(">&lt;i&gt;</text>"),
                             HasSubstr(">a&lt;b</text>")));
}

}  // namespace
}  // namespace quillon
