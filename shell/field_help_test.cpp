#include "shell/field_help.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "testing/recorded_messages.h"

namespace quillon {
namespace {

using ::testing::ElementsAre;

struct HelpCase {
  std::size_t index;
  std::string key;
  std::string text;
};

std::vector<HelpCase> HelpCases() {
  return {
      {0, "Pot Size",
       "The pot size is the total amount of money currently in the pot, including whatever your opponent has bet."
       "\r\n\r\n"
       "For example, if the pot size is $20 and your opponent bets $15, you would enter $35 here because that is how "
       "much is currently in the pot."},
      {1, "Amount To Call",
       "If you are facing a bet or a raise, this is how much it would cost you just to call. If the pot is unraised, "
       "then enter 0."
       "\r\n\r\n"
       "For example, you've put in $2 as the Big Blind. It is folded to the Small Blind who raises to $8. In this "
       "case, if you planned to call it would cost you $6."},
      {2, "Hypothetical Call Amount",
       "If you raised ALL IN, how much would your opponent have to call?"
       "\r\n\r\n"
       "For example, you have an $80 stack and your opponent has $25 in a $1/$2 game. You're the Big Blind and he's "
       "the Small Blind. He raises to $6. Since he started with $25 and he has already invested $6, he will have to "
       "call $19 if you go ALL IN."},
      {3, "Current Range",
       "Your opponent's range contains all the possible hands that you think he can currently have. You need to "
       "estimate this based on what you know about your opponent's style, the flow of the game, etc."},
      {4, "Calling Range",
       "Your opponent's calling range contains all the hands that you believe he'll call your ALL IN with."},
      {5, "Call ALL IN - Pot Size",
       "The pot size is the total amount of money currently in the pot, including whatever your opponent has bet."
       "\r\n\r\n"
       "For example, the pot is $35 and your opponent raises all in for $80 more, the pot size is $115."},
      {6, "Call ALL IN - Amount To Call",
       "This is how much you have to call. Remember that if you have more chips than your opponent, you only have to "
       "enter whatever he put in."},
      {7, "Call ALL IN - Current Range",
       "Your opponent's range contains all the possible hands that you think he can currently have."},
  };
}

TEST(FieldHelp, EachLinkShowsItsTextUnderItsKey) {
  const std::vector<HelpCase> cases = HelpCases();
  ASSERT_EQ(cases.size(), kFieldHelpKeys.size());
  for (const HelpCase& c : cases) {
    EXPECT_EQ(kFieldHelpKeys.at(c.index), c.key);
    EXPECT_EQ(FieldHelpText(c.key), c.text);

    RecordedMessages messages;
    ShowFieldHelp(c.key, messages);
    EXPECT_THAT(messages.Shown, ElementsAre(Message{c.key, c.text, MessageIcon::kInformation, MessageButtons::kOk}));
  }
}

TEST(FieldHelp, KeyThatIsNoneShowsAnEmptyBoxUnderItself) {
  for (const std::string key : {"", "pot size", "Pot Size ", "Call ALL IN"}) {
    EXPECT_EQ(FieldHelpText(key), "") << key;
    RecordedMessages messages;
    ShowFieldHelp(key, messages);
    EXPECT_THAT(messages.Shown, ElementsAre(Message{key, "", MessageIcon::kInformation, MessageButtons::kOk}));
  }
}

}  // namespace
}  // namespace quillon
