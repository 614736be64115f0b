#include "shell/screens/main_layout.h"

#include <array>
#include <string>

#include "results/web_addresses.h"
#include "testing/layout_rules.h"
#include "testing/main_stage.h"

namespace quillon {
namespace {

/// One window for all of these tests, which change nothing.
class MainLayoutTest : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    stage = new MainStage;
    stage->Start();
  }
  static void TearDownTestSuite() { delete stage; }

  static MainStage& Stage() { return *stage; }
  static const MainControls& Controls() { return stage->Form.Controls(); }

 private:
  static inline MainStage* stage = nullptr;
};

TEST_F(MainLayoutTest, KeepsTheRulesOfEveryLayout) {
  ExpectBuiltAsItsRows(Stage().Form, Controls(), main_layout::kTables);
  ExpectTextsFit(Stage().Form);
  ExpectNoLabelRunsIntoItsNeighbours(Controls(), main_layout::kTables);
  ExpectPicturesAreThere(Controls(), main_layout::kTables);
}

TEST_F(MainLayoutTest, EverythingStaysWithinItsScreen) {
  // Intentional: cut off by their container, as the picture behind the panel is larger than the panel.
  constexpr std::array<std::string_view, 5> kCutOff = {"imgHover", "frameAboutContent", "aRectangle(1)",
                                                       "lblHov_Advice", "rectHov"};
  for (const ControlTable& table : main_layout::kTables) {
    if (table.Container.empty() || table.Container == "frameControls") continue;
    const QRect room = Controls().Find(std::string(table.Container))->rect();
    for (const ControlRow& row : table.Rows) {
      const std::string name = ObjectName(row.Name, row.Index);
      if (std::ranges::find(kCutOff, name) != kCutOff.end()) continue;
      EXPECT_TRUE(room.contains(Controls().At(row).geometry())) << name << " in " << table.Container;
    }
  }
}

TEST_F(MainLayoutTest, TheProductsAddressesAreInTheTexts) {
  const std::string host(WebHost());
  EXPECT_EQ(Stage().Caption("Label", 9), " " + host);
  EXPECT_NE(Stage().Caption("Label", 49).find("on " + host + " for examples"), std::string::npos);
  EXPECT_NE(Stage().Caption("Label", 56).find('@'), std::string::npos);
}

}  // namespace
}  // namespace quillon
