#include "shell/field_help.h"
#include "testing/main_stage.h"

namespace quillon {
namespace {

TEST_F(MainFormTest, EachHelpLinkShowsItsTextUnderItsToolTip) {
  ASSERT_EQ(Form.Controls().CountOf("lblWhatsThis"), static_cast<std::int16_t>(kFieldHelp.size()));
  for (std::int16_t i = 0; i < Form.Controls().CountOf("lblWhatsThis"); ++i) {
    const std::string key(kFieldHelp.at(static_cast<std::size_t>(i)).Key);
    SCOPED_TRACE(key);
    Open(i < 5 ? kRaiseNav : kCallNav);
    const Label& link = LabelAt("lblWhatsThis", i);
    EXPECT_EQ(FromQt(link.Text()), "What's this?");
    EXPECT_EQ(FromQt(link.toolTip()), key);
    EXPECT_EQ(link.cursor().shape(), Qt::PointingHandCursor);
    ExpectMessageBox({.title = key, .text = std::string(FieldHelpText(key))});
    Click("lblWhatsThis", i);
    VerifyExpectedBoxes();
    ComeToFront();
  }
}

}  // namespace
}  // namespace quillon
