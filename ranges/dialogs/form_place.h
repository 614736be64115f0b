#pragma once

// A form's place on the screen ("shell/window_place.h"), in screen twips: 15 to a logical pixel of the desktop whatever
// the form's zoom, so that a form keeps its place when the zoom changes.

#include <QWidget>
#include <string_view>
#include <vector>

#include "shell/window_place.h"

namespace quillon {

/// A size in screen twips.
[[nodiscard]] TwipSize ScreenTwips(const QSize& pixels);

/// Moves the form to its stored place, or to the middle of the screen, where its title bar stays visible even if the
/// form is larger than the screen.
void RestorePlace(QWidget& form, std::string_view section, const ProgramFolder& folder);

/// Moves the form so that its title bar is on the screen, and as much of the rest as fits.
void KeepOnScreen(QWidget& form);

/// The form's place as settings of this section.
[[nodiscard]] std::vector<IniSetting> PlaceSettings(std::string_view section, const QWidget& form);

}  // namespace quillon
