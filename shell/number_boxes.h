#pragma once

// What happens while the user works in one of the five amount boxes `txtNumber`. As soon as a text changes, earlier
// results no longer fit it and their links go. A sum such as "=735+220-178" is worked out when the user presses Enter
// or leaves the box. The box for the opponent's call also keeps two labels up to date that tell the odds as he sees
// them.

#include <cstdint>
#include <string>
#include <string_view>

#include "analysis/expected_value.h"
#include "support/message_boxes.h"

namespace quillon {

/// The code of the Enter key.
inline constexpr int kEnterKey = 13;

/// The line width of a box's border `ShapeBorder(index)`, usually and while the user is in the box.
inline constexpr int kRestingBorderWidth = 1;
inline constexpr int kFocusedBorderWidth = 3;

class NumberBoxWindow {
 public:
  virtual ~NumberBoxWindow() = default;

  [[nodiscard]] virtual std::string BoxText(std::int16_t index) const = 0;

  /// Sets a box's text and, as that changes it, has ChangeNumberBox run.
  virtual void SetBoxText(std::int16_t index, std::string_view text) = 0;

  virtual void MoveCaretToEnd(std::int16_t index) = 0;
  virtual void SetBoxBorderWidth(std::int16_t index, int width) = 0;

  /// Shows or hides the links that lead to results ("results/results_grid.h").
  virtual void SetResultsShown(bool shown) = 0;

  virtual void ShowOpponentOdds(const OpponentOdds& texts) = 0;  // lblHisOdds and lblHisBEP

  [[nodiscard]] virtual MessageBoxes& Messages() = 0;
};

/// The text of `txtNumber(index)` has changed, by the user or by the program: the results links are hidden. A change of
/// the opponent's call works out its two labels anew. They depend on the pot and the user's call too, but a change of
/// those leaves them as they are; this is meant. Fails as OpponentOddsTexts does.
void ChangeNumberBox(std::int16_t index, NumberBoxWindow& window);

/// The text of `txtNumber(index)` is what the last run left. The same comes of it as of a change, but odds that cannot
/// be told are "N/A" in both labels: whatever a user left in the boxes, the program starts.
void RestoredNumberBox(std::int16_t index, NumberBoxWindow& window);

/// Puts the value of a sum in its place; a text that does not start with "=" stays. A sum that cannot be worked out
/// stays too, after a message. Fails as EvalExpression does.
void EvalNumberBox(std::int16_t index, NumberBoxWindow& window);

/// The user comes into the box: its border becomes thick.
void EnterNumberBox(std::int16_t index, NumberBoxWindow& window);

/// The user leaves the box: its border becomes thin, and its sum is worked out. Fails as EvalNumberBox does.
void LeaveNumberBox(std::int16_t index, NumberBoxWindow& window);

/// A key is pressed in the box. Enter works out its sum and puts the caret behind the text; the key goes on to whoever
/// else handles it. Any other key does nothing here. Fails as EvalNumberBox does.
void PressKeyInNumberBox(std::int16_t index, int keyCode, NumberBoxWindow& window);

}  // namespace quillon
