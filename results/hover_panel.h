#pragma once

// The hover panel: a small panel, `frameHover`, that opens beside a cell of the results grid while the mouse is over it
// and shows what the last analysis found for that hand: its equity, what it is worth, the return on the money put
// in, for a shove how often the opponent folds, and a verdict in words.
//
// The panel keeps the hand it shows in its caption `lblHov_Cards`, and is filled only when the mouse comes to another
// one. It is never cleared, so after a new analysis that same hand shows its old numbers until another has been
// hovered. Intentional: a player compares hands, and a hand that has not been left has been read. The window hides the
// panel when the mouse moves over any bare `frameContent`.
//
// All lengths are twips in 32-bit floats. Texts round half to even and have the general number form.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "analysis/analysis.h"
#include "support/twips.h"

namespace quillon {

/// The backgrounds of the panel: a profitable hand, an unprofitable one, and a hand of which only the equity is known.
enum class HoverPicture : std::uint8_t { kGreen, kRed, kBlue };

/// The titles of the panel's lines; the equity's title is one of the texts.
inline constexpr std::string_view kValueTitle = "EV:";
inline constexpr std::string_view kReturnTitle = "ROI:";
inline constexpr std::string_view kFoldShareTitle = "Opponent Fold %:";

/// What the panel shows of a hand. A line without a text is hidden, with its title, and keeps its text.
struct HoverTexts {
  HoverPicture Picture = HoverPicture::kBlue;  // imgHover
  std::string_view Hand;  // lblHov_Cards
  std::string_view EquityTitle;  // lblHovDesc_Eq
  std::string Equity;  // lblHov_Eq
  std::optional<std::string> Value;  // lblHov_EV
  std::optional<std::string> Return;  // lblHov_ROI
  std::optional<std::string> FoldShare;  // lblHov_FoldPerc
  std::string_view Advice;  // lblHov_Advice

  bool operator==(const HoverTexts&) const = default;
};

/// The texts for the class `index`; nothing before any analysis.
///
/// The return is the expected value over the call amount, in a shove too. Where it is not a finite number, as with
/// nothing to call, its line reads "N/A"; so does the equity line of a hand that nobody calls, whose equity is -1.
[[nodiscard]] std::optional<HoverTexts> MakeHoverTexts(std::int16_t index, const Analysis& analysis);

/// Where the panel goes: below its square by 25, left edge on left edge. Where it would leave the screen to the right
/// its right edge goes to the square's left edge, and where it would leave it at the bottom it goes above the square by
/// 25. An exact fit counts as inside. Its size stays.
[[nodiscard]] TwipRect HoverPlace(const TwipRect& panel, const TwipRect& square, const TwipRect& screen);

}  // namespace quillon
