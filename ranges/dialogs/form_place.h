#pragma once

// Where a form is on the screen ("shell/window_place.h").

#include <QWidget>
#include <string_view>
#include <vector>

#include "shell/window_place.h"

namespace quillon {

/// Puts the form where it was when its place was stored, or into the middle of the screen.
void RestorePlace(QWidget& form, std::string_view section, const ProgramFolder& folder);

/// Where the form is, as settings of that section.
[[nodiscard]] std::vector<IniSetting> PlaceSettings(std::string_view section, const QWidget& form);

}  // namespace quillon
