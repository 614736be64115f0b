#include "shell/start_up.h"

#include <vector>

#include "hand/hand_classes.h"
#include "results/report.h"
#include "shell/settings_file.h"
#include "shell/version.h"
#include "support/files.h"
#include "support/folders.h"
#include "support/message_boxes.h"

namespace quillon {
namespace {

// The screen whose design gives the window its width. The screens that have been shown are as wide as the window was.
constexpr std::int16_t kDesignFrame = 0;

void RestoreBoxTexts(StartWindow& window, const ProgramFolder& folder) {
  for (std::int16_t index = 0; index < window.BoxCount(); ++index) {
    const std::string text = ReadIniValue(kValuesSection, std::to_string(index), folder);
    if (!text.empty()) window.RestoreBoxText(index, text);
  }
}

TwipSize MainWindowSize(const StartWindow& window) {
  const TwipRect panel = window.PanelRect();
  return {.Width = panel.Left + panel.Width + window.FrameRect(kDesignFrame).Width, .Height = kMainWindowHeight};
}

void FillOutputTypes(StartWindow& window) {
  for (const std::string_view text : kReportFormTexts)
    window.AddOutputType(text);
  window.SelectOutputType(0);
}

void FillHandList(StartWindow& window) {
  window.AddHandEntry("None");
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    window.AddHandEntry(HandLabel(index));
}

}  // namespace

std::filesystem::path SavedGridsFolderPath(const ProgramFolder& folder) {
  return folder.Path / "Saved Grids";
}

void StartUp(NavigationState& state, StartWindow& window, const ProgramFolder& folder) {
  MakeFolderIfMissing(RangeFolderPath(folder), *folder.Calls);
  MakeFolderIfMissing(SavedGridsFolderPath(folder), *folder.Calls);
  // Among the ranges there are scratch files only where the program's own folder cannot hold them.
  RemoveStaleScratchFiles(folder.Path, *folder.Calls);
  RemoveStaleScratchFiles(RangeFolderPath(folder), *folder.Calls);
  SetAboutView(window);
  state.SelectedNav = -1;
  LoadStartupState(state, window, folder);
  window.ShowWindow();
  window.CheckForUpgrade();
  window.LoadEquityTable();
}

void SetAboutView(StartWindow& window) {
  const std::int16_t about = ShowFrame(kAboutScreen, window);
  window.SetTitle(std::string(kApplicationTitle) + " " + VersionText());
  window.SetRangeCountCaption(std::to_string(window.RangeEntryCount()));

  const TwipRect frame = window.FrameRect(about);
  window.SetAboutContentRect({.Left = 0, .Top = kAboutContentTop, .Width = frame.Width, .Height = frame.Height});
  window.ShowAboutContent();
}

void LoadStartupState(const NavigationState& state, StartWindow& window, const ProgramFolder& folder) {
  RestoreBoxTexts(window, folder);
  window.RefreshRangeLists();
  window.SetResultsShown(false);
  window.ResizeWindow(MainWindowSize(window));
  RestoreWindowPosition(window, kMainSection, folder);
  window.SetHoverPanelSize(window.HoverBorderSize());
  FillOutputTypes(window);
  ClickLogo(state, window);
  FillHandList(window);
}

void CloseMainWindow(StartWindow& window, const ProgramFolder& folder) {
  window.HideWindow();
  // In one go: each write of its own would wait anew for another copy of the program that holds the file.
  std::vector<IniSetting> settings = PlaceSettings(window, kMainSection);
  for (std::int16_t index = 0; index < window.BoxCount(); ++index)
    settings.push_back({std::string(kValuesSection), std::to_string(index), window.BoxText(index)});
  WriteIniValues(settings, folder);
  window.EndProcess();
}

}  // namespace quillon
