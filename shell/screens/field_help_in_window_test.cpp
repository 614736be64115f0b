#include "shell/field_help.h"
#include "testing/main_stage.h"

namespace quillon {
namespace {

struct HelpCase {
  const char* Name;
  std::int16_t Nav;
  std::int16_t Index;
  std::string_view Key;
  std::string_view Text;
};

class FieldHelpInWindow : public MainFormTest, public testing::WithParamInterface<HelpCase> {};

TEST_P(FieldHelpInWindow, IsToldUnderItsToolTip) {
  Open(GetParam().Nav);
  const Label& link = LabelAt("lblWhatsThis", GetParam().Index);
  EXPECT_EQ(FromQt(link.Text()), "What's this?");
  EXPECT_EQ(FromQt(link.toolTip()), GetParam().Key);
  EXPECT_EQ(ColorName(link.TextColor()), "#336699");
  EXPECT_EQ(link.cursor().shape(), Qt::PointingHandCursor);

  ExpectMessageBox({.title = std::string(GetParam().Key), .text = std::string(GetParam().Text)});
  Click("lblWhatsThis", GetParam().Index);
}

#define QUILLON_POT_HELP \
  "The pot size is the total amount of money currently in the pot, including whatever your opponent has bet.\r\n\r\n"

INSTANTIATE_TEST_SUITE_P(
    ScreenLinks, FieldHelpInWindow,
    testing::Values(
        HelpCase{"RaisePot", kRaiseNav, 0, "Pot Size",
                 QUILLON_POT_HELP
                 "For example, if the pot size is $20 and your opponent bets $15, you would enter $35 here because "
                 "that is how much is currently in the pot."},
        HelpCase{"RaiseCall", kRaiseNav, 1, "Amount To Call",
                 "If you are facing a bet or a raise, this is how much it would cost you just to call. If the pot is "
                 "unraised, then enter 0.\r\n\r\nFor example, you've put in $2 as the Big Blind. It is folded to the "
                 "Small Blind who raises to $8. In this case, if you planned to call it would cost you $6."},
        HelpCase{"RaiseShove", kRaiseNav, 2, "Hypothetical Call Amount",
                 "If you raised ALL IN, how much would your opponent have to call?\r\n\r\nFor example, you have an $80 "
                 "stack and your opponent has $25 in a $1/$2 game. You're the Big Blind and he's the Small Blind. He "
                 "raises to $6. Since he started with $25 and he has already invested $6, he will have to call $19 if "
                 "you go ALL IN."},
        HelpCase{"RaiseRange", kRaiseNav, 3, "Current Range",
                 "Your opponent's range contains all the possible hands that you think he can currently have. You need "
                 "to estimate this based on what you know about your opponent's style, the flow of the game, etc."},
        HelpCase{"RaiseCallingRange", kRaiseNav, 4, "Calling Range",
                 "Your opponent's calling range contains all the hands that you believe he'll call your ALL IN with."},
        HelpCase{"CallPot", kCallNav, 5, "Call ALL IN - Pot Size",
                 QUILLON_POT_HELP
                 "For example, the pot is $35 and your opponent raises all in for $80 more, the pot size is $115."},
        HelpCase{"CallCall", kCallNav, 6, "Call ALL IN - Amount To Call",
                 "This is how much you have to call. Remember that if you have more chips than your opponent, you only "
                 "have to enter whatever he put in."},
        HelpCase{"CallRange", kCallNav, 7, "Call ALL IN - Current Range",
                 "Your opponent's range contains all the possible hands that you think he can currently have."}),
    CaseName<HelpCase>);

#undef QUILLON_POT_HELP

TEST_F(MainFormTest, EveryHelpLinkHasItsText) {
  ASSERT_EQ(Form.Controls().CountOf("lblWhatsThis"), static_cast<std::int16_t>(kFieldHelpKeys.size()));
  for (std::int16_t i = 0; i < 8; ++i)
    EXPECT_FALSE(FieldHelpText(FromQt(LabelAt("lblWhatsThis", i).toolTip())).empty()) << i;
}

}  // namespace
}  // namespace quillon
