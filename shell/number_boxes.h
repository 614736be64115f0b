#pragma once

// What happens while the user works in one of the five amount boxes `txtNumber`. As soon as a text changes, earlier
// results no longer fit it and their links go. A sum such as "=735+220-178" is worked out when the user presses Enter
// or leaves the box ("analysis/expressions.h"). The box for the opponent's call also keeps two labels up to date that
// show the odds as he sees them.

#include <string_view>

#include "analysis/expected_value.h"

namespace quillon {

/// The line width of a box's border `ShapeBorder(index)`, usually and while the user is in the box.
inline constexpr int kRestingBorderWidth = 1;
inline constexpr int kFocusedBorderWidth = 3;

/// The texts of the three boxes of a shove.
struct ShoveBoxTexts {
  std::string_view Pot;
  std::string_view Call;
  std::string_view Shove;
};

/// What `lblHisOdds` and `lblHisBEP` show once the box of the opponent's call has changed. Intentional: they depend on
/// the pot and the user's call too, but a change of those leaves them as they are. Fails as OpponentOddsTexts does.
[[nodiscard]] OpponentOdds OddsOfBoxes(const ShoveBoxTexts& boxes);

/// The same of texts that the last run left, but odds that cannot be worked out are "N/A" in both: whatever a user left
/// in the boxes, the program starts.
[[nodiscard]] OpponentOdds OddsOfRestoredBoxes(const ShoveBoxTexts& boxes);

}  // namespace quillon
