#pragma once

// From the start of the program until its main window can be used, and the end when that window closes. Start-up is one
// fixed sequence: folders, the About screen, the state of the last run, the window on the screen, the upgrade check,
// and last the equity table, so nothing may start an analysis before it is over ("shell/screens/main_form.h"). These
// are its parts. All lengths are twips.

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

/// The top of the About screen's content, relative to the screen.
inline constexpr float kAboutContentTop = 300;

/// The default folder for grid images: "Saved Grids" in the program's folder.
[[nodiscard]] std::filesystem::path SavedGridsFolderPath(const ProgramFolder& folder);

/// Creates the range folder and that of saved grids if missing, and deletes what a killed process left of a save,
/// before the lists show it. RunTimeError if a folder cannot be created.
void PrepareFolders(const ProgramFolder& folder);

/// The main window's title, with the version: "Quillon 0.9".
[[nodiscard]] std::string MainWindowTitle();

/// The main window's size: as wide as the panel, 3300, plus a screen's design width, 12000.
[[nodiscard]] TwipSize MainWindowSize(const TwipRect& panel, float screenWidth);

/// The texts of the amount boxes when the window was last closed, sums unevaluated; empty if unknown.
[[nodiscard]] std::vector<std::string> StoredBoxTexts(std::int16_t count, const ProgramFolder& folder);

/// The texts of the amount boxes as settings, empty ones too.
[[nodiscard]] std::vector<IniSetting> BoxTextSettings(std::span<const std::string> texts);

/// The list of hands on the Details screen: "None" and the 169 classes in index order.
[[nodiscard]] std::vector<std::string> HandListEntries();

}  // namespace quillon
