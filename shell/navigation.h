#pragma once

// The side panel and the screens. The panel, on the left of the main window, has the links `lblNav`; to its right one
// screen shows at a time, one of the frames `frameContent`. A link opens the screen of the same caption. In twips.
//
// The window system reports when the mouse is over something, but not when it leaves. So a hovered link keeps its looks
// until the mouse moves over the panel's background.

#include <cstdint>
#include <string_view>

#include "analysis/scenarios.h"
#include "support/rgb.h"
#include "support/twips.h"

namespace quillon {

/// The screen without a link: it shows at start and on a click on the logo.
inline constexpr std::string_view kAboutScreen = "About";

/// The links that lead to results, by their index in `lblNav`. Those of the input screens come before them.
inline constexpr std::int16_t kGridNav = kScenarios.size();
inline constexpr std::int16_t kDetailsNav = kGridNav + 1;

/// The height of every screen.
inline constexpr float kScreenHeight = 8645;

/// The colour of the panel's headings, and of the links to results.
inline constexpr Rgb kPaleYellow = {0xFF, 0xFF, 0xC0};

/// How a link `lblNav` looks.
struct LinkLook {
  Rgb Color;
  bool Underlined = false;

  bool operator==(const LinkLook&) const = default;
};

/// The look of `lblNav(index)` when not hovered. The selected link is underlined; links to results have their own
/// colours, dark gray and pale yellow.
[[nodiscard]] LinkLook RestingLink(std::int16_t index, bool selected);

/// The look of a link under the mouse, from its look before. The selected link turns black, without an underline if a
/// click on the logo has removed it. Any other link without an underline turns pale green and is underlined.
[[nodiscard]] LinkLook HoveredLink(LinkLook before, bool selected);

/// The look of every visible link except the selected one once the mouse is over the panel's background. Intentional:
/// the results links turn from pale yellow to white too, so that a player sees which he has visited.
inline constexpr LinkLook kLinkLeft = {.Color = {0xFF, 0xFF, 0xFF}};

/// The place of a screen: from the panel's background to the window's right edge, at the height of all screens,
/// whatever the window's height.
[[nodiscard]] TwipRect ScreenPlace(const TwipRect& panel, float windowWidth);

/// The place of the selection bar: behind a link with this top, and slightly into the screen.
[[nodiscard]] TwipRect SelectionBarPlace(float linkTop, float screenLeft);

}  // namespace quillon
