#pragma once

// Where a form is on the screen ("shell/window_place.h"). Here a twip is one of the screen: 15 are a logical pixel of
// the desktop, whatever the zoom of the form, so that a form keeps its place when the zoom has changed.

#include <QWidget>
#include <string_view>
#include <vector>

#include "shell/window_place.h"

namespace quillon {

/// A size on the screen in twips of the screen.
[[nodiscard]] TwipSize ScreenTwips(const QSize& pixels);

/// Puts the form where it was when its place was stored, or into the middle of the screen; there its title bar is on
/// the screen, also where the form is larger.
void RestorePlace(QWidget& form, std::string_view section, const ProgramFolder& folder);

/// Brings the title bar of a form on to the screen, and as much of the form as there is room for.
void KeepOnScreen(QWidget& form);

/// Where the form is, as settings of that section.
[[nodiscard]] std::vector<IniSetting> PlaceSettings(std::string_view section, const QWidget& form);

}  // namespace quillon
