#include "shell/start_up.h"

#include <string_view>

#include "hand/hand_classes.h"
#include "shell/situations.h"
#include "shell/version.h"
#include "support/files.h"
#include "support/folders.h"
#include "support/message_boxes.h"

namespace quillon {
namespace {

// The section of the amount boxes, whose keys are their indexes.
constexpr std::string_view kValuesSection = "Values";

}  // namespace

std::filesystem::path SavedGridsFolderPath(const ProgramFolder& folder) {
  return folder.Path / "Saved Grids";
}

void PrepareFolders(const ProgramFolder& folder) {
  MakeFolderIfMissing(RangeFolderPath(folder), *folder.Calls);
  MakeFolderIfMissing(SavedGridsFolderPath(folder), *folder.Calls);
  RemoveStaleScratchFiles(folder.Path, *folder.Calls);
  // Scratch files are next to what was saved only if the program's own folder refuses them.
  RemoveStaleScratchFiles(RangeFolderPath(folder), *folder.Calls);
  RemoveStaleScratchFiles(SituationFolderPath(folder), *folder.Calls);
}

std::string MainWindowTitle() {
  return std::string(kApplicationTitle).append(" ").append(kVersionText);
}

TwipSize MainWindowSize(const TwipRect& panel, float screenWidth) {
  return {.Width = panel.Left + panel.Width + screenWidth, .Height = kMainWindowHeight};
}

std::vector<std::string> StoredBoxTexts(std::int16_t count, const ProgramFolder& folder) {
  std::vector<std::string> texts;
  for (std::int16_t index = 0; index < count; ++index)
    texts.push_back(ReadIniValue(kValuesSection, std::to_string(index), folder));
  return texts;
}

std::vector<IniSetting> BoxTextSettings(std::span<const std::string> texts) {
  std::vector<IniSetting> settings;
  for (const std::string& text : texts)
    settings.push_back({std::string(kValuesSection), std::to_string(settings.size()), text});
  return settings;
}

std::vector<std::string> HandListEntries() {
  std::vector<std::string> entries = {"None"};
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    entries.emplace_back(HandLabel(index));
  return entries;
}

}  // namespace quillon
