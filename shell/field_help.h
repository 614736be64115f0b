#pragma once

// The short explanations for the links "What's this?" beside the inputs of "Preflop Call" and "Preflop Raise". A link's
// tool tip is both the title of the message box and the key of its text.

#include <array>
#include <string>
#include <string_view>

#include "support/message_boxes.h"

namespace quillon {

/// The tool tips of `lblWhatsThis`, by index: 0 to 4 are on "Preflop Raise", 5 to 7 on "Preflop Call".
inline constexpr std::array<std::string_view, 8> kFieldHelpKeys = {
    "Pot Size",      "Amount To Call",         "Hypothetical Call Amount",     "Current Range",
    "Calling Range", "Call ALL IN - Pot Size", "Call ALL IN - Amount To Call", "Call ALL IN - Current Range",
};

/// The explanation for a key, case-sensitive: one paragraph, or two with an empty line between (CR LF CR LF). The empty
/// text for an unknown key.
[[nodiscard]] std::string FieldHelpText(std::string_view key);

/// The click on `lblWhatsThis(index)` whose tool tip is `key`: shows its explanation under the key as title. An unknown
/// key shows an empty box.
void ShowFieldHelp(std::string_view key, MessageBoxes& messages);

}  // namespace quillon
