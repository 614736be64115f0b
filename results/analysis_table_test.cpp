#include "results/analysis_table.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "testing/sample_analysis.h"
#include "testing/split_text.h"

namespace quillon {
namespace {

TEST(AnalysisTable, HasARowForEachHandWithWhatTheScenarioHas) {
  struct Case {
    const char* name;
    Analysis analysis;
    char separator;
    std::string header;
    std::string best;
    std::string worst;
  };
  for (const Case& c : std::vector<Case>{
           {"call", sample::CallState(), ',', "hand,combos,ev,equity,fold,colour", "AA,6,120,0.85,,#007800",
            "22,6,-0.5,0.0625,,#ffc8c8"},
           {"raise", sample::RaiseState(), ',', "hand,combos,ev,equity,fold,colour", "AA,6,150,-1,1,#a7ffa7",
            "22,6,-12.5,0.3,0,#780000"},
           {"tabs", sample::RaiseState(), '\t', "hand\tcombos\tev\tequity\tfold\tcolour", "AA\t6\t150\t-1\t1\t#a7ffa7",
            "22\t6\t-12.5\t0.3\t0\t#780000"},
           {"equity only", sample::EquityState(), '\t', "hand\tcombos\tev\tequity\tfold\tcolour",
            "AA\t6\t\t0.8523\t\t#004181", "22\t6\t\t0.5\t\t#004181"},
       }) {
    const std::string table = AnalysisTable(c.analysis, c.separator);
    ASSERT_TRUE(table.ends_with('\n')) << c.name;
    const std::vector<std::string> rows = Lines(table);
    ASSERT_EQ(rows.size(), 170U) << c.name;
    EXPECT_EQ(rows[0], c.header) << c.name;
    EXPECT_EQ(rows[1], c.best) << c.name;
    EXPECT_EQ(rows[169], c.worst) << c.name;
  }
}

}  // namespace
}  // namespace quillon
