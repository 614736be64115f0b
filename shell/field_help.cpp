#include "shell/field_help.h"

#include <cstddef>

namespace quillon {
namespace {

struct HelpText {
  std::string_view key;
  std::string_view first;
  std::string_view second;  // may be empty
};

constexpr std::string_view kPotSizeText =
    "The pot size is the total amount of money currently in the pot, including whatever your opponent has bet.";

// clang-format off
constexpr std::array<HelpText, kFieldHelpKeys.size()> kHelpTexts = {{
    {"Pot Size", kPotSizeText,
     "For example, if the pot size is $20 and your opponent bets $15, you would enter $35 here because that is how much "
     "is currently in the pot."},
    {"Amount To Call",
     "If you are facing a bet or a raise, this is how much it would cost you just to call. If the pot is unraised, then "
     "enter 0.",
     "For example, you've put in $2 as the Big Blind. It is folded to the Small Blind who raises to $8. In this case, "
     "if you planned to call it would cost you $6."},
    {"Hypothetical Call Amount",
     "If you raised ALL IN, how much would your opponent have to call?",
     "For example, you have an $80 stack and your opponent has $25 in a $1/$2 game. You're the Big Blind and he's the "
     "Small Blind. He raises to $6. Since he started with $25 and he has already invested $6, he will have to call $19 "
     "if you go ALL IN."},
    {"Current Range",
     "Your opponent's range contains all the possible hands that you think he can currently have. You need to estimate "
     "this based on what you know about your opponent's style, the flow of the game, etc.",
     ""},
    {"Calling Range",
     "Your opponent's calling range contains all the hands that you believe he'll call your ALL IN with.",
     ""},
    {"Call ALL IN - Pot Size", kPotSizeText,
     "For example, the pot is $35 and your opponent raises all in for $80 more, the pot size is $115."},
    {"Call ALL IN - Amount To Call",
     "This is how much you have to call. Remember that if you have more chips than your opponent, you only have to "
     "enter whatever he put in.",
     ""},
    {"Call ALL IN - Current Range",
     "Your opponent's range contains all the possible hands that you think he can currently have.",
     ""},
}};
// clang-format on

constexpr bool EachKeyHasItsText() {
  for (std::size_t index = 0; index < kFieldHelpKeys.size(); ++index) {
    if (kHelpTexts[index].key != kFieldHelpKeys[index] || kHelpTexts[index].first.empty()) return false;
  }
  return true;
}
static_assert(EachKeyHasItsText());

}  // namespace

std::string FieldHelpText(std::string_view key) {
  for (const HelpText& help : kHelpTexts) {
    if (help.key != key) continue;
    std::string text(help.first);
    if (!help.second.empty()) text.append("\r\n\r\n").append(help.second);
    return text;
  }
  return {};
}

void ShowFieldHelp(std::string_view key, MessageBoxes& messages) {
  messages.Show({std::string(key), FieldHelpText(key), MessageIcon::kInformation});
}

}  // namespace quillon
