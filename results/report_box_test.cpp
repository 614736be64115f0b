#include "results/report_box.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include "testing/fault_of.h"

namespace quillon {
namespace {

TEST(SetReportFont, SetsNameSizeAndColour) {
  struct Case {
    std::int32_t code;
    const char* name;
  };
  for (const Case& c : {Case{1, "Arial"}, Case{2, "Verdana"}, Case{3, "Courier New"}, Case{0, ""}, Case{4, ""}}) {
    ReportText report;
    SetReportFont(report, c.code, 14, 255);
    EXPECT_EQ(report, ReportText({ReportFont{c.name, 14, 255}})) << c.code;
  }
}

TEST(AppendReportLine, PadsTheTextUpToItsFirstColon) {
  struct Case {
    const char* rule;
    std::string text;
    std::int16_t padWidth;
    std::string written;
  };
  const std::vector<Case> cases = {
      {"the space after the colon comes after the tab", "Total Pot Size: 150", 20, "Total Pot Size:     \t 150"},
      {"a left piece of just the width gets no blanks", "Opponent Range Name: Tight", 20,
       "Opponent Range Name:\t Tight"},
      {"a left piece beyond the width gets the tab alone", "Opponent Range Names: Tight", 20,
       "Opponent Range Names:\t Tight"},
      {"a colon at the end has the tab after it", "BEP:", 5, "BEP: \t"},
      {"no width but -1 means no padding", "BEP: 5", -2, "BEP:\t 5"},
      {"without a colon nothing is done", "Situation", 20, "Situation"},
      {"with a width of -1 nothing is done", "BEP: 5", -1, "BEP: 5"},
      {"characters are counted and not bytes", "Größe: 5", 8, "Größe:  \t 5"},
      {"characters of three and four bytes too", "€𝄞: 5", 5, "€𝄞:  \t 5"},
  };
  for (const Case& c : cases) {
    ReportText report;
    std::string text = c.text;
    AppendReportLine(report, text, c.padWidth);
    EXPECT_EQ(report, ReportText({c.written + "\r"})) << c.rule;
    EXPECT_EQ(text, c.written) << c.rule << ": the caller's text changes as well";
  }
}

TEST(MoneyColumn, EndsAtTheWidthWithTwoDecimals) {
  struct Case {
    const char* rule;
    double value;
    std::int16_t width;
    const char* text;
  };
  const std::vector<Case> cases = {
      {"blanks in front", 120, 13, "       120.00"},
      {"no digit before the point of a part of one", 0.5, 10, "       .50"},
      {"nor after a minus sign", -0.5, 10, "      -.50"},
      {"nothing is three characters", 0, 4, " .00"},
      {"the whole part 10 stays", -10.25, 0, "-10.25"},
      {"one less gets one", 120, 7, " 120.00"},
      {"too long is not cut", 123456.78, 5, "123456.78"},
      {"a negative width pads nothing", 1, -5, "1.00"},
      {"below zero too", -0.125, 0, "-.13"},
      {"what reads as a tie is one", 2.675, 0, "2.68"},
      {"rounding up can bring a whole part", 0.999, 0, "1.00"},
      {"a loss too small to be seen keeps its sign", -0.001, 0, "-.00"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(MoneyColumn(c.value, c.width), c.text) << c.rule;
}

TEST(MoneyColumn, ANumberThatIsNotFiniteHasNoText) {
  EXPECT_EQ(FaultOf([] { return MoneyColumn(std::numeric_limits<double>::infinity(), 10); }), RunTimeFault::kOverflow);
}

}  // namespace
}  // namespace quillon
