#pragma once

// The hover panel: a small panel, `frameHover`, that opens beside a cell of the results grid while the mouse is over it
// and tells what the last analysis found for that hand: its equity, what it is worth, what comes back on the money put
// in, for a shove how often the opponent folds, and a verdict in words.
//
// The panel keeps the hand it shows in its caption `lblHov_Cards`, and is filled only when the mouse comes to another
// one. It is never cleared, so after a new analysis that same hand shows its old numbers until another has been
// hovered. That is meant. The window hides the panel when the mouse moves over any bare `frameContent`.
//
// All lengths are twips in 32-bit floats. Texts round half to even and have the general number form.

#include <cstdint>
#include <string>
#include <string_view>

#include "analysis/analysis.h"
#include "support/twips.h"

namespace quillon {

/// The backgrounds of the panel: a profitable hand, an unprofitable one, and a hand of which only the equity is known.
enum class HoverPicture : std::uint8_t { kGreen, kRed, kBlue };

/// What the panel needs of the main window.
class HoverWindow {
 public:
  virtual ~HoverWindow() = default;

  virtual void SetHoverPicture(HoverPicture picture) = 0;  // imgHover

  /// The caption of lblHov_Cards. It must be no hand until the panel has first been filled, lest the panel come up with
  /// the texts it was designed with.
  [[nodiscard]] virtual std::string HoverHand() const = 0;
  virtual void SetHoverHand(std::string_view caption) = 0;

  virtual void SetHoverEquityTitle(std::string_view caption) = 0;  // lblHovDesc_Eq
  virtual void SetHoverEquity(std::string_view caption) = 0;  // lblHov_Eq

  virtual void SetHoverValue(std::string_view caption) = 0;  // lblHov_EV
  virtual void SetHoverReturn(std::string_view caption) = 0;  // lblHov_ROI

  /// Shows or hides both lines, title and number: lblHovDesc_EV, lblHov_EV, lblHovDesc_ROI, lblHov_ROI.
  virtual void SetHoverValueLinesVisible(bool visible) = 0;

  virtual void SetHoverFoldShare(std::string_view caption) = 0;  // lblHov_FoldPerc

  /// Shows or hides lblHovDesc_FoldPerc and lblHov_FoldPerc.
  virtual void SetHoverFoldLineVisible(bool visible) = 0;

  virtual void SetHoverAdvice(std::string_view caption) = 0;  // lblHov_Advice

  /// `frameHover`. Only its left and top are ever changed.
  [[nodiscard]] virtual TwipRect HoverRect() const = 0;
  virtual void SetHoverRect(const TwipRect& rect) = 0;

  [[nodiscard]] virtual TwipRect SquareRect(std::int16_t index) const = 0;  // shapeCardBack(index)
  [[nodiscard]] virtual TwipRect GridScreenRect() const = 0;  // frameContent(1), which holds cells and panel

  /// Brings `frameHover` to the front of its siblings and makes it visible.
  virtual void ShowHover() = 0;
};

/// What a move of the mouse over `lblCards(index)` does: fills the panel if it shows another hand, and brings it up
/// beside the cell. Before any analysis nothing happens at all.
///
/// The return is the expected value over the call amount, in a shove too. Where it is no finite number, as with nothing
/// to call, its line reads "N/A"; so does the equity line of a hand that nobody calls, whose equity is -1.
void ShowHandHover(std::int16_t index, const Analysis& analysis, HoverWindow& window);

/// Moves the panel to the cell and brings it up.
void PlaceHover(std::int16_t index, HoverWindow& window);

/// Where the panel goes: below its square by 25, left edge on left edge. Where it would leave the screen to the right
/// its right edge goes to the square's left edge, and where it would leave it at the bottom it goes above the square by
/// 25. Just fitting is no leaving. Its size stays.
[[nodiscard]] TwipRect HoverPlace(const TwipRect& panel, const TwipRect& square, const TwipRect& screen);

}  // namespace quillon
