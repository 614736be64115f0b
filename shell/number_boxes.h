#pragma once

// What happens while the user edits one of the five amount boxes `txtNumber`. As soon as a text changes, earlier
// results no longer fit it and their links are hidden. A sum such as "=735+220-178" is evaluated on Enter and on
// leaving the box ("analysis/expressions.h"). The box for the opponent's call also updates two labels that show his
// odds.

#include <string_view>

#include "analysis/expected_value.h"

namespace quillon {

/// The line width of a box's border `ShapeBorder(index)`, normally and while the user is in the box.
inline constexpr int kRestingBorderWidth = 1;
inline constexpr int kFocusedBorderWidth = 3;

/// The texts of the three boxes of a shove.
struct ShoveBoxTexts {
  std::string_view Pot;
  std::string_view Call;
  std::string_view Shove;
};

/// What `lblHisOdds` and `lblHisBEP` show after a change of the opponent's call. Intentional: they depend on the pot
/// and the user's call too, but do not follow those boxes. Fails as OpponentOddsTexts does.
[[nodiscard]] OpponentOdds OddsOfBoxes(const ShoveBoxTexts& boxes);

/// The same for the texts of the last run, but "N/A" for odds that cannot be computed, so that the start cannot fail.
[[nodiscard]] OpponentOdds OddsOfRestoredBoxes(const ShoveBoxTexts& boxes);

}  // namespace quillon
