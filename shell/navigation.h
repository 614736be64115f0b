#pragma once

// The side panel and the screens. The panel is on the left of the main window with its links `lblNav`; to the right of
// it shows one screen at a time, one of the frames `frameContent`. A link and its screen have the same caption, and
// that is all that joins them. All lengths are twips.
//
// The window system says when the mouse is over something, never that it has left. So a link that was hovered over
// keeps its looks until the mouse passes over the panel's background, whatever it passes over before.

#include <cstdint>
#include <string_view>

#include "analysis/analysis_window.h"
#include "support/rgb.h"
#include "support/twips.h"

namespace quillon {

/// The screen that has no link: it shows at the start and on a click on the logo.
inline constexpr std::string_view kAboutScreen = "About";

/// The height of every screen.
inline constexpr float kScreenHeight = 8645;

/// In place of a link's index where none is selected.
inline constexpr std::int16_t kNoNav = -1;

/// The colour of the headings on the panel, and of the links that lead to results.
inline constexpr Rgb kPaleYellow = {0xFF, 0xFF, 0xC0};

/// How a link `lblNav` looks.
struct LinkLook {
  Rgb Color;
  bool Underlined = false;

  bool operator==(const LinkLook&) const = default;
};

/// The look of `lblNav(index)` when nothing hovers. The selected link is underlined; those that lead to results have
/// their own colours, dark gray and pale yellow.
[[nodiscard]] LinkLook RestingLink(std::int16_t index, bool selected);

/// The look of a link with the mouse over it, from the look before. The selected link turns black, without an underline
/// where a click on the logo has taken it off. Any other that is not underlined yet turns pale green and is.
[[nodiscard]] LinkLook HoveredLink(LinkLook before, bool selected);

/// The look of every link that shows and is not the selected one once the mouse is over the panel's background.
/// Intentional: the results links turn white, too, which are pale yellow before, so that a player sees which he has
/// been to.
inline constexpr LinkLook kLinkLeft = {.Color = {0xFF, 0xFF, 0xFF}};

/// Where a screen shows: beside the panel's background, up to the window's right edge, as high as all screens are,
/// whatever the window's height.
[[nodiscard]] TwipRect ScreenPlace(const TwipRect& panel, float windowWidth);

/// Where the selection bar is: behind a link whose top is given, and a little into the screen beside it.
[[nodiscard]] TwipRect SelectionBarPlace(float linkTop, float screenLeft);

}  // namespace quillon
