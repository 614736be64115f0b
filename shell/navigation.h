#pragma once

// The side panel and the screens. The panel stands on the left of the main window with its links `lblNav`; to the right
// of it shows one screen at a time, one of the frames `frameContent`. A link and its screen have the same caption, and
// that is all that joins them. All lengths are twips.
//
// The window system says when the mouse is over something, never that it has left. So a link that was hovered over
// keeps its looks until the mouse passes over the panel's background, whatever it passes over before.

#include <cstdint>
#include <string>
#include <string_view>

#include "support/rgb.h"
#include "support/twips.h"

namespace quillon {

/// The screen that has no link: it shows at the start and on a click on the logo.
inline constexpr std::string_view kAboutScreen = "About";

/// The link to the written report.
inline constexpr std::int16_t kDetailsNav = 4;

/// How high a screen is, whatever the window's height.
inline constexpr float kFrameHeight = 8645;

/// The link that is marked as selected, -1 for none.
struct NavigationState {
  std::int16_t SelectedNav = -1;
};

class NavigationWindow {
 public:
  virtual ~NavigationWindow() = default;

  [[nodiscard]] virtual TwipSize WindowSize() const = 0;

  /// Where the panel's background `imgBack` lies.
  [[nodiscard]] virtual TwipRect PanelRect() const = 0;

  /// The screens, frameContent.
  [[nodiscard]] virtual std::int16_t FrameCount() const = 0;
  [[nodiscard]] virtual std::string FrameCaption(std::int16_t index) const = 0;
  [[nodiscard]] virtual TwipRect FrameRect(std::int16_t index) const = 0;
  virtual void SetFrameVisible(std::int16_t index, bool visible) = 0;
  virtual void SetFrameRect(std::int16_t index, TwipRect rect) = 0;
  virtual void SetFrameColor(std::int16_t index, Rgb color) = 0;
  virtual void RemoveFrameBorder(std::int16_t index) = 0;
  virtual void RaiseFrame(std::int16_t index) = 0;

  /// The links, lblNav.
  [[nodiscard]] virtual std::int16_t NavCount() const = 0;
  [[nodiscard]] virtual std::string NavCaption(std::int16_t index) const = 0;
  [[nodiscard]] virtual float NavTop(std::int16_t index) const = 0;
  [[nodiscard]] virtual bool IsNavVisible(std::int16_t index) const = 0;
  [[nodiscard]] virtual bool IsNavUnderlined(std::int16_t index) const = 0;
  virtual void SetNavColor(std::int16_t index, Rgb color) = 0;
  virtual void SetNavUnderline(std::int16_t index, bool underline) = 0;

  /// The bar behind the selected link, shapeBack.
  virtual void SetSelectionBarRect(TwipRect rect) = 0;
  virtual void ShowSelectionBar() = 0;

  virtual void SetDefaultPointer() = 0;  // of the whole window
  virtual void ShowHandCursor() = 0;  // for as long as the mouse stays on what it is over
  virtual void HidePanelFooter() = 0;  // imgBackground

  /// Fills all range lists anew ("ranges/range_lists.h").
  virtual void RefreshRangeLists() = 0;

  /// Selects an entry of cmboOutputType, as a click on it would.
  virtual void SelectOutputType(std::int16_t index) = 0;

  /// Writes the report of the last analysis ("results/report.h").
  virtual void BuildReport() = 0;
};

/// Shows the screen of that name, exactly that, hides all others, and gives back its index. The screen takes the place
/// beside the panel up to the window's right edge, white and without a border, before all else. A waiting pointer ends.
/// RunTimeError "Invalid procedure call or argument", with nothing changed, if no screen has that name.
std::int16_t ShowFrame(std::string_view name, NavigationWindow& window);

/// The click on `lblNav(index)`: range lists are filled anew, the link's screen comes up, the selection bar moves
/// behind the link and a little into the screen, and the link becomes the selected one. "Details" always opens with a
/// new report of the first output type. Fails as ShowFrame does.
void ClickNav(std::int16_t index, NavigationState& state, NavigationWindow& window);

/// Gives every link the colour and underline that it has when nothing hovers; `selected` is the one that is marked, -1
/// for none.
void ResetLinkForecolors(std::int16_t selected, NavigationWindow& window);

/// The mouse over the panel's background: every link that shows and is not the selected one becomes white and loses its
/// underline. That makes the results links white too, which are pale yellow before; this is meant.
void ResetLinkColors(const NavigationState& state, NavigationWindow& window);

/// The mouse over `lblNav(index)`. The selected link turns black, without an underline where a click on the logo has
/// taken it off. Any other that is not underlined yet turns pale green and is.
void HoverNav(std::int16_t index, const NavigationState& state, NavigationWindow& window);

/// The click on `picLogo`: the About screen comes up and no link looks selected. The state still remembers the last
/// one, and the selection bar stays behind it; this is meant.
void ClickLogo(const NavigationState& state, NavigationWindow& window);

/// The mouse over `lblNoResults`: a hand while the label is a link, which it is as told at ClickNoResults.
void HoverNoResults(std::string_view caption, NavigationWindow& window);

}  // namespace quillon
