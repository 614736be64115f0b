#pragma once

// From the start of the program until its main window can be used, and the end when that window closes. Start-up is one
// fixed sequence: folders, the About screen, what the last run left, the window on the screen, the look for upgrades,
// and last the equity table, so nothing may start an analysis before it is over ("shell/screens/main_form.h"). Here are
// its parts. All lengths are twips.

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "ranges/range_files.h"
#include "shell/settings_file.h"
#include "support/twips.h"

namespace quillon {

/// The height of the main window.
inline constexpr float kMainWindowHeight = 9045;

/// Where the content of the About screen begins below the screen's upper edge.
inline constexpr float kAboutContentTop = 300;

/// The folder that grid images are offered to be saved in: "Saved Grids" in the program's folder.
[[nodiscard]] std::filesystem::path SavedGridsFolderPath(const ProgramFolder& folder);

/// Makes the range folder and that of saved grids where they are missing, and clears away what a killed process left of
/// a save, before the lists show it. RunTimeError if a folder cannot be made.
void PrepareFolders(const ProgramFolder& folder);

/// The main window's title, with the version: "Quillon 0.9".
[[nodiscard]] std::string MainWindowTitle();

/// The main window's size: as wide as the panel, 3300, and the screen that its width is designed for, 12000.
[[nodiscard]] TwipSize MainWindowSize(const TwipRect& panel, float screenWidth);

/// What the amount boxes held when the window was closed last, as they were, sums unevaluated; the empty text for a
/// box of which nothing is known.
[[nodiscard]] std::vector<std::string> StoredBoxTexts(std::int16_t count, const ProgramFolder& folder);

/// The texts of the amount boxes as settings, empty ones too.
[[nodiscard]] std::vector<IniSetting> BoxTextSettings(std::span<const std::string> texts);

/// What the list of hands on the Details screen offers: "None" and the 169 classes in index order.
[[nodiscard]] std::vector<std::string> HandListEntries();

}  // namespace quillon
