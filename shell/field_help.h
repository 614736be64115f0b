#pragma once

// The short explanations for the links "What's this?" beside the inputs of "Preflop Call" and "Preflop Raise". A link's
// tool tip is both the title of the message box and the key of its text.

#include <array>
#include <string>
#include <string_view>

#include "support/message_boxes.h"

namespace quillon {

/// Both screens explain the pot alike; their examples differ.
inline constexpr std::string_view kPotSizeHelp =
    "The pot size is the total amount of money currently in the pot, including whatever your opponent has bet.";

struct FieldHelp {
  std::string_view Key;  // the link's tool tip
  std::string_view First;
  std::string_view Second;  // may be empty
};

// clang-format off
/// By the index of `lblWhatsThis`: 0 to 4 are on "Preflop Raise", 5 to 7 on "Preflop Call".
inline constexpr std::array<FieldHelp, 8> kFieldHelp = {{
    {"Pot Size", kPotSizeHelp,
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
    {"Call ALL IN - Pot Size", kPotSizeHelp,
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

/// The explanation for a key, case-sensitive: one paragraph, or two with an empty line between (CR LF CR LF). The empty
/// text for an unknown key.
[[nodiscard]] std::string FieldHelpText(std::string_view key);

/// The click on `lblWhatsThis(index)` whose tool tip is `key`: shows its explanation under the key as title. An unknown
/// key shows an empty box.
void ShowFieldHelp(std::string_view key, MessageBoxes& messages);

}  // namespace quillon
