#pragma once

// The hover panel: a small panel, `frameHover`, that opens beside a cell of the results grid while the mouse is over it
// and shows the last analysis of that hand: its equity, its value, the return on the money put in, for a shove how
// often the opponent folds, and a verdict in words.
//
// The panel keeps its hand in its caption `lblHov_Cards`, and is refilled only when the mouse moves to another hand. It
// is never cleared, so after a new analysis that same hand shows its old numbers until another has been hovered.
// Intentional: a player compares hands, and a hand that has not been left has been read. The window hides the panel
// when the mouse moves over any empty part of `frameContent`.
//
// All lengths are twips in 32-bit floats. Texts round half to even and have the general number form.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "analysis/analysis.h"
#include "support/twips.h"

namespace quillon {

/// The backgrounds of the panel: a profitable hand, an unprofitable one, and a hand with only an equity.
enum class HoverPicture : std::uint8_t { kGreen, kRed, kBlue };

/// The titles of the panel's lines; the equity's title is one of the texts.
inline constexpr std::string_view kValueTitle = "EV:";
inline constexpr std::string_view kReturnTitle = "ROI:";
inline constexpr std::string_view kFoldShareTitle = "Opponent Fold %:";

/// The panel's texts for a hand. A line without a text is hidden, with its title, and keeps its text.
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
/// The return is the expected value over the call amount, in a shove too. If it is not finite, as with nothing to call,
/// its line says "N/A"; so does the equity line of a hand that nobody calls, whose equity is -1.
[[nodiscard]] std::optional<HoverTexts> MakeHoverTexts(std::int16_t index, const Analysis& analysis);

/// The panel's place: 25 below its square, left edges aligned. If it would leave the screen on the right, its right
/// edge moves to the square's left edge, and if at the bottom, it goes 25 above the square. An exact fit counts as
/// inside. Its size is unchanged.
[[nodiscard]] TwipRect HoverPlace(const TwipRect& panel, const TwipRect& square, const TwipRect& screen);

}  // namespace quillon
